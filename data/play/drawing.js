'use strict';

// The drawing of a sheet: what a tap on it means, and the marks on it.

const svgNames = 'http://www.w3.org/2000/svg';
const reach = 24;  // of a finger beside what it means, in pixels of the screen

function svgElement(name, attributes) {
    const made = document.createElementNS(svgNames, name);
    for (const [key, value] of Object.entries(attributes)) {
        made.setAttribute(key, value);
    }
    return made;
}

// A picture by the id of its definition, pixels of which there are 32 to each side.
function systemPicture(id) {
    const svg = svgElement('svg', {viewBox: '0 0 32 32', class: 'picture', 'aria-hidden': 'true'});
    svg.append(svgElement('use', {href: '#' + id}));
    return svg;
}

// How far a point is from a place [x, y, width, height].
function distanceTo([x, y, width, height], point) {
    const dx = Math.max(x - point.x, 0, point.x - x - width);
    const dy = Math.max(y - point.y, 0, point.y - y - height);
    return Math.hypot(dx, dy);
}

// What a mark of this kind looks like over a place: shapes differ, not only colours.
function markPath(kind, [x, y, width, height]) {
    const inset = width / 16;
    const left = x + inset, right = x + width - inset;
    const top = y + inset, bottom = y + height - inset, middle = y + height / 2;
    const falling = `M${left} ${top}L${right} ${bottom}`;
    const rising = `M${left} ${bottom}L${right} ${top}`;
    switch (kind) {
    case 'damaged':
        return rising;
    case 'used':
        return `M${left} ${middle}L${right} ${middle}`;
    default:
        return falling + rising;
    }
}

class Drawing {
    // `chooseSystem` and `crossBox` are called with the number of what is tapped.
    constructor(sheet, svg, chooseSystem, crossBox) {
        this.sheet = sheet;
        this.svg = svg;
        this.marks = svgElement('g', {class: 'marks'});
        svg.append(this.marks);
        svg.setAttribute('aria-hidden', 'true');
        svg.addEventListener('click', (event) => {
            const target = this.nearest(event);
            if (target) {
                (target.isBox ? crossBox : chooseSystem)(target.number);
            }
        });
    }

    // What lies nearest to a tap, if it is near enough.
    nearest(event) {
        const seen = this.svg.getBoundingClientRect();
        const scale = seen.width / this.sheet.size[0];
        const point = {x: (event.clientX - seen.left) / scale, y: (event.clientY - seen.top) / scale};
        let best = null, least = reach / scale;
        const look = (number, place, isBox) => {
            const distance = distanceTo(place, point);
            if (distance < least || (distance === 0 && least === 0)) {
                least = distance;
                best = {number, isBox};
            }
        };
        this.sheet.boxes.forEach((place, box) => look(box, place, true));
        // Later ones lie above earlier ones.
        this.sheet.pieces.forEach(([piece, place]) => look(piece, place, false));
        return best;
    }

    show(damage, systems) {
        const shown = [];
        for (const box of damage) {
            if (box < this.sheet.boxes.length) {
                shown.push(svgElement('path', {class: 'crossed', d: markPath('', this.sheet.boxes[box])}));
            }
        }
        for (const [piece, place] of this.sheet.pieces) {
            const kind = systems[piece];
            if (kind) {
                shown.push(svgElement('path', {class: 'halo', d: markPath(kind, place)}));
                shown.push(svgElement('path', {class: kind, d: markPath(kind, place)}));
            }
        }
        this.marks.replaceChildren(...shown);
    }
}
