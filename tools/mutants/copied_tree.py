"""A copy of the tree to change and build in, so that the tree itself is never touched."""

import hashlib
import os
import shutil
import subprocess
from pathlib import Path


class Copy:
    """The copy, its build, and what the build has delivered. Paths of sources are as git has them."""

    def __init__(self, tree, place):
        self.tree = tree
        self.folder = place / "tree"
        self.build = self.folder / "build" / "mutants"
        self._delivered = self.build / "FleetWright"
        self._kept = place / "delivered"
        listed = subprocess.run(
            ["git", "-c", f"safe.directory={tree}", "ls-files", "-z", "--cached", "--others",
             "--exclude-standard"], cwd=tree, check=True, capture_output=True).stdout
        names = sorted(os.fsdecode(name) for name in listed.split(b"\0") if name)
        self._contents = {name: (tree / name).read_bytes()
                          for name in names if (tree / name).is_file()}

    def fingerprint(self):
        digest = hashlib.sha256()
        for name, content in self._contents.items():
            digest.update(f"{name} {len(content)}\n".encode() + content)
        return digest.hexdigest()

    def sources(self, folder):
        """The C++ files below a folder, with their texts."""
        return {name: content.decode() for name, content in self._contents.items()
                if name.startswith(folder.rstrip("/") + "/") and name.endswith((".cpp", ".h"))}

    def refresh(self):
        """Makes the copy equal to the tree. Files that are equal keep their times."""
        self.folder.mkdir(parents=True, exist_ok=True)
        for entry in self.folder.iterdir():
            for path in files_below(entry) if entry.name != "build" else []:
                if path.relative_to(self.folder).as_posix() not in self._contents:
                    path.unlink()
        for name, content in self._contents.items():
            path = self.folder / name
            if not path.is_file() or path.read_bytes() != content:
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_bytes(content)
                shutil.copymode(self.tree / name, path)

    def configure(self):
        subprocess.run(["cmake", "--preset", "mutants"], cwd=self.folder, check=True,
                       stdout=subprocess.DEVNULL)

    def make(self, *targets, quietly=True, seconds=None):
        """Builds targets, all of them without any; says whether that went well, within the time."""
        output = subprocess.DEVNULL if quietly else None
        ninja = subprocess.Popen(["ninja", "-C", self.build, *targets], stdout=output,
                                 stderr=output)
        try:
            return ninja.wait(seconds) == 0
        except subprocess.TimeoutExpired:
            ninja.terminate()  # and with it what it has started
            ninja.wait()
            return False

    def keep_delivered(self):
        """Notes the application folder, but for what is linked into it."""
        shutil.rmtree(self._kept, ignore_errors=True)
        shutil.copytree(self._delivered, self._kept, symlinks=True,
                        ignore=lambda folder, names: [name for name in names
                                                      if is_program(Path(folder) / name)])

    def restore_delivered(self):
        """Undoes whatever a changed program has done in the application folder."""
        kept = {path.relative_to(self._kept) for path in files_below(self._kept)}
        for path in files_below(self._delivered):
            if path.relative_to(self._delivered) not in kept and not is_program(path):
                path.unlink()
        for name in kept:
            content, path = (self._kept / name).read_bytes(), self._delivered / name
            if not path.is_file() or path.read_bytes() != content:
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_bytes(content)


def files_below(path):
    """Those of a folder and its folders, or the file itself."""
    if path.is_symlink() or not path.is_dir():
        return [path]
    return [file for entry in path.iterdir() for file in files_below(entry)]


def is_program(path):
    return path.suffix in (".dll", ".exe") or path.is_file() and os.access(path, os.X_OK)
