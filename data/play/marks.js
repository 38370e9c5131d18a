'use strict';

// What is marked in a game, and the steps that lead back and forth. Nothing of the screen.
//
// The marks of a ship are `damage`, the numbers of the boxes that are crossed off, ascending;
// `systems`, the kind of mark by the number of the piece, for those that are not whole; and
// `notes`. A part of a state is what a step changes: the turn, or damage and systems of one ship,
// or all of it.

const markKinds = ['destroyed', 'damaged', 'used'];
const mostTurns = 9999;
const mostNotes = 20000;
const mostSteps = 300;

function freshState(fleet) {
    const ships = fleet.ships.map(() => ({damage: [], systems: {}, notes: ''}));
    return {turn: 1, notes: '', ships};
}

function copyOf(value) {
    return JSON.parse(JSON.stringify(value));
}

// What reads what others have written. It takes nothing that it does not know, and throws an
// Error that says what is wrong.

function isWhole(value, least, end) {
    return Number.isInteger(value) && value >= least && value < end;
}

function isObject(value) {
    return value !== null && typeof value === 'object' && !Array.isArray(value);
}

function checkKeys(value, keys, what) {
    if (!isObject(value) || Object.keys(value).sort().join() !== keys.slice().sort().join()) {
        throw new Error(what + ' is not as it has to be');
    }
}

function checkedTurn(turn) {
    if (!isWhole(turn, 1, mostTurns + 1)) {
        throw new Error('its turn is no number from 1 to ' + mostTurns);
    }
    return turn;
}

function checkedNotes(notes) {
    if (typeof notes !== 'string' || notes.length > mostNotes) {
        throw new Error('its notes are no text, or too long');
    }
    return notes;
}

function checkedDamage(damage, ship) {
    const isKnown = Array.isArray(damage) && damage.every((box) => isWhole(box, 0, ship.boxCount));
    if (!isKnown || new Set(damage).size !== damage.length) {
        throw new Error('it crosses off a box that the ship does not have');
    }
    return damage.slice().sort((a, b) => a - b);
}

function checkedSystems(systems, ship) {
    const checked = {};
    for (const [piece, kind] of isObject(systems) ? Object.entries(systems) : [['', '']]) {
        const isKnown = /^(0|[1-9][0-9]{0,5})$/.test(piece) && Number(piece) < ship.pieceCount;
        if (!isKnown || !markKinds.includes(kind)) {
            throw new Error('it marks a system that the ship does not have, or as what none can be');
        }
        checked[piece] = kind;
    }
    return checked;
}

function checkedState(state, fleet) {
    checkKeys(state, ['turn', 'notes', 'ships'], 'the game');
    if (!Array.isArray(state.ships) || state.ships.length !== fleet.ships.length) {
        throw new Error('it is of another number of ships');
    }
    const ships = state.ships.map((marks, i) => {
        checkKeys(marks, ['damage', 'systems', 'notes'], 'ship ' + (i + 1));
        return {
            damage: checkedDamage(marks.damage, fleet.ships[i]),
            systems: checkedSystems(marks.systems, fleet.ships[i]),
            notes: checkedNotes(marks.notes),
        };
    });
    return {turn: checkedTurn(state.turn), notes: checkedNotes(state.notes), ships};
}

function checkedPart(part, fleet) {
    if (isObject(part) && 'ships' in part) {
        return checkedState(part, fleet);
    }
    if (isObject(part) && 'ship' in part) {
        checkKeys(part, ['ship', 'damage', 'systems'], 'a step');
        if (!isWhole(part.ship, 0, fleet.ships.length)) {
            throw new Error('a step is of a ship that is not there');
        }
        const ship = fleet.ships[part.ship];
        return {
            ship: part.ship,
            damage: checkedDamage(part.damage, ship),
            systems: checkedSystems(part.systems, ship),
        };
    }
    checkKeys(part, ['turn'], 'a step');
    return {turn: checkedTurn(part.turn)};
}

// A game with its steps, as the browser keeps it.
function checkedGame(kept, fleet) {
    checkKeys(kept, ['state', 'steps', 'done'], 'what is kept');
    if (!Array.isArray(kept.steps) || !isWhole(kept.done, 0, kept.steps.length + 1)) {
        throw new Error('its steps are not as they have to be');
    }
    const steps = kept.steps.map((step) => {
        checkKeys(step, ['words', 'before', 'after'], 'a step');
        return {
            words: checkedNotes(step.words),
            before: checkedPart(step.before, fleet),
            after: checkedPart(step.after, fleet),
        };
    });
    return {state: checkedState(kept.state, fleet), steps, done: kept.done};
}

class Game {
    // `fleet.ships` have a `boxCount` and a `pieceCount` each. `changed` is called behind each
    // change, with its words.
    constructor(fleet, changed) {
        this.fleet = fleet;
        this.changed = changed;
        this.forget();
    }

    // Begins anew, without steps that lead back.
    forget() {
        this.state = freshState(this.fleet);
        this.steps = [];
        this.done = 0;
    }

    // Takes a whole game, as `checkedGame` returns it.
    take(game) {
        Object.assign(this, game);
    }

    kept() {
        return {state: this.state, steps: this.steps, done: this.done};
    }

    get canUndo() {
        return this.done > 0;
    }

    get canRedo() {
        return this.done < this.steps.length;
    }

    // Puts a part in, as a step that can be taken back. Returns whether that changes anything.
    act(words, after) {
        const before = this.same(after);
        if (JSON.stringify(before) === JSON.stringify(after)) {
            return false;
        }
        this.steps.length = this.done;
        this.steps.push({words, before, after: copyOf(after)});
        if (this.steps.length > mostSteps) {
            this.steps.shift();
        }
        this.done = this.steps.length;
        this.put(after);
        this.changed(words);
        return true;
    }

    // Takes the last step back, and returns what of the game has changed by that; null if there is
    // no such step.
    undo() {
        if (!this.canUndo) {
            return null;
        }
        const step = this.steps[--this.done];
        step.after = this.withNotes(step.after);
        this.put(step.before);
        this.changed('Taken back: ' + step.words);
        return step.before;
    }

    redo() {
        if (!this.canRedo) {
            return null;
        }
        const step = this.steps[this.done++];
        step.before = this.withNotes(step.before);
        this.put(step.after);
        this.changed('Done again: ' + step.words);
        return step.after;
    }

    // The end of a step that is about to be left. What was noted since is no step, and would be lost with
    // a whole state that is put in its place.
    withNotes(part) {
        return 'ships' in part ? this.same(part) : part;
    }

    // Notes are no steps: their box has its own undo.
    note(ship, text) {
        const owner = ship === null ? this.state : this.state.ships[ship];
        owner.notes = text.slice(0, mostNotes);
        this.changed('');
    }

    // The part as it is now.
    same(part) {
        if ('ships' in part) {
            return copyOf(this.state);
        }
        if ('ship' in part) {
            const {damage, systems} = this.state.ships[part.ship];
            return copyOf({ship: part.ship, damage, systems});
        }
        return {turn: this.state.turn};
    }

    put(part) {
        const {ship, ...values} = copyOf(part);
        Object.assign('ship' in part ? this.state.ships[ship] : this.state, values);
    }
}
