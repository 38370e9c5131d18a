'use strict';

// Where a game stays: in the browser, and in files of the player's.

const fileFormat = 'FleetWright game 1';
const mostFileBytes = 4000000;

function storageKey(fleet) {
    return 'FleetWright game ' + fleet.id;
}

// Where a browser keeps nothing of such a page, each of its functions throws.
function keepGame(game) {
    window.localStorage.setItem(storageKey(game.fleet), JSON.stringify(game.kept()));
}

// Has a game take what the browser keeps of it. Returns whether there was something; throws an
// Error if that is damaged.
function fetchGame(game) {
    const text = window.localStorage.getItem(storageKey(game.fleet));
    if (text === null) {
        return false;
    }
    game.take(checkedGame(JSON.parse(text), game.fleet));
    return true;
}

// The ship that is looked at, which each window has for itself. Where nothing is kept, it is the first.
function keepShip(fleet, index) {
    try {
        window.sessionStorage.setItem(storageKey(fleet), String(index));
    } catch (error) {
        // It is chosen again with one click.
    }
}

function fetchShip(fleet) {
    try {
        const index = Number(window.sessionStorage.getItem(storageKey(fleet)));
        return index in fleet.ships ? index : 0;
    } catch (error) {
        return 0;
    }
}

// Letters and digits of any writing; all else may mean something to a file system.
function fileNameOf(game) {
    const name = game.fleet.name.replace(/[^\p{L}\p{N}]+/gu, '-').replace(/^-+|-+$/g, '').slice(0, 60);
    return (name || 'Fleet') + '-turn-' + game.state.turn + '.json';
}

function fileText(game) {
    const {turn, notes, ships} = game.state;
    const named = ships.map((marks, i) => ({name: game.fleet.ships[i].name, ...marks}));
    const file = {format: fileFormat, id: game.fleet.id, fleet: game.fleet.name, turn, notes, ships: named};
    return JSON.stringify(file, null, 2) + '\n';
}

// The state in the text of such a file. Names in it are for people.
function stateIn(text, fleet) {
    let file;
    try {
        file = JSON.parse(text);
    } catch (error) {
        throw new Error('it is no game, or damaged');
    }
    if (!isObject(file) || file.format !== fileFormat) {
        throw new Error('it is no game of a fleet');
    }
    if (file.id !== fleet.id) {
        throw new Error('it is of another fleet, or the fleet has changed since');
    }
    checkKeys(file, ['format', 'id', 'fleet', 'turn', 'notes', 'ships'], 'the game');
    const ships = !Array.isArray(file.ships) ? null : file.ships.map((ship) => {
        const {name, ...marks} = isObject(ship) ? ship : {};
        return marks;
    });
    return checkedState({turn: file.turn, notes: file.notes, ships}, fleet);
}

function saveGame(game) {
    const url = URL.createObjectURL(new Blob([fileText(game)], {type: 'application/json'}));
    const link = document.createElement('a');
    link.href = url;
    link.download = fileNameOf(game);
    link.click();
    // The browser has to have begun with it.
    setTimeout(() => URL.revokeObjectURL(url), 60000);
}

// Returns whether that changes anything; throws an Error that says why a file is not loaded.
async function loadGame(game, file) {
    if (file.size > mostFileBytes) {
        throw new Error('it is too large for a game');
    }
    return game.act('Loaded ' + isolated(file.name), stateIn(await file.text(), game.fleet));
}
