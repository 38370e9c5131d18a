'use strict';

// The page: its ships, its buttons, and what they do.

function byId(id) {
    return document.getElementById(id);
}

// The fleet that the file holds, with what follows from it.
function readFleet() {
    const fleet = JSON.parse(byId('data').textContent);
    for (const sheet of fleet.sheets) {
        sheet.boxCount = sheet.rows.reduce((sum, length) => sum + length, 0);
        sheet.systemOf = [];
        for (const system of sheet.systems) {
            system.first = sheet.systemOf.length;
            for (let i = 0; i < system.count; ++i) {
                sheet.systemOf.push(system);
            }
        }
    }
    for (const ship of fleet.ships) {
        ship.sheetIndex = ship.sheet;
        ship.sheet = fleet.sheets[ship.sheet];
        ship.boxCount = ship.sheet.boxCount;
        ship.pieceCount = ship.sheet.systemOf.length;
    }
    numberNames(fleet.ships);
    return fleet;
}

// Tells ships of one name apart.
function numberNames(ships) {
    const names = ships.map((ship) => ship.name);
    const taken = new Set(names);
    ships.forEach((ship, index) => {
        if (names.indexOf(ship.name) !== names.lastIndexOf(ship.name)) {
            let number = names.slice(0, index + 1).filter((name) => name === names[index]).length;
            while (taken.has(names[index] + ' (' + number + ')')) {
                ++number;
            }
            ship.name = names[index] + ' (' + number + ')';
            taken.add(ship.name);
        }
    });
}

class Page {
    constructor() {
        this.game = new Game(readFleet(), (words) => this.follow(words));
        this.fleet = this.game.fleet;
        this.drawings = byId('drawings').content.querySelectorAll('svg');
        this.panels = this.fleet.ships.map(() => null);
        this.current = 0;
        this.tabs = this.fleet.ships.map((ship, i) => this.makeTab(ship, i));
        byId('tabs').append(...this.tabs);
        this.notes = notesBox('Notes of the fleet', '', (text) => this.game.note(null, text));
        byId('fleetNotes').append(this.notes.element);
        this.writeHead();
        this.listen();
        this.fetch();
        this.choosePanel(fetchShip(this.fleet));
    }

    writeHead() {
        const {name, player, notes} = this.fleet;
        document.title = name || 'Fleet';
        byId('fleetName').textContent = name || 'Fleet';
        for (const line of [notes, player && 'Player: ' + isolated(player)]) {
            if (line) {
                byId('fleetNotes').prepend(element('p', {class: 'owner', dir: 'auto'}, line));
            }
        }
    }

    listen() {
        const acts = {
            turnBack: () => this.turnTo(this.game.state.turn - 1),
            turnOn: () => this.turnTo(this.game.state.turn + 1),
            undo: () => this.lookAt(this.game.undo()),
            redo: () => this.lookAt(this.game.redo()),
            more: () => this.openMenu(byId('menu').hidden),
            save: () => this.save(),
            load: () => byId('file').click(),
            print: () => window.print(),
            newGame: () => this.startAnew(),
            theme: () => this.nextTheme(),
        };
        for (const [id, act] of Object.entries(acts)) {
            byId(id).addEventListener('click', act);
        }
        byId('file').addEventListener('change', () => this.load());
        byId('tabs').addEventListener('keydown', (event) => this.moveTab(event));
        window.addEventListener('beforeprint', () => this.panels.forEach((panel, i) => this.panel(i).show()));
        window.addEventListener('storage', (event) => this.fetchFromOther(event));
        document.addEventListener('keydown', (event) => this.pressKey(event));
        const dialog = byId('chooser');
        dialog.addEventListener('click', (event) => event.target === dialog && dialog.close());
        this.theme = 'auto';
        try {
            this.theme = window.localStorage.getItem('FleetWright theme') || 'auto';
        } catch (error) {
            // The desktop's own, then.
        }
        this.keepHeights();
        window.matchMedia('(prefers-color-scheme: dark)').addEventListener('change', () => this.showTheme());
        this.showTheme();
        this.wide = window.matchMedia('(min-width: 1000px)');
        this.wide.addEventListener('change', () => this.showOrientation());
        this.showOrientation();
    }

