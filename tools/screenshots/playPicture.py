"""Makes a picture of a fleet that is played on a tablet: playPicture.py TOOL PICTURES_FOLDER PICTURE."""

import base64
import pathlib
import sys

sys.path.append(str(pathlib.Path(__file__).resolve().parents[2] / "tests/play"))
from Browser import Browser  # noqa: E402
from toolFolder import make_page, tool_folder  # noqa: E402


def seen(css, number=0):
    return f"document.querySelectorAll('.ship:not([hidden]) {css}')[{number}]"


def mark(piece, kind):
    browser.tap(seen(".piece", piece))
    browser.tap(f"[...document.querySelectorAll('#chooser .choice')].find(e => e.textContent === '{kind}')")


tool, pictures, picture = (pathlib.Path(word).resolve() for word in sys.argv[1:])
browser = Browser(768, 1024)
try:
    folder = pathlib.Path(browser.folder)
    own = tool_folder(folder, tool, pictures)
    make_page(tool, own, own / "fleets/Autumn-Patrol.fleet", folder / "page.html")
    browser.open(str(folder / "page.html"))
    for _ in range(7):
        browser.tap(seen(".hit"))
    for piece, kind in enumerate(("Destroyed", "Used up", "Damaged")):
        mark(piece, kind)
    browser.tap("document.getElementById('turnOn')")
    browser.run("document.activeElement.blur(), scrollTo(0, 0)")
    picture.write_bytes(base64.b64decode(browser.call("Page.captureScreenshot")["data"]))
finally:
    browser.close()
