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
    return fleet;
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
        new ResizeObserver(() => this.keepBarHeight()).observe(byId('bar'));
        window.matchMedia('(prefers-color-scheme: dark)').addEventListener('change', () => this.showTheme());
        this.showTheme();
    }

    // For what stays below the bar.
    keepBarHeight() {
        document.documentElement.style.setProperty('--bar', byId('bar').offsetHeight + 'px');
    }

    makeTab(ship, index) {
        const tab = button({role: 'tab', class: 'tab', id: 'tab' + index, 'aria-controls': 'panel' + index},
            () => this.choosePanel(index));
        tab.append(element('span', {class: 'name', dir: 'auto'}, ship.name), element('span', {class: 'left'}));
        return tab;
    }

    // Made when it is first wanted: a fleet may have many.
    panel(index) {
        if (!this.panels[index]) {
            const svg = this.drawings[this.fleet.ships[index].sheetIndex].cloneNode(true);
            const made = new ShipPanel(this.game, index, svg, (piece) => this.chooseMark(index, piece));
            made.element.hidden = index !== this.current;
            this.panels[index] = made;
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
        const steps = {ArrowLeft: -1, ArrowUp: -1, ArrowRight: 1, ArrowDown: 1};
        if (event.key in steps) {
            event.preventDefault();
            const count = this.tabs.length;
            this.choosePanel((this.current + steps[event.key] + count) % count);
            this.tabs[this.current].focus();
        }
    }

    pressKey(event) {
        const isText = event.target instanceof HTMLTextAreaElement;
        if (isText || byId('chooser').open || !(event.ctrlKey || event.metaKey)) {
            return;
        }
        const key = event.key.toLowerCase();
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
        byId('menu').hidden = !isOpen;
        byId('more').setAttribute('aria-expanded', String(isOpen));
    }

    startAnew() {
        this.game.act('New game', freshState(this.fleet));
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
            byId('said').textContent = words;
        }
        try {
            keepGame(this.game);
            byId('notice').hidden = true;
        } catch (error) {
            this.notice('This browser keeps nothing of this page. Before you close it, save the game to a file: More, Save to File.');
        }
    }

    notice(words) {
        byId('notice').textContent = words;
        byId('notice').hidden = false;
    }

    show() {
        const {state} = this.game;
        byId('turn').textContent = 'Turn ' + state.turn;
        byId('turnBack').disabled = state.turn <= 1;
        byId('undo').disabled = !this.game.canUndo;
        byId('redo').disabled = !this.game.canRedo;
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
                byId('said').textContent = 'The game goes on where it was.';
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
        byId('said').textContent = 'Saved as ' + fileNameOf(this.game) + ', where this browser puts what it saves.';
        this.openMenu(false);
    }

    async load() {
        const [file] = byId('file').files;
        if (!file) {
            return;
        }
        try {
            await loadGame(this.game, file);
            byId('notice').hidden = true;
            this.openMenu(false);
        } catch (error) {
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