    // For what has to be seen between that which stays where it is: the focus, above all.
    keepHeights() {
        const parts = ['bar', 'tabs', 'said'].map(byId);
        const observer = new ResizeObserver(() => {
            for (const part of parts) {
                document.documentElement.style.setProperty('--' + part.id, part.offsetHeight + 'px');
            }
            const focused = document.activeElement;
            if (focused && focused.matches(':focus-visible')) {
                focused.scrollIntoView({block: 'nearest'});
            }
        });
        parts.forEach((part) => observer.observe(part));
    }

    showOrientation() {
        byId('tabs').setAttribute('aria-orientation', this.wide.matches ? 'vertical' : 'horizontal');
    }

    makeTab(ship, index) {
        const tab = button({role: 'tab', class: 'tab', id: 'tab' + index}, () => this.choosePanel(index));
        // A number at its end is seen of a name that is too long, too.
        const [, start, number] = /^(.*?)( \(?[0-9]+\)?)?$/s.exec(ship.name);
        tab.append(element('span', {class: 'name', dir: 'auto'},
            element('span', {class: 'start'}, start), element('span', {class: 'number'}, number || '')),
        element('span', {class: 'left'}));
        return tab;
    }

    // Made when it is first wanted: a fleet may have many.
    panel(index) {
        if (!this.panels[index]) {
            const svg = this.drawings[this.fleet.ships[index].sheetIndex].cloneNode(true);
            const made = new ShipPanel(this.game, index, svg, (piece) => this.chooseMark(index, piece));
            made.element.hidden = index !== this.current;
            this.panels[index] = made;
            this.tabs[index].setAttribute('aria-controls', made.element.id);
            const next = this.panels.find((panel, i) => i > index && panel);
            byId('panels').insertBefore(made.element, next ? next.element : null);
        }
        return this.panels[index];
    }

    choosePanel(index) {
        this.current = index;
        keepShip(this.fleet, index);
        this.panel(index);
        this.panels.forEach((panel, i) => panel && (panel.element.hidden = i !== index));
        this.tabs.forEach((tab, i) => {
            tab.setAttribute('aria-selected', String(i === index));
            tab.tabIndex = i === index ? 0 : -1;
        });
        this.tabs[index].scrollIntoView({block: 'nearest', inline: 'nearest'});
        this.show();
    }

    moveTab(event) {
        const count = this.tabs.length, last = count - 1, from = this.current;
        const targets = {ArrowLeft: from - 1, ArrowUp: from - 1, ArrowRight: from + 1, ArrowDown: from + 1,
            Home: 0, End: last};
        if (event.key in targets) {
            event.preventDefault();
            this.choosePanel((targets[event.key] + count) % count);
            this.tabs[this.current].focus();
        }
    }

    pressKey(event) {
        const isText = event.target instanceof HTMLTextAreaElement;
        const isOpen = byId('chooser').open;
        if (event.key === 'Escape' && !isOpen && !event.isComposing) {
            this.openMenu(false);
        }
        if (isText || isOpen || event.altKey || !(event.ctrlKey || event.metaKey)) {
            return;
        }
        // Keyboards of other letters have the key at its place.
        const key = /^[ -~]$/.test(event.key) ? event.key.toLowerCase() : event.code.replace('Key', '').toLowerCase();
        if (key === 'z' || key === 'y') {
            event.preventDefault();
            this.lookAt(key === 'y' || event.shiftKey ? this.game.redo() : this.game.undo());
        }
    }

    // Shows the ship that a part of the game is about.
    lookAt(part) {
        if (part && 'ship' in part && part.ship !== this.current) {
            this.choosePanel(part.ship);
        }
    }

    openMenu(isOpen) {
        const menu = byId('menu');
        if (!isOpen && menu.contains(document.activeElement)) {
            byId('more').focus();
        }
        menu.hidden = !isOpen;
        byId('more').setAttribute('aria-expanded', String(isOpen));
    }

    startAnew() {
        if (!this.game.act('New game', freshState(this.fleet))) {
            this.say('Nothing has been marked or noted: this is a new game.');
        }
        this.openMenu(false);
    }

    turnTo(turn) {
        if (turn >= 1 && turn <= mostTurns) {
            this.game.act('Turn ' + turn, {turn});
        }
    }

