"""Plays a fleet in a browser as its owner does: playTest.py TOOL PICTURES_FOLDER."""

import base64
import json
import pathlib
import subprocess
import sys
import time

from Browser import Browser
from toolFolder import make_page, tool_folder

SHIPS = ["<b>One</b>", "<img src=x onerror=alert(1)>", "\u202e</script><script>alert(2)</script>\u2028"]
GREAT_SHIPS = ["Anvil-Roads", "Weigh-Station-Nine", "Widow-Tarrant", "Deep-Undertow", "Monitor-Ironmonger",
               "Cold-Harbor-Fort", "Queen-of-Sevens", "Halfway-Market", "Far-Pasture", "Emperors-Patience"]
faults = []


def expect(seen, wanted, what):
    if seen != wanted:
        faults.append(f"{what}: {seen!r} instead of {wanted!r}")


def plain(text):
    """Without what keeps the writing's direction of a name to it."""
    return text.replace("\u2068", "").replace("\u2069", "")


def words():
    return plain(browser.run("[...document.querySelectorAll('.ship:not([hidden]) .words li')]"
                       ".map(e => e.textContent).join('|')"))


def said():
    return plain(browser.run("document.getElementById('said').textContent"))


def crossed():
    return browser.run("[...document.querySelectorAll('.ship:not([hidden]) .box')]"
                       ".map(e => e.getAttribute('aria-pressed') === 'true' ? 'x' : '.').join('')")


def shown(css):
    return f"document.querySelector('.ship:not([hidden]) {css}')"


def box(number):
    return f"document.querySelectorAll('.ship:not([hidden]) .box')[{number}]"


def by_id(name):
    return f"document.getElementById('{name}')"


def choose(kind, tap):
    """Taps a piece and chooses its mark. On a busy machine a tap can last so long that it is none."""
    is_open = "document.getElementById('chooser').open"
    for _ in range(5):
        tap()
        if browser.becomes(is_open, 3):
            break
    browser.wait_for(is_open)
    browser.tap(f"[...document.querySelectorAll('#chooser .choice')].find(e => e.textContent === '{kind}')")


def tap_drawn(list_name, number):
    """Where the drawing shows a damage box or a piece."""
    browser.tap_at(browser.run(f"""(() => {{
        const svg = {shown('.drawing svg')};
        svg.scrollIntoView({{block: 'center'}});
        const sheet = JSON.parse(document.getElementById('data').textContent).sheets[0];
        const place = sheet.{list_name}[{number}];
        const [x, y, width, height] = Array.isArray(place[1]) ? place[1] : place;
        const seen = svg.getBoundingClientRect(), scale = seen.width / sheet.size[0];
        return [seen.left + (x + width / 2) * scale, seen.top + (y + height / 2) * scale];
    }})()"""))


def lost():
    browser.tap("document.querySelectorAll('.tab')[1]")
    for _ in range(8):
        browser.tap(shown(".hit"))
    expect(words(), "Lost: no damage point left", "a ship that is lost")
    browser.tap("document.querySelectorAll('.tab')[0]")


def damage_boxes():
    browser.tap(box(2))
    expect(crossed(), "..x.....", "a tap on the third box")
    expect(words(), "7 of 8 damage points left, 2 of 2 rows left|All systems work", "words of a box")
    first, last = browser.middle_of(box(0)), browser.middle_of(box(3))
    browser.tap_at(first, [(first[0] + last[0]) / 2 - 22, first[1]], [first[0] + 44, first[1]], last)
    expect(crossed(), "xxxx....", "a finger drawn over the first row")
    expect(said(), "<b>One</b>: 3 damage points. 4 of 8 damage points left, 1 of 2 rows left. "
                   "A row is full: 1 system fails", "what a full row means")
    browser.tap(box(0))
    expect(crossed(), ".xxx....", "a tap on a crossed box")
    tap_drawn("boxes", 7)
    expect(crossed(), ".xxx...x", "a tap on a box of the drawing")
    browser.tap(shown(".hit"))
    expect(crossed(), "xxxx...x", "a hit")
    x, y = browser.middle_of(box(6))
    browser.tap_at((x, y), (x, y - 30), (x, y - 90), (x, y - 150))
    expect(crossed(), "xxxx...x", "a finger that scrolls")
    browser.run(f"{box(3)}.focus()")
    browser.press("ArrowRight", "ArrowRight", 39)
    browser.press(" ", "Space", 32)
    expect(crossed(), "xxxxx..x", "arrow and blank")


