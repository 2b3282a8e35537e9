"""Trashes with one program and restores with another: this product, gio (with the desktop's own service) and trash-cli.

All of them work on a home of their own, with its own variables and its own session bus.
"""

import json
import os
import shutil
import subprocess
import sys
import tempfile
import time
import urllib.parse

import scene

NAMES = (
    b"plain", b"new\nline", b"100%", b"%41", b"a b", b" ", b"-rf", b"--help", b".hidden", b"...", b"tab\there", b"semi;colon",
    b"hash#mark?", b"back\\slash", b"quote'\"s", b"*[glob]*", b"\xff\xfe", b"half\xc3", b"\xe2\x80\xaebidi.txt",
    "e\u0301 \U0001f600.txt".encode(), b"x" * 255, ("\u00e9" * 125 + ".tar").encode(), b"\x01\x7f", b"name.trashinfo",
    b"a.tar.gz", b"$HOME `id` &")
assert len(NAMES) == 26 and len(set(NAMES)) == 26
SPARSE_BYTES = 3 * 1024**3
SECONDS = 5
TOOLS = ("gio", "trash-cli")


def is_text(name):
    try:
        name.decode()
        return True
    except UnicodeDecodeError:
        return False


class Desk:
    def __init__(self, program, path):
        self.home = scene.Home(program, path=path)
        self.files = os.fsencode(self.home.trash / "files")

    def tool(self, *words, answer=None):
        """What the tool wrote; nothing if it hangs, as trash-cli does over the longest names."""
        try:
            return subprocess.run(words, capture_output=True, timeout=SECONDS, input=answer).stdout
        except subprocess.TimeoutExpired:
            return b""

    def karvello(self, *words):
        """The exit code and the fields of the one line that tells of the item."""
        done = subprocess.run([self.home.program, self.home.path, *words], capture_output=True, timeout=60)
        return done.returncode, done.stdout.decode().rstrip("\n").split("\t")

    def trash(self, tool, path):
        """The place in the Trash, or nothing where the tool does not manage."""
        before = set(os.listdir(self.files)) if os.path.isdir(self.files) else set()
        if tool == "karvello":
            code, fields = self.karvello("trash-item", path)
            return os.fsencode(urllib.parse.unquote_to_bytes(fields[2].removeprefix("file://"))).rstrip(b"/") if code == 0 else None
        self.tool(*(("gio", "trash", path) if tool == "gio" else ("trash-put", "--", path)))
        new = set(os.listdir(self.files)) - before if os.path.isdir(self.files) else set()
        return self.files + b"/" + new.pop() if len(new) == 1 and not os.path.lexists(path) else None

    def restore(self, tool, place, path):
        """Whether the tool lists and restores it."""
        if tool == "gio":
            uris = self.seen_by_gio(place)
            if not uris:
                return False
            self.tool("gio", "trash", "--restore", uris[0])
        elif tool == "trash-cli":
            self.tool("trash-restore", path, answer=b"0\n")
        return os.path.lexists(path)

    def seen_by_gio(self, place):
        # The service learns of a new item by watching the folder.
        for _ in range(40):
            listed = self.tool("gio", "list", "--hidden", "--print-uris", "trash:///").split()
            uris = [uri for uri in listed
                    if urllib.parse.unquote_to_bytes(uri.removeprefix(b"trash:///")) in
                    (os.path.basename(place), b"\\" + os.path.basename(place))]
            if uris:
                return uris
            time.sleep(0.05)
        return []


def make(desk, name):
    path = os.fsencode(desk.home.caches) + b"/" + name
    with open(path, "wb") as file:
        file.write(b"bytes of " + name)
    return path


def special_items(desk):
    """A folder, a link and a large file with a hole."""
    for kind in ("folder", "link"):
        path = desk.home.caches / f"a {kind}"
        scene.make_item(kind, path)
        yield os.fsencode(path)
    path = desk.home.caches / "sparse"
    with open(path, "wb") as file:
        file.write(b"begin")
        file.truncate(SPARSE_BYTES)
    yield os.fsencode(path)


def fingerprint(path):
    if os.path.basename(path) == b"sparse" or not os.path.lexists(path):
        # Hashing the hole takes longer than everything else.
        found = os.lstat(path) if os.path.lexists(path) else None
        with open(path, "rb") if found else open(os.devnull, "rb") as file:
            return found and (found.st_size, found.st_blocks, file.read(5))
    return scene.contents(path)


def paths_of(desk):
    yield from (make(desk, name) for name in NAMES)
    yield from special_items(desk)


def to_tool(desk, tool):
    """Trashed here, restored there. Returns the counts and the offences."""
    restored, beyond, offences = 0, [], []
    for path in paths_of(desk):
        before = fingerprint(path)
        place = desk.trash("karvello", path)
        if place is None:
            offences.append(f"{path!r} was refused")
            continue
        if desk.restore(tool, place, path):
            if fingerprint(path) != before:
                offences.append(f"{path!r} came back changed by way of {tool}")
            restored += 1
        else:
            offences += offences_beyond(desk, tool, place, path, before)
            beyond.append(os.path.basename(path))
        clear(desk)
    return restored, beyond, offences