    // Lets the player choose how a piece is marked.
    chooseMark(index, piece) {
        const {sheet, name} = this.fleet.ships[index];
        const system = sheet.systemOf[piece];
        const dialog = byId('chooser');
        const now = this.game.state.ships[index].systems[piece] || '';
        const choices = ['destroyed', 'damaged', 'used', ''].map((kind) => {
            const words = kind ? kindWords[kind] : 'whole';
            return button({class: 'choice ' + kind, 'aria-pressed': String(kind === now)}, () => {
                dialog.close();
                this.panel(index).mark(piece, kind);
            }, words[0].toUpperCase() + words.slice(1));
        });
        const lines = [system.particulars, system.rules].filter((line) => line);
        dialog.replaceChildren(
            element('h2', {id: 'chooserName', dir: 'auto'}, pieceName(system, piece)),
            element('p', {class: 'kind', dir: 'auto'}, name),
            ...lines.map((line) => element('p', {dir: 'auto'}, line)),
            element('div', {class: 'choices'}, ...choices),
            button({class: 'cancel'}, () => dialog.close(), 'Cancel'));
        dialog.showModal();
        choices[now ? 3 : 0].focus();
    }

    // Behind each change of the game.
    follow(words) {
        this.show();
        if (words) {
            this.say(words);
        }
        try {
            keepGame(this.game);
            byId('notice').hidden = true;
        } catch (error) {
            this.notice('This browser keeps nothing of this page. Before you close it, save the game to a file: More, Save to File.');
        }
    }

    say(words) {
        byId('said').textContent = words;
    }

    notice(words) {
        byId('notice').textContent = words;
        byId('notice').hidden = false;
    }

    show() {
        const {state} = this.game;
        byId('turn').textContent = 'Turn ' + state.turn;
        const can = {turnBack: state.turn > 1, turnOn: state.turn < mostTurns,
            undo: this.game.canUndo, redo: this.game.canRedo};
        for (const [id, isPossible] of Object.entries(can)) {
            // A button that is disabled altogether would lose the focus.
            byId(id).setAttribute('aria-disabled', String(!isPossible));
        }
        this.tabs.forEach((tab, i) => {
            const {sheet} = this.fleet.ships[i], marks = state.ships[i];
            tab.querySelector('.left').textContent = shortWords(sheet, marks);
            tab.classList.toggle('lost', isLost(sheet, marks));
        });
        showNotes(this.notes, state.notes);
        this.panel(this.current).show();
    }

    fetch() {
        try {
            if (fetchGame(this.game)) {
                this.say('The game goes on where it was.');
            } else {
                keepGame(this.game);
            }
        } catch (error) {
            this.game.forget();
            this.notice('This browser keeps nothing of this page, or what it has kept is damaged. ' +
                'The game begins anew. Save it to a file: More, Save to File.');
        }
    }

    // The same fleet is played in another window, too.
    fetchFromOther(event) {
        if (event.key === storageKey(this.fleet) && event.newValue !== null) {
            this.fetch();
            this.show();
        }
    }

    save() {
        saveGame(this.game);
        this.say('Saved as ' + fileNameOf(this.game) + ', where this browser puts what it saves.');
        this.openMenu(false);
    }

    async load() {
        const [file] = byId('file').files;
        if (!file) {
            return;
        }
        try {
            if (!await loadGame(this.game, file)) {
                this.say('Loaded ' + isolated(file.name) + ', which is the game as it is already.');
            }
            byId('notice').hidden = true;
            this.openMenu(false);
        } catch (error) {
            this.say('');
            this.notice('The file ' + isolated(file.name) + ' is not loaded: ' + error.message + '.');
        }
        byId('file').value = '';
    }

    nextTheme() {
        const themes = ['auto', 'light', 'dark'];
        this.theme = themes[(themes.indexOf(this.theme) + 1) % themes.length];
        try {
            window.localStorage.setItem('FleetWright theme', this.theme);
        } catch (error) {
            // It is that of this time only.
        }
        this.showTheme();
    }

    showTheme() {
        const isDark = this.theme === 'dark' ||
            (this.theme !== 'light' && window.matchMedia('(prefers-color-scheme: dark)').matches);
        document.documentElement.dataset.theme = isDark ? 'dark' : 'light';
        byId('theme').textContent = 'Colors: ' + ({light: 'light', dark: 'dark'}[this.theme] || 'as the device');
    }
}

new Page();
