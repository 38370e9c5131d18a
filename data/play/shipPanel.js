'use strict';

// A ship: its damage track, its drawing, its systems and its notes.

// An element with attributes and children, which are elements or text.
function element(name, attributes, ...children) {
    const made = document.createElement(name);
    for (const [key, value] of Object.entries(attributes)) {
        made.setAttribute(key, value);
    }
    made.append(...children);
    return made;
}

function button(attributes, act, ...children) {
    const made = element('button', {type: 'button', ...attributes}, ...children);
    made.addEventListener('click', act);
    return made;
}

function notesBox(label, text, change) {
    const box = element('textarea', {rows: '3', dir: 'auto', maxlength: String(mostNotes)});
    box.value = text;
    box.addEventListener('input', () => change(box.value));
    // Where a box scrolls, paper shows what it holds.
    const printed = element('p', {class: 'printed', dir: 'auto'});
    return {box, printed, element: element('label', {class: 'notes'}, label, box, printed)};
}

function showNotes(notes, text) {
    if (notes.box.value !== text) {
        notes.box.value = text;
    }
    notes.printed.textContent = text;
}

// The boxes of a damage track, large enough for fingers. Like a pencil, a finger crosses off each box
// that it is drawn over; where it begins on a crossed one, it rubs out.
class DamageTrack {
    // `cross` is called with the boxes that are crossed off then.
    constructor(sheet, cross) {
        this.cross = cross;
        this.crossed = new Set();
        this.stroke = null;
        this.strokeEnd = -1000;
        this.boxes = [];
        this.element = element('div', {class: 'track'});
        sheet.rows.forEach((length, row) => {
            const boxes = element('div', {class: 'row', role: 'group', 'aria-label': 'Row ' + (row + 1)});
            boxes.style.setProperty('--boxes', String(length));
            for (let i = 0; i < length; ++i) {
                const box = this.boxes.length;
                const made = button({class: 'box', 'aria-pressed': 'false', tabindex: '-1',
                    'aria-label': 'Damage box ' + (box + 1) + ' of ' + sheet.boxCount + ', row ' + (row + 1)},
                (event) => this.click(box, event));
                this.boxes.push(made);
                boxes.append(made);
            }
            this.element.append(boxes);
        });
        if (this.boxes.length > 0) {
            this.boxes[0].tabIndex = 0;
        }
        this.element.addEventListener('pointerdown', (event) => this.begin(event));
        this.element.addEventListener('pointermove', (event) => this.extend(event));
        this.element.addEventListener('pointerup', (event) => this.end(event));
        this.element.addEventListener('pointercancel', () => this.cancel());
        this.element.addEventListener('keydown', (event) => this.move(event));
    }

    show(damage) {
        this.crossed = new Set(damage);
        this.draw();
    }

    draw() {
        this.boxes.forEach((box, i) => {
            const isCrossed = this.stroke && this.stroke.boxes.has(i) ? this.stroke.crosses : this.crossed.has(i);
            box.setAttribute('aria-pressed', String(isCrossed));
        });
    }

    boxAt(event) {
        const seen = document.elementFromPoint(event.clientX, event.clientY);
        return seen ? this.boxes.indexOf(seen) : -1;
    }

    begin(event) {
        const box = this.boxAt(event);
        if (box >= 0 && event.isPrimary && event.button === 0) {
            this.stroke = {crosses: !this.crossed.has(box), boxes: new Set([box])};
            this.element.setPointerCapture(event.pointerId);
            this.draw();
        }
    }

    extend(event) {
        const box = this.stroke && event.isPrimary ? this.boxAt(event) : -1;
        if (box >= 0) {
            this.stroke.boxes.add(box);
            this.draw();
        }
    }

    end(event) {
        if (this.stroke && event.isPrimary) {
            const {crosses, boxes} = this.stroke;
            this.stroke = null;
            this.strokeEnd = event.timeStamp;
            const crossed = new Set(this.crossed);
            boxes.forEach((box) => (crosses ? crossed.add(box) : crossed.delete(box)));
            this.cross(crossed);
            this.draw();
        }
    }

    // The browser has taken the finger for scrolling.
    cancel() {
        this.stroke = null;
        this.draw();
    }

    // From the keyboard and from screen readers. A click behind a stroke is the stroke's own.
    click(box, event) {
        if (event.detail === 0 || event.timeStamp - this.strokeEnd > 700) {
            this.toggle(box);
        }
    }

    toggle(box) {
        const crossed = new Set(this.crossed);
        if (!crossed.delete(box)) {
            crossed.add(box);
        }
        this.cross(crossed);
    }

    // Crosses the first free box off, as a hit does.
    hit() {
        const free = this.boxes.findIndex((box, i) => !this.crossed.has(i));
        if (free >= 0) {
            this.toggle(free);
        }
    }

    // Arrows go from box to box, so that Tab goes past the track.
    move(event) {
        const steps = {ArrowLeft: -1, ArrowRight: 1, Home: -this.boxes.length, End: this.boxes.length};
        const from = this.boxes.indexOf(event.target);
        if (from >= 0 && event.key in steps) {
            event.preventDefault();
            const to = Math.min(Math.max(from + steps[event.key], 0), this.boxes.length - 1);
            this.boxes[from].tabIndex = -1;
            this.boxes[to].tabIndex = 0;
            this.boxes[to].focus();
        }
    }
}