def systems():
    def first_piece():
        tap_drawn("pieces", 0)

    def thrust():
        browser.tap("[...document.querySelectorAll('.piece')].find(e => e.ariaLabel.includes('Thrust'))")

    choose("Destroyed", first_piece)
    name = browser.run(f"{by_id('said')}.textContent.split('\\u2068')[2].split('\\u2069')[0]")
    expect(words().split("|")[1], f"Destroyed: {name}", "a system destroyed on the drawing")
    choose("Damaged", thrust)
    expect(browser.run(f"{shown('.figures')}.innerText").count("(damaged)"), 1, "the thrust in the head")
    choose("Whole", first_piece)
    expect(words().split("|")[1], "Damaged: Thrust Drive 6", "a system whole again")
    expect(browser.run(f"{shown('.marks')}.querySelectorAll('path.damaged').length"), 1, "marks on the drawing")
    choose("Used up", first_piece)
    expect(words().split("|")[1:], ["Damaged: Thrust Drive 6", "Used up: " + name], "a system used up")
    expect(said(), f"<b>One</b>: {name} is used up", "what is said of it")
    marks = browser.run(f"[...{shown('.marks')}.querySelectorAll('path')].map(e => e.className.baseVal).join()")
    expect(marks.replace("halo,", "").replace("crossed,", ""), "used,damaged", "how it is marked on the drawing")


def undo_and_turns():
    before = words()
    browser.tap(by_id("undo"))
    expect(words() == before, False, "undo")
    browser.tap(by_id("redo"))
    expect(words(), before, "redo")
    for key, wanted in (("z", False), ("y", True)):
        browser.press({"z": "\u044f", "y": "\u043d"}[key], "Key" + key.upper(), ord(key.upper()), control=True)
        expect(words() == before, wanted, f"Ctrl and the key {key} of other letters")
    browser.tap(by_id("turnOn"))
    expect(browser.run(f"{by_id('turn')}.textContent"), "Turn 2", "the turn")
    browser.run(f"{shown('textarea')}.focus()")
    browser.call("Input.insertText", text="<i>Admiral</i> aboard")


def after_reload():
    marks = (words(), crossed())
    browser.reload()
    expect((words(), crossed()), marks, "marks after a reload")
    expect(browser.run(f"{shown('textarea')}.value"), "<i>Admiral</i> aboard", "notes after a reload")
    browser.tap(by_id("undo"))
    expect(browser.run(f"{by_id('turn')}.textContent"), "Turn 1", "undo after a reload")
    browser.tap(by_id("redo"))
    browser.tap("document.querySelectorAll('.tab')[1]")
    browser.reload()
    tabs = "[...document.querySelectorAll('.tab')]"
    expect(browser.run(f"{tabs}.findIndex(e => e.ariaSelected === 'true')"), 1, "the ship after a reload")
    browser.tap("document.querySelectorAll('.tab')[0]")
    return marks


def notes_behind_a_new_game(marks):
    notes = f"{shown('textarea')}.value"
    for act, typed, kept in (("undo", "Rocks ahead", "<i>Admiral</i> aboard"), ("redo", "Boarded", "Rocks ahead"),
                             ("undo", "", "Boarded")):
        if typed:
            browser.run(f"{shown('textarea')}.select()")
            browser.call("Input.insertText", text=typed)
        browser.reload()
        browser.tap(by_id(act))
        expect(browser.run(notes), kept, f"notes behind {act} of a new game")
        expect((words(), crossed()) == marks, act == "undo", f"marks behind {act} of a new game")
    browser.run(f"{shown('textarea')}.select()")
    browser.call("Input.insertText", text="<i>Admiral</i> aboard")


def load(text):
    file = pathlib.Path(browser.folder) / "loaded.json"
    file.write_text(text)
    browser.run(f"{by_id('said')}.textContent = 'old', {by_id('notice')}.textContent = ''")
    browser.choose_file("#file", str(file))
    browser.wait_for("document.getElementById('said').textContent !== 'old'")
    return browser.run("document.getElementById('notice').textContent")