def offences_beyond(desk, tool, place, path, before):
    """What a tool does not bring back must still be somewhere, and beyond it as well where it has trashed it itself."""
    found = []
    if os.path.lexists(place):
        code, fields = desk.karvello("putback-item", place, path)
        if code != 0 or fingerprint(path) != before:
            found.append(f"{path!r} is restored neither by {tool} nor here: {fields}")
    else:
        # gio writes some names with escapes when it restores them.
        renamed = [entry for entry in desk.home.caches.iterdir() if scene.contents(entry) == before]
        if len(renamed) != 1:
            found.append(f"{path!r} is lost by way of {tool}")
    clear(desk)
    make(desk, os.path.basename(path))
    own = desk.trash(tool, path)
    if own is not None and desk.restore(tool, own, path):
        found.append(f"{tool} restores {path!r} only if it has trashed it itself")
    return found


def from_tool(desk, tool):
    """Trashed there, restored here or refused with a reason."""
    restored, refused, beyond, offences = 0, 0, [], []
    for path in paths_of(desk):
        before = fingerprint(path)
        place = desk.trash(tool, path)
        if place is None:
            beyond.append(os.path.basename(path))
        else:
            code, fields = desk.karvello("putback-item", place, path)
            if code == 0 and fingerprint(path) == before:
                restored += 1
            elif code == 3 and os.path.lexists(place) and len(fields) == 3 and fields[2]:
                refused += 1
            else:
                offences.append(f"{path!r} trashed by {tool}: {code} {fields}")
        clear(desk)
    return restored, refused, beyond, offences


def clear(desk):
    for folder in (desk.home.caches, desk.home.trash / "files", desk.home.trash / "info"):
        for path in folder.iterdir() if folder.is_dir() else ():
            shutil.rmtree(path) if path.is_dir() and not path.is_symlink() else path.unlink()


def orphan_offences(desk):
    """What lies in the Trash without a record is nobody's to overwrite."""
    orphan = desk.home.trash / "files/plain"
    orphan.write_bytes(b"orphan")
    place = desk.trash("karvello", make(desk, b"plain"))
    sound = place is not None and orphan.read_bytes() == b"orphan" and os.path.basename(place) != b"plain"
    clear(desk)
    return [] if sound else [f"an orphan was overwritten: {place!r}"]


def naive_failures(desk):
    """A mover that writes paths as they are: how many of the names trash-cli does not get back."""
    failures = 0
    for name in NAMES:
        path = make(desk, name)
        short = name[:245]
        os.rename(path, desk.files + b"/" + short)
        info = os.fsencode(desk.home.trash / "info") + b"/" + short + b".trashinfo"
        with open(info, "wb") as file:
            file.write(b"[Trash Info]\nPath=" + path + b"\nDeletionDate=2026-01-01T00:00:00\n")
        failures += 0 if not is_text(name) or desk.restore("trash-cli", desk.files + b"/" + short, path) else 1
        clear(desk)
    return failures


def shown(names):
    return f"{len(names)} {[name[:24] for name in names]}"


def inner(program, path):
    """To be run in a session whose home is `path`."""
    desk = Desk(program, path)
    lines = []
    offences = []
    for tool in TOOLS:
        restored, beyond, found = to_tool(desk, tool)
        offences += found
        if restored < len(NAMES) / 2:
            offences.append(f"{tool} restored only {restored}: it cannot have worked")
        lines.append(f"trashed here, restored by {tool}: {restored}, beyond {tool}: {shown(beyond)}")
        restored, refused, beyond, found = from_tool(desk, tool)
        offences += found
        if restored + refused < len(NAMES) / 2:
            offences.append(f"{tool} trashed only {restored + refused}: it cannot have worked")
        lines.append(f"trashed by {tool}: restored here {restored}, refused {refused}, beyond {tool}: {shown(beyond)}")
    offences += orphan_offences(desk)
    return {"lines": lines, "offences": offences, "naive": naive_failures(desk)}


def run(program, mode):
    for tool in ("gio", "trash-put", "trash-restore", "dbus-run-session"):
        if not shutil.which(tool):
            raise scene.Unavailable(f"{tool} is missing (scripts/install-packages test)")
    with tempfile.TemporaryDirectory(prefix="karvello-rig-", ignore_cleanup_errors=True) as folder:
        environment = dict(os.environ, HOME=folder, XDG_RUNTIME_DIR=folder, XDG_DATA_HOME=f"{folder}/data",
                           XDG_CONFIG_HOME=f"{folder}/config", XDG_CACHE_HOME=f"{folder}/cache", LC_ALL="C.UTF-8")
        done = subprocess.run(["dbus-run-session", "--", sys.executable, "-B", __file__, program, folder],
                              env=environment, capture_output=True, timeout=600)
    if done.returncode != 0:
        raise RuntimeError(done.stderr.decode(errors="replace")[-3000:])
    result = json.loads(done.stdout)
    for line in result["lines"]:
        yield line, None
    yield f"{len(result['offences'])} offences", result["offences"]
    yield f"naive: {result['naive']} of {len(NAMES)} names lost", None
    yield len(result["offences"]), result["naive"]


if __name__ == "__main__":
    json.dump(inner(sys.argv[1], sys.argv[2]), sys.stdout, default=repr)
