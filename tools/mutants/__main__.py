"""Changes one place of the sources at a time, as a slip of the hand would, and says which changes
no test catches.

Tries N changes (100) that compile, all others for another SEED (1). Lines of code are drawn at
random, all with the same chance, but those of headers, which many files include, with half of it.
Of the tests, those of the desktop and the browser are left out. Those of the changed folder run
first, and nothing runs behind the first failure. A crash and a hang are failures.

When it is interrupted and started again on the same tree, it goes on.
"""

import argparse
import json
import random
import sys
import time
from collections import Counter
from pathlib import Path

from copied_tree import Copy
from programs import Runner, in_order
from slips import slips_of

HEADER_WEIGHT = 0.5
# What building one test program again may take.
MOST_BUILD_SECONDS = 900


def main():
    options = parse_options()
    tree = Path(__file__).resolve().parents[2]
    place = tree / "build" / "mutants"
    copy = Copy(tree, place)
    runner = Runner(copy.build, place / "scratch")
    results = Results(place / f"{options.folder.replace('/', '-')}-{options.seed}.json",
                      copy.fingerprint())
    programs = ready_programs(copy, runner, results, place / "tests.log")
    tried = []
    for name, slip in draw(copy.sources(options.folder), options.seed):
        if len(tried) == options.count:
            break
        result = results.next()
        if result is None:
            started = time.monotonic()
            outcome = try_slip(copy, runner, programs, name, slip)
            result = {"file": name, "line": slip.line, "kind": slip.kind, **outcome,
                      "seconds": round(time.monotonic() - started, 1),
                      **changed_lines(copy.sources(name.rpartition("/")[0])[name], slip)}
            results.add(result)
        if result["outcome"] in ("caught", "survived"):
            tried.append(result)
            print(f"{len(tried):4} {told(result)}", flush=True)
    report(tried)


def parse_options():
    parser = argparse.ArgumentParser(prog="./dev mutants", description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("count", nargs="?", type=int, default=100, metavar="N")
    parser.add_argument("seed", nargs="?", type=int, default=1, metavar="SEED")
    parser.add_argument("--in", dest="folder", default="src", metavar="FOLDER",
                        help="change only what is below this folder")
    options = parser.parse_args()
    options.folder = options.folder.rstrip("/")
    return options


class Results:
    """What is known of a course of changes to one tree. A course of another tree is forgotten."""

    def __init__(self, path, fingerprint):
        self._path = path
        self.measured = {}
        self._known = []
        self._next = 0
        if path.exists():
            head, *rest = [json.loads(line) for line in path.read_text("utf-8").splitlines()]
            if head["tree"] == fingerprint:
                self.measured, self._known = head["measured"], rest
        self._fingerprint = fingerprint

    def measure(self, program):
        """Notes what a program takes. All programs come before the first change."""
        self.measured[program.name] = (program.seconds, program.cpu_seconds)
        head = json.dumps({"tree": self._fingerprint, "measured": self.measured})
        self._path.write_text(head + "\n", "utf-8")

    def next(self):
        """The result of the next change, or None if it has not been tried yet."""
        self._next += 1
        return self._known[self._next - 1] if self._next <= len(self._known) else None

    def add(self, result):
        with open(self._path, "a", encoding="utf-8") as output:
            output.write(json.dumps(result) + "\n")


def ready_programs(copy, runner, results, log):
    """Builds the copy as it is. All tests must pass there."""
    copy.refresh()
    copy.configure()
    if not copy.make(quietly=False):
        sys.exit("./dev mutants: the tree does not build")
    programs = runner.programs()
    copy.keep_delivered()
    for program in programs:
        program.key = runner.key(program)
        if program.name in results.measured:
            program.seconds, program.cpu_seconds = results.measured[program.name]
        elif program.command:
            if not runner.measure(program, log):
                sys.exit(f"./dev mutants: {program.name} fails without any change, see {log}")
            results.measure(program)
    return programs


def draw(sources, seed):
    """All lines in an order that the seed decides, each with one of its slips."""
    chance = random.Random(seed)
    drawn = []
    for name, source in sources.items():
        weight = HEADER_WEIGHT if name.endswith(".h") else 1
        lines = {}
        for slip in slips_of(source):
            lines.setdefault(slip.line, {}).setdefault(slip.kind, []).append(slip)
        for kinds in lines.values():
            slip = chance.choice(chance.choice(list(kinds.values())))
            drawn.append((chance.random() ** (1 / weight), name, slip))
    drawn.sort(key=lambda entry: -entry[0])
    return [(name, slip) for _, name, slip in drawn]


def try_slip(copy, runner, programs, name, slip):
    """Makes one change in the copy, tests it, and takes it back."""
    path = copy.folder / name
    path.write_text(slip.applied_to(path.read_text("utf-8")), "utf-8")
    is_source = path.suffix == ".cpp"
    try:
        if is_source and not copy.make(f"{path}^"):
            return {"outcome": "does not compile"}
        differs = False
        for program in in_order(programs, name):
            if not copy.make(*program.targets, seconds=MOST_BUILD_SECONDS):
                # A source that compiles has broken a program that the build runs.
                return {"outcome": "caught", "by": "the build"} if is_source else {
                    "outcome": "does not compile"}
            if runner.key(program) == program.key:
                continue
            differs = True
            if program.command and not runner.passes(program):
                return {"outcome": "caught", "by": program.name}
        return {"outcome": "survived" if differs else "changes nothing"}
    finally:
        copy.refresh()
        copy.restore_delivered()


def changed_lines(source, slip):
    first = source.rfind("\n", 0, slip.start) + 1
    last = source.find("\n", slip.end)
    before = source[first:last]
    after = source[first : slip.start] + slip.text + source[slip.end : last]
    return {"before": before, "after": after}


def told(result):
    place = f"{result['file']}:{result['line']}"
    if result["outcome"] == "caught":
        return f"{place}: {result['kind']}, caught by {result['by']}"
    lines = [f"    - {line}" for line in result["before"].splitlines()]
    lines += [f"    + {line}" for line in result["after"].splitlines()]
    return "\n".join([f"{place}: {result['kind']}, NOT CAUGHT", *lines])


def report(tried):
    all_tried, caught = Counter(), Counter()
    for result in tried:
        for folder in ("/".join(result["file"].split("/")[:2]), "all"):
            all_tried[folder] += 1
            caught[folder] += result["outcome"] == "caught"
    print("\nNot caught:")
    for result in tried:
        if result["outcome"] == "survived":
            print(told(result))
    print("\nCaught:")
    for folder in sorted(all_tried, key=lambda folder: (folder == "all", folder)):
        share = 100 * caught[folder] / all_tried[folder]
        print(f"  {folder:14} {caught[folder]:3} of {all_tried[folder]:3}, {share:.0f} %")


if __name__ == "__main__":
    try:
        main()
    except KeyboardInterrupt:
        sys.exit("\n./dev mutants: start again to go on")
