'use strict';

// What marks mean for a ship, in words.

const kindWords = {destroyed: 'destroyed', damaged: 'damaged', used: 'used up'};

// A name inside of a sentence, whichever way it is written.
function isolated(name) {
    return '\u2068' + name + '\u2069';
}

function counted(count, one, many) {
    return count + ' ' + (count === 1 ? one : many);
}

// How many rows have no free box.
function fullRows(sheet, damage) {
    const crossed = new Set(damage);
    let box = 0, full = 0;
    for (const length of sheet.rows) {
        const end = box + length;
        let isFull = true;
        for (; box < end; ++box) {
            isFull = isFull && crossed.has(box);
        }
        full += isFull ? 1 : 0;
    }
    return full;
}

function isLost(sheet, marks) {
    return sheet.boxCount > 0 && marks.damage.length === sheet.boxCount;
}

function damageWords(sheet, marks) {
    if (sheet.boxCount === 0) {
        return 'She has no damage points';
    }
    const left = sheet.boxCount - marks.damage.length;
    if (isLost(sheet, marks)) {
        return 'Lost: no damage point left';
    }
    const rowsLeft = sheet.rows.length - fullRows(sheet, marks.damage);
    return left + ' of ' + counted(sheet.boxCount, 'damage point', 'damage points') + ' left, ' +
        rowsLeft + ' of ' + counted(sheet.rows.length, 'row', 'rows') + ' left';
}

// Systems aboard whose rules speak of damage rows, unless all of their pieces are marked.
function systemsOfRows(sheet, marks) {
    const isWorking = (system) => {
        const pieces = Array.from({length: system.count}, (_, i) => system.first + i);
        return pieces.some((piece) => !(piece in marks.systems));
    };
    return sheet.systems
        .filter((system) => system.rules.includes('damage row') && isWorking(system))
        .map((system) => isolated(system.name));
}

// When a row is full, as many systems fail as rows are full then.
function failWords(sheet, before, marks) {
    const was = fullRows(sheet, before), is = fullRows(sheet, marks.damage);
    if (is <= was || isLost(sheet, marks)) {
        return '';
    }
    const fails = [];
    for (let full = was + 1; full <= is; ++full) {
        fails.push(counted(full, 'system fails', 'systems fail'));
    }
    const but = systemsOfRows(sheet, marks);
    return '. A row is full: ' + fails.join(', then ') + (but.length > 0 ? '; but see ' + but.join(', ') : '');
}

function crossingWords(sheet, name, before, marks) {
    const more = marks.damage.length - before.length;
    const change = more >= 0 ? counted(more, 'damage point', 'damage points')
                             : counted(-more, 'damage point', 'damage points') + ' mended';
    return isolated(name) + ': ' + change + '. ' + damageWords(sheet, marks) + failWords(sheet, before, marks);
}

function pieceName(system, piece) {
    const which = system.count === 1 ? '' : ', ' + (piece - system.first + 1) + ' of ' + system.count;
    return isolated(system.name) + which;
}

function markingWords(sheet, name, piece, kind) {
    return isolated(name) + ': ' + pieceName(sheet.systemOf[piece], piece) + ' is ' +
        (kind ? kindWords[kind] : 'whole again');
}

// "Damaged: Fire Control (1 of 2)"; nothing if none is.
function kindList(sheet, marks, kind) {
    const names = [];
    for (const system of sheet.systems) {
        let count = 0;
        for (let piece = system.first; piece < system.first + system.count; ++piece) {
            count += marks.systems[piece] === kind ? 1 : 0;
        }
        if (count > 0) {
            names.push(isolated(system.name) + (system.count > 1 ? ' (' + count + ' of ' + system.count + ')' : ''));
        }
    }
    const words = kindWords[kind];
    return names.length === 0 ? '' : words[0].toUpperCase() + words.slice(1) + ': ' + names.join(', ');
}

// What has become of the pieces of a system, for paper: "1, 3 destroyed; 2 used up".
function pieceWords(system, marks) {
    const lists = [];
    for (const kind of markKinds) {
        const numbers = [];
        for (let i = 0; i < system.count; ++i) {
            if (marks.systems[system.first + i] === kind) {
                numbers.push(i + 1);
            }
        }
        if (numbers.length > 0) {
            lists.push((system.count > 1 ? numbers.join(', ') + ' ' : '') + kindWords[kind]);
        }
    }
    return lists.join('; ');
}

// All that is to be known of a ship, sentence by sentence.
function shipWords(sheet, marks) {
    const lists = markKinds.map((kind) => kindList(sheet, marks, kind)).filter((list) => list !== '');
    const whole = isLost(sheet, marks) ? [] : ['All systems work'];
    return [damageWords(sheet, marks), ...(lists.length > 0 ? lists : whole)];
}

// The same in a few letters, for the list of ships.
function shortWords(sheet, marks) {
    const out = Object.keys(marks.systems).length;
    const left = sheet.boxCount - marks.damage.length;
    return (isLost(sheet, marks) ? 'lost' : left + '/' + sheet.boxCount) + (out > 0 ? ', ' + out + ' marked' : '');
}
