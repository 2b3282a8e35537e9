"""A home of its own for one attempt of a rig, and what must hold of it whatever happened."""

import hashlib
import json
import os
import pathlib
import shutil
import stat
import subprocess
import tempfile
import urllib.parse

KINDS = ("file", "folder", "link")


class Unavailable(Exception):
    """This system does not let the rig do its work."""


def contents(path):
    """All that a user would miss: types, names, bytes and targets, in any depth."""
    found = os.lstat(path)
    if stat.S_ISLNK(found.st_mode):
        return b"link:" + os.readlink(os.fsencode(path))
    if stat.S_ISDIR(found.st_mode):
        parts = [name + b"=" + contents(os.path.join(os.fsencode(path), name))
                 for name in sorted(os.listdir(os.fsencode(path)))]
        return b"folder:" + hashlib.sha256(b"\0".join(parts)).digest()
    with open(path, "rb") as file:
        return b"file:" + hashlib.file_digest(file, "sha256").digest()


def _write(path, contents):
    """To the disk: while the kernel does that later, for a moment it counts other blocks, and the file is another one."""
    with open(path, "wb") as file:
        file.write(contents)
        file.flush()
        os.fsync(file.fileno())


def make_item(kind, path):
    path = pathlib.Path(path)
    if kind == "file":
        _write(path, b"some bytes of " + os.fsencode(path.name))
    elif kind == "folder":
        (path / "sub").mkdir(parents=True)
        _write(path / "sub" / "data", b"bytes")
        (path / "link").symlink_to("sub")
    else:
        path.symlink_to("../data")


class Home:
    def __init__(self, program, below=None, path=None):
        """A new folder in `below`, or the empty folder `path`."""
        self.program = program
        self.path = pathlib.Path(path or tempfile.mkdtemp(prefix="karvello-rig-", dir=below))
        self.caches = self.path / "Caches"
        self.trash = self.path / "data/Trash"
        self.log = self.path / "data/Karvello/cleanup-audit-log.json"
        self.caches.mkdir()
        self.log.parent.mkdir(parents=True)
        self.items = {}

    def __enter__(self):
        return self

    def __exit__(self, *_):
        shutil.rmtree(self.path, ignore_errors=True)

    def add(self, kind, name="item"):
        path = self.caches / name
        make_item(kind, path)
        self.items[name] = (os.lstat(path).st_ino, contents(path))

    def run(self, *words, prefix=(), timeout=20):
        """The exit code and the lines that the program wrote, each split at its tabs."""
        done = subprocess.run([*prefix, self.program, self.path, *words], capture_output=True, timeout=timeout)
        return done.returncode, [line.split("\t") for line in done.stdout.decode().splitlines()]

    def places(self, name):
        """Where the item is: of its old place and the Trash, those that hold it."""
        number, _ = self.items[name]
        candidates = [self.caches / name]
        if (self.trash / "files").is_dir():
            candidates += sorted((self.trash / "files").iterdir())
        return [path for path in candidates if os.path.lexists(path) and os.lstat(path).st_ino == number]

    def empty_records(self):
        return [path for path in self._records() if path.stat().st_size == 0]

    def offences(self, old_log=None):
        """What is wrong with the home after its next start, one sentence each. A log that could not be read may have
        been kept aside, as `old_log`."""
        found = []
        for name, (_, before) in self.items.items():
            places = self.places(name)
            if len(places) != 1:
                found.append(f"{name} is in {len(places)} places")
            elif contents(places[0]) != before:
                found.append(f"{name} has changed")
        recorded = {path.name.removesuffix(".trashinfo"): path for path in self._records()}
        for path in (self.trash / "files").iterdir() if (self.trash / "files").is_dir() else ():
            original = self._recorded_path(recorded.pop(path.name, None))
            if original is None:
                found.append(f"{path.name} lies in the Trash without a record")
            elif original.parent != self.caches:
                found.append(f"the record of {path.name} names {original}")
        found += [f"the record {name} has no item" for name in recorded]
        info = self.trash / "info"
        found += [f"{path.name} lies among the records" for path in (info.iterdir() if info.is_dir() else ())
                  if not path.name.endswith(".trashinfo")]
        return found + self._log_offences(old_log)

    def _log_offences(self, old_log):
        aside = [path.name for path in self.log.parent.iterdir()
                 if path.name not in (self.log.name, self.log.name + ".lock")
                 and not (old_log and ".unreadable-" in path.name and path.read_bytes() == old_log)
                 # A process that is killed in the middle of a write leaves the file that was to become the log.
                 and not (path.name.startswith(".karvello-") and path.name.endswith(".tmp"))]
        if aside:
            return [f"the log was moved aside to {aside}"]
        if self.log.exists():
            try:
                if not isinstance(json.loads(self.log.read_bytes()), list):
                    return ["the log is no list"]
            except ValueError as error:
                return [f"the log cannot be read: {error}"]
        return []

    def _records(self):
        info = self.trash / "info"
        return [path for path in info.iterdir() if path.name.endswith(".trashinfo")] if info.is_dir() else []

    @staticmethod
    def _recorded_path(record):
        lines = record.read_text().splitlines() if record else []
        if lines[:1] != ["[Trash Info]"] or not lines[1].startswith("Path="):
            return None
        return pathlib.Path(os.fsdecode(urllib.parse.unquote_to_bytes(lines[1].removeprefix("Path="))))
