#!/usr/bin/env python3
"""Reads ships back from their sheets: from the file that PDF, SVG and PNG sheets carry, and from the
design code on PDF and SVG pages, as a scanner of 150 dots to the inch sees them. It takes all sample
ships and others at random: shipsFromSheets.py TOOL PICTURES_FOLDER CARRIED SCANNED [SEED].

Of the random ships CARRIED are read from files, SCANNED of them from pages as well, and as many of the
sample ships, all of which must have a code there; with 0, no page is looked at. The tests take few;
10000 and 1000 take ten minutes of a quiet machine.
"""

import random
import subprocess
import sys
import tempfile
from pathlib import Path

sys.path.append(str(Path(__file__).resolve().parents[1] / "play"))
from toolFolder import tool_folder  # noqa: E402

FORMATS = ("pdf", "svg", "png")
AT_ONCE = 500  # ships, so that thousands take no room on the disk
SCANNER = ["zbarimg", "--nodbus", "-q", "--raw", "-Sdisable", "-Sqrcode.enable"]
HULLS = ("Warship", "Merchant", "Q-Ship", "Starbase", "Space Station", "Q-Space Station")
PIECES = ("a", "Z", " ", "'", '"', "<", ">", "&", "&#65;", "]]>", "-->", "%%EOF", "%", "=", ":", ",",
          "(", "\\", "ü", "–", "ﬁ", "Ж", "א", "س", "ไ", "巡", "🚀")


class Tool:
    """The command line tool over the delivered application folder."""

    def __init__(self, tool, pictures, work):
        app = tool_folder(work, tool, pictures)
        self.ships = sorted((app / "ships").glob("*.shp"))
        records = (app / "weaps.dat").read_text(encoding="utf-8").splitlines()
        self.systems = [record.split(",")[0] for record in records
                        if record.count(",") == 6 and not record.startswith(("#", "CATEGORY,"))]
        self._start = [tool, "--app", app]

    def sheets(self, ships, folder):
        """Those of ships that no map has room for are not made, and said on standard error."""
        for kind in FORMATS:
            subprocess.run([*self._start, "sheet", *ships, "-o", folder, "--format", kind],
                           stderr=subprocess.DEVNULL, check=False)

    def codes(self, files):
        """What is in a ship file to the last character, as one line each. Systems that a ship cannot have are not
        in it, and said on standard error."""
        run = subprocess.run([*self._start, "code", *files], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                             check=False)
        return run.stdout.decode().splitlines()


def any_ship(systems):
    """The file of a ship of any kind; whether it makes sense is no matter here."""
    def name():
        return "".join(random.choice(PIECES) for _ in range(random.randint(0, 12)))
    mass = int(2 * 1.02 ** random.randint(0, 280))
    lines = [f"Ship Name: {name()}", f"Designer Name: {name()}", f"Mass: {mass}",
             f"Thrust: {random.randint(0, 8)}", f"Type: {random.choice(HULLS)}",
             f"Armor: Level {random.randint(0, 2)}",
             f"Streamlining: {random.choice(('None', 'Partial', 'Full'))}",
             f"FTL: {random.choice(('None', 'Normal', 'Tug'))}"]
    for system in random.sample(systems, random.randint(0, 3 + min(mass // 8, 12))):
        lines.append(f"System: {system}, {random.choice((1, 1, 1, 2, 3))}")
    return "\r\n".join(lines) + "\r\n"


def scanned(sheets, folder):
    """The codes that a scanner finds on the first pages of sheets."""
    for sheet in sheets:
        if sheet.suffix == ".pdf":
            command = ["pdftoppm", "-r", "150", "-l", "1", "-gray", "-singlefile", sheet, folder / sheet.stem]
        else:
            command = ["rsvg-convert", "-d", "150", "-p", "150", sheet, "-o", folder / f"{sheet.stem}.png"]
        subprocess.run(command, check=True)
    pages = sorted(folder.iterdir())
    run = subprocess.run([*SCANNER, *pages], stdout=subprocess.PIPE, check=False)
    for page in pages:
        page.unlink()
    return run.stdout.decode().splitlines()


def has_code(sheet):
    """Whether a page shows a code: there may be no room, or too much for one."""
    if sheet.suffix == ".svg":
        return "DESIGN CODE" in sheet.read_text(encoding="utf-8")
    return b"DESIGN CODE" in subprocess.run(["pdftotext", "-l", "1", sheet, "-"],
                                            stdout=subprocess.PIPE, check=True).stdout


def read_back(tool, ships, looks, scans, work):
    """Says how many sheets were made and how many of the pages looked at have a code, of which so many are
    scanned, and what is wrong with them."""
    with tempfile.TemporaryDirectory(dir=work) as made, tempfile.TemporaryDirectory(dir=work) as pages:
        tool.sheets(ships, made)
        code_of = dict(zip((ship.stem for ship in ships), tool.codes(ships), strict=True))
        counts, faults = [], []
        for kind in FORMATS:
            sheets = [sheet for ship in ships if (sheet := Path(made, f"{ship.stem}.{kind}")).exists()]
            for sheet, code in zip(sheets, tool.codes(sheets) if sheets else [], strict=True):
                if code != code_of[sheet.stem]:
                    faults.append(f"{sheet.name} carries {code} instead of {code_of[sheet.stem]}")
            counts.append(len(sheets))
            coded = [sheet for sheet in sheets[:looks] if kind != "png" and has_code(sheet)]
            read = random.sample(coded, min(scans, len(coded)))
            wanted = sorted(code_of[sheet.stem] for sheet in read)
            if read and kind != "png":
                found = sorted(scanned(read, Path(pages)))
                faults += [f"{kind} page misread: {code}" for code in set(wanted) ^ set(found)]
                if len(wanted) != len(found):
                    faults.append(f"{len(found)} codes on {len(wanted)} {kind} pages")
            if looks and kind != "png":
                counts.append(len(coded))
    return counts, faults


def main():
    carried, scans = int(sys.argv[3]), int(sys.argv[4])
    seed = sys.argv[5] if len(sys.argv) > 5 else str(random.SystemRandom().randrange(10**9))
    random.seed(seed)
    print(f"seed {seed}")
    faults = []
    with tempfile.TemporaryDirectory() as folder:
        work = Path(folder)
        tool = Tool(*(Path(word).resolve() for word in sys.argv[1:3]), work)
        counts, found = read_back(tool, tool.ships, len(tool.ships) if scans else 0, scans, work)
        print(f"sample ships: sheets as PDF, with a code; as SVG, with a code; as PNG: {counts}", flush=True)
        faults += found
        if counts[:-1] != [len(tool.ships)] * (4 if scans else 2):
            faults.append("a sample ship has no sheet or no code on it")
        for start in range(0, carried, AT_ONCE):
            with tempfile.TemporaryDirectory(dir=work) as place:
                ships = [Path(place, f"{i}.shp") for i in range(min(AT_ONCE, carried - start))]
                for ship in ships:
                    ship.write_bytes(any_ship(tool.systems).encode())
                looks = max(0, min(AT_ONCE, scans - start))
                counts, found = read_back(tool, ships, looks, looks, work)
            print(f"random ships {start + 1} to {start + len(ships)}: {counts}", flush=True)
            faults += found
            if counts[0] < len(ships) // 2:
                faults.append("too few of them have a sheet")
    print(*faults, sep="\n")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