def files(marks):
    browser.tap(by_id("more"))
    expect(browser.run("(scrollTo(0, 1e6), document.getElementById('save').getBoundingClientRect().top > 0)"), True,
           "More on a page that is scrolled")
    browser.tap(by_id("save"))
    saved = pathlib.Path(browser.folder) / "script-alert-1-script-turn-2.json"
    end = time.monotonic() + 20
    while not saved.exists() and time.monotonic() < end:
        time.sleep(0.02)
    text = saved.read_text()
    game = json.loads(text)
    browser.tap(by_id("more"))
    browser.tap(by_id("newGame"))
    expect(crossed(), "........", "a new game")
    expect(browser.run("document.activeElement.id"), "more", "the focus behind the menu")
    notes_behind_a_new_game(marks)
    browser.tap(by_id("more"))
    for wanted in ("New game", "this is a new game"):
        browser.run(f"{by_id('newGame')}.click()")
        expect(wanted in said(), True, f"{wanted} in what is said")
    for wanted in ("Loaded", "as it is already"):
        expect(load(text), "", "loading what was saved")
        expect(wanted in said(), True, f"{wanted} in what is said")
    expect((words(), crossed()), marks, "marks from a file")
    for change, word in ((text[:-9], "damaged"), ("[1]", "no game of a fleet"),
                         (json.dumps({**game, "id": "1-2"}), "another fleet"),
                         (json.dumps({**game, "turn": "2"}), "turn"),
                         (json.dumps({**game, "more": 1}), "has to be"),
                         (text.replace('"damage": [', '"damage": [99,', 1), "box"),
                         (text.replace('"systems": {', '"systems": {"__proto__": "damaged",', 1), "system"),
                         (text.replace('"damaged"', '"constructor"'), "system")):
        expect((word in load(change), said()), (True, ""), f"{word} in what is said of a bad file")
        expect((words(), crossed()), marks, f"marks behind a bad file ({word})")


def printed(width, height):
    """The texts of the pages, of paper in inches."""
    file = pathlib.Path(browser.folder) / "printed.pdf"
    answer = browser.call("Page.printToPDF", preferCSSPageSize=True, paperWidth=width, paperHeight=height)
    file.write_bytes(base64.b64decode(answer["data"]))
    text = subprocess.run(["pdftotext", "-layout", file, "-"], capture_output=True, text=True, check=True).stdout
    return plain(text).split("\f")[:-1]


def paper():
    text = "".join(printed(8.5, 11))
    for wanted in ("Turn 2", "<b>One</b>", "onerror", "Damaged: Thrust Drive 6", "<i>Admiral</i> aboard"):
        expect(wanted in text, True, f"{wanted} on paper")


def paper_of_great_ships():
    for width, height in ((8.5, 11), (8.27, 11.69)):
        expect(len(printed(width, height)), len(GREAT_SHIPS), f"pages of {width} by {height} inches")
    browser.run(f"{shown('textarea')}.focus()")
    browser.call("Input.insertText", text="Long ago\n" * 60)
    pages = printed(8.5, 11)
    expect([page.count("Anvil Roads") for page in pages[:3]], [1, 1, 0], "the name on both pages of a ship")


def keyboard():
    """Nothing that stays where it is covers what has the focus."""
    covered = """(() => {
        const focused = document.activeElement, {x, width, top, bottom} = focused.getBoundingClientRect();
        const seen = [top + 2, bottom - 3].map(y => document.elementFromPoint(x + width / 2, y));
        return focused === document.body || seen.every(e => focused.contains(e)) ? '' :
            focused.outerHTML.slice(0, 80);
    })()"""
    for width, height in ((390, 500), (700, 700), (1200, 520)):
        browser.resize(width, height)
        browser.run(f"{by_id('undo')}.focus()")
        for shift in [False] * 25 + [True] * 25:
            browser.press("Tab", "Tab", 9, shift=shift)
            expect(browser.run(covered), "", f"what is covered at {width}")
    browser.run(f"scrollTo(0, 200), {by_id('undo')}.focus()")
    expect(browser.run("scrollY"), 200, "where the page is scrolled to behind a button that stays")
    browser.run(f"(() => {{ for (let i = 0; i < 300; ++i) {by_id('undo')}.click(); }})()")
    browser.press("Enter", "Enter", 13)
    expect(browser.run("[document.activeElement.id, document.activeElement.ariaDisabled]"), ["undo", "true"],
           "the focus behind the first step of all")


def twins():
    browser.open(red)
    expect(browser.run("[...document.querySelectorAll('.tab .name')].map(e => e.textContent)"),
           ["Twin (1)", "Other", "Twin (2)"], "names of ships of one name")
    browser.tap(box(0))
    browser.open(blue)
    expect((crossed().count("x"), said()), (0, ""), "the game of another player with the same ships")
    browser.call("Emulation.setEmulatedMedia", features=[{"name": "forced-colors", "value": "active"}])
    colors = "[...document.querySelectorAll('.tab')].map(e => getComputedStyle(e).backgroundColor)"
    expect(len(set(browser.run(colors))), 2, "colors of tabs where colors are the player's own")
    browser.call("Emulation.setEmulatedMedia", features=[])