class ShipPanel {
    // `choose` lets the player choose how a piece of this ship is marked.
    constructor(game, index, svg, choose) {
        this.game = game;
        this.index = index;
        this.ship = game.fleet.ships[index];
        this.sheet = this.ship.sheet;
        this.choose = choose;
        this.track = new DamageTrack(this.sheet, (crossed) => this.crossOff(crossed));
        this.drawing = new Drawing(this.sheet, svg, choose, (box) => this.track.toggle(box));
        this.words = element('ul', {class: 'words'});
        this.notes = notesBox('Notes', '', (text) => game.note(index, text));
        this.pieces = [];
        this.printed = [];
        this.values = new Map();
        this.element = element('section', {class: 'ship', role: 'tabpanel', id: 'panel' + index,
            'aria-labelledby': 'tab' + index, tabindex: '-1'},
        // Paper has the name on top of each of her pages, and this in the place of the heading.
        element('div', {class: 'pageHead', 'aria-hidden': 'true'}, element('p', {dir: 'auto'}, this.ship.name)),
        this.head(), this.words, this.damagePart(), this.drawingPart(svg), this.systemsPart(), this.notes.element);
    }

    get marks() {
        return this.game.state.ships[this.index];
    }

    head() {
        const figures = element('dl', {class: 'figures'});
        for (const [label, value] of this.sheet.figures) {
            const shown = element('dd', {dir: 'auto'}, value);
            this.values.set(label, {shown, value});
            figures.append(element('div', {}, element('dt', {}, label), shown));
        }
        const {kind, designer} = this.sheet;
        const lines = [element('h2', {dir: 'auto'}, this.ship.name),
            element('p', {class: 'kind', dir: 'auto'}, kind + (designer ? ', by ' + isolated(designer) : ''))];
        if (this.ship.notes) {
            lines.push(element('p', {class: 'owner', dir: 'auto'}, this.ship.notes));
        }
        return element('div', {class: 'head'}, ...lines, figures);
    }

    damagePart() {
        const hit = button({class: 'hit'}, () => this.track.hit(), 'Hit: next box');
        return element('div', {class: 'damage'},
            element('div', {class: 'heading'}, element('h3', {}, 'Damage'), hit), this.track.element);
    }

    drawingPart(svg) {
        const holder = element('div', {class: 'drawing'}, svg);
        const [width] = this.sheet.size;
        // So large that the picture of a system is as large as a finger.
        svg.style.setProperty('--finger-width', (width * 44 / 32) + 'px');
        const larger = button({'aria-pressed': 'false'}, () => {
            const isLarger = holder.classList.toggle('large');
            larger.setAttribute('aria-pressed', String(isLarger));
        }, 'Enlarge');
        return element('div', {class: this.sheet.boxes.length > 0 ? 'sheet withTrack' : 'sheet'},
            element('h3', {class: 'unseen'}, 'Drawing'),
            element('div', {class: 'heading'}, element('p', {class: 'hint'}, 'Tap a system or a damage box.'), larger),
            holder);
    }

    systemsPart() {
        const list = element('ul', {class: 'systems', 'aria-label': 'Systems'});
        for (const system of this.sheet.systems) {
            const pieces = element('div', {class: 'pieces'});
            for (let piece = system.first; piece < system.first + system.count; ++piece) {
                const made = button({class: 'piece', 'aria-haspopup': 'dialog'}, () => this.choose(piece));
                this.pieces.push(made);
                pieces.append(made);
            }
            const name = system.name + (system.count > 1 ? ' \u00d7 ' + system.count : '');
            const text = element('div', {class: 'text'}, element('strong', {dir: 'auto'}, name));
            for (const line of [system.particulars, system.rules]) {
                if (line) {
                    text.append(element('p', {dir: 'auto'}, line));
                }
            }
            const printed = element('p', {class: 'printed'});
            this.printed.push(printed);
            text.append(printed);
            const picture = system.picture ? systemPicture(system.picture) : element('span', {class: 'picture'});
            list.append(element('li', {}, picture, text, pieces));
        }
        return element('div', {class: 'aboard'}, element('h3', {class: 'unseen'}, 'Systems'), list);
    }

    crossOff(crossed) {
        const {damage, systems} = this.marks;
        const after = {damage: [...crossed].sort((a, b) => a - b), systems};
        this.game.act(crossingWords(this.sheet, this.ship.name, damage, after), {ship: this.index, ...after});
    }

    mark(piece, kind) {
        const {damage, systems} = copyOf(this.marks);
        delete systems[piece];
        if (kind) {
            systems[piece] = kind;
        }
        this.game.act(markingWords(this.sheet, this.ship.name, piece, kind), {ship: this.index, damage, systems});
    }

    show() {
        const {damage, systems, notes} = this.marks;
        this.track.show(damage);
        this.drawing.show(damage, systems);
        this.words.replaceChildren(...shipWords(this.sheet, this.marks).map((line) => element('li', {dir: 'auto'}, line)));
        this.pieces.forEach((made, piece) => {
            const system = this.sheet.systemOf[piece], kind = systems[piece] || '';
            const number = system.count === 1 ? '' : String(piece - system.first + 1);
            made.className = 'piece ' + kind;
            made.textContent = kind ? kindWords[kind] : number || 'whole';
            made.setAttribute('aria-pressed', String(kind !== ''));
            made.setAttribute('aria-label', pieceName(system, piece) + ': ' + (kind ? kindWords[kind] : 'whole'));
            if (system.figure && this.values.has(system.figure)) {
                const {shown, value} = this.values.get(system.figure);
                shown.textContent = value + (kind ? ' (' + kindWords[kind] + ')' : '');
            }
        });
        this.element.classList.toggle('lost', isLost(this.sheet, this.marks));
        this.printed.forEach((shown, i) => (shown.textContent = pieceWords(this.sheet.systems[i], this.marks)));
        showNotes(this.notes, notes);
    }
}
