"""The programs that test: which there are, what they need, and how they end."""

import hashlib
import json
import os
import resource
import shutil
import signal
import subprocess
from dataclasses import dataclass, field
from pathlib import Path


@dataclass
class Program:
    """A program that runs tests, or only one that is built when it has no command."""

    name: str
    targets: list
    command: list = field(default_factory=list)
    folder: str = ""  # it runs there
    parts: list = field(default_factory=list)  # it and the programs that it starts
    seconds: float = 0  # that it takes
    cpu_seconds: float = 0
    key: str = ""  # of the parts as nobody has changed them


# What a test may take of the machine, whatever has been changed.
MOST_MEMORY = 6 << 30


class Runner:
    def __init__(self, build, scratch):
        self._build = build
        self._scratch = scratch

    def programs(self):
        """All but those of the desktop and the browser, and what the program is linked of."""
        listed = json.loads(self._output("ctest", "--show-only=json-v1"))
        made = {line.rsplit(":", 1)[0] for line in
                self._output("ninja", "-t", "targets", "all").splitlines()}
        found = {}
        for test in listed["tests"]:
            command = [part for part in test.get("command", []) if not part.startswith("--gtest_")]
            targets = [target for target in (self._target(part) for part in command)
                       if target in made]
            if not targets or test["name"].startswith(("desktop: ", "play: in a browser")):
                continue
            name = test["name"]
            if len(command) < len(test["command"]):
                name = Path(command[0]).name
                command += ["--gtest_fail_fast", "--gtest_brief=1"]
            where = {entry["name"]: entry["value"] for entry in test["properties"]}
            found[name] = Program(name, targets, command,
                                  where.get("WORKING_DIRECTORY", str(self._build)))
        found["FleetWright"] = Program("FleetWright", ["FleetWright/FleetWright"])
        for program in found.values():
            inputs = self._output("ninja", "-t", "inputs", *program.targets).splitlines()
            program.parts = sorted(name for name in {*program.targets, *inputs}
                                   if name.startswith(("bin/", "FleetWright/"))
                                   and (self._build / name).is_file())
        return list(found.values())

    def key(self, program):
        """Tells whether a program, or one that it starts, is another than before."""
        digest = hashlib.sha256()
        for name in program.parts:
            digest.update((self._build / name).read_bytes())
        return digest.hexdigest()

    def measure(self, program, log):
        """Runs a program that nobody has changed; says whether all its tests pass."""
        before = resource.getrusage(resource.RUSAGE_CHILDREN)
        started = os.times().elapsed
        with open(log, "w", encoding="utf-8") as output:
            passed = self._run(program, output, 3600, 3600)
        after = resource.getrusage(resource.RUSAGE_CHILDREN)
        program.seconds = os.times().elapsed - started
        program.cpu_seconds = after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime
        return passed

    def passes(self, program):
        """Whether all tests pass. One that hangs does not: it takes far more than measured."""
        return self._run(program, subprocess.DEVNULL, int(5 + 4 * program.cpu_seconds),
                         60 + 20 * program.seconds)

    def _run(self, program, output, cpu_seconds, seconds):
        def limit():
            resource.setrlimit(resource.RLIMIT_CPU, (cpu_seconds, cpu_seconds + 1))
            resource.setrlimit(resource.RLIMIT_AS, (MOST_MEMORY, MOST_MEMORY))
            resource.setrlimit(resource.RLIMIT_CORE, (0, 0))

        shutil.rmtree(self._scratch, ignore_errors=True)
        self._scratch.mkdir(parents=True)
        environment = {name: value for name, value in os.environ.items()
                       if name not in ("DISPLAY", "WAYLAND_DISPLAY") and name[:4] != "XDG_"}
        environment |= {"TMPDIR": str(self._scratch), "HOME": str(self._scratch)}
        child = subprocess.Popen(program.command, cwd=program.folder, env=environment,
                                 stdin=subprocess.DEVNULL, stdout=output, stderr=output,
                                 start_new_session=True, preexec_fn=limit)
        try:
            return child.wait(seconds) == 0
        except subprocess.TimeoutExpired:
            return False
        finally:
            try:  # whatever it has started ends with it
                os.killpg(child.pid, signal.SIGKILL)
            except ProcessLookupError:
                pass
            child.wait()

    def _target(self, part):
        return os.path.relpath(part, self._build) if part.startswith("/") else part

    def _output(self, *command):
        return subprocess.run(command, cwd=self._build, check=True, capture_output=True,
                              text=True).stdout


def in_order(programs, source):
    """Those of the source's folder first, then the quick ones."""
    folders = Path(source).parts[1:-1]
    own = [f"{'_'.join(folders[:depth])}_tests" for depth in range(len(folders), 0, -1)]
    return sorted(programs, key=lambda program: (
        not program.command, own.index(program.name) if program.name in own else len(own),
        program.seconds))