def strangers():
    ships = browser.run("[...document.querySelectorAll('.tab .name')].map(e => e.textContent)")
    expect(ships, [name.replace("\u202e", "\ufffd").replace("\u2028", "\ufffd") for name in SHIPS],
           "names of ships")
    expect(browser.run("document.title"), "<script>alert(1)</script>", "the title")
    expect(browser.run("document.querySelectorAll('img, iframe, b, i, u, script:not([type]) ~ script').length"), 0,
           "elements that nobody has written")
    # What the policy says holds. What it has stopped is told some time later.
    browser.run("""(() => {
        window.blocked = [];
        document.addEventListener('securitypolicyviolation', e => window.blocked.push(e.effectiveDirective));
    })()""")
    expect(browser.run("(() => { try { return eval('1'); } catch (e) { return e.name; } })()"), "EvalError", "eval")
    browser.run("""(() => {
        document.body.insertAdjacentHTML('beforeend', '<p id="bad" onclick="alert(3)"></p>');
        document.getElementById('bad').click();
        document.getElementById('bad').remove();
        const image = new Image();
        image.src = 'http://127.0.0.1:9/picture';
        fetch('http://127.0.0.1:9/').catch(() => {});
        const script = document.createElement('script');
        script.textContent = 'alert(4)';
        document.body.append(script);
        script.remove();
    })()""")
    browser.wait_for("window.blocked.length >= 5")
    expect(sorted(browser.run("window.blocked")),
           ["connect-src", "img-src", "script-src", "script-src-attr", "script-src-elem"],
           "what the policy has stopped")


def fingers():
    for width, height in ((360, 740), (768, 1024), (1280, 800)):
        browser.resize(width, height)
        expect(browser.run("document.documentElement.scrollWidth <= innerWidth"), True, f"no scrolling at {width}")
        small = browser.run("[...document.querySelectorAll('button')].map(e => [e.getBoundingClientRect(), e])"
                            ".filter(([r]) => r.width && (r.width < 38 || r.height < 44))"
                            ".map(([, e]) => e.textContent || e.ariaLabel)")
        expect(small, [], f"small buttons at {width}")
        drawn = f"{shown('.drawing svg')}.getBoundingClientRect().width"
        before = browser.run(drawn)
        browser.tap(shown(".sheet button"))
        expect(browser.run(drawn) > before, True, f"a drawing that is enlarged at {width}")
        browser.tap(shown(".sheet button"))


def without_storage():
    browser.call("Page.addScriptToEvaluateOnNewDocument",
                 source="Object.defineProperty(window, 'localStorage', {get() { throw new Error('no'); }})")
    browser.open(other)
    expect("keeps nothing" in browser.run("document.getElementById('notice').textContent"), True,
           "a word where nothing is kept")
    browser.tap(box(0))
    expect(crossed().count("x"), 1, "a box where nothing is kept")
    fingers()


def make_pages(folder):
    """The page, one of great ships, and those of two players with the same ships."""
    tool, pictures = (pathlib.Path(word).resolve() for word in sys.argv[1:3])
    own = tool_folder(folder, tool, pictures)
    same = ["ship = app/ships/Sparrow-Toll.shp", f"count = {len(SHIPS)}", *(f"named = {ship}" for ship in SHIPS)]
    great = [f"ship = app/ships/{ship}.shp" for ship in GREAT_SHIPS]
    twins = ["ship = app/ships/Sparrow-Toll.shp", "count = 3", "named = Twin", "named = Other", "named = Twin"]
    pages = []
    for name, ships in (("<script>alert(1)</script>", same), ("Great ships", great), ("Great ships", great),
                        ("Twins\nplayer = Red", twins), ("Twins\nplayer = Blue", twins)):
        fleet = folder / "a.fleet"
        fleet.write_text("\n".join(["FleetWright fleet 1", f"name = {name}", "note = <u>All</u>", *ships, ""]))
        pages.append(str(folder / f"page{len(pages)}.html"))
        make_page(tool, own, fleet, pages[-1])
    texts = [pathlib.Path(page).read_bytes() for page in pages]
    expect(texts[1] == texts[2], True, "the same bytes twice")
    expect(len(texts[1]) < 1000000, True, f"ten great ships in a megabyte, which take {len(texts[1])}")
    return pages[:2] + pages[3:]


browser = Browser(768, 1024)
try:
    page, other, red, blue = make_pages(pathlib.Path(browser.folder))
    browser.open(page)
    lost()
    damage_boxes()
    systems()
    undo_and_turns()
    files(after_reload())
    paper()
    fingers()
    keyboard()
    browser.resize(768, 1024)
    expect(browser.complaints, [], "complaints of the browser")
    requests = [url for url in browser.requests if not url.startswith(("file:" + "//" + page, "data:", "blob:"))]
    expect(requests, [], "requests")
    strangers()
    twins()
    without_storage()
    paper_of_great_ships()
    expect(browser.dialogs, [], "dialogs")
except (AssertionError, RuntimeError) as error:
    faults.append(str(error))
finally:
    browser.close()
print("\n".join(faults) or "played")
sys.exit(1 if faults else 0)
