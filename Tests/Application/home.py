"""A home folder with clutter of all kinds, and programs that are told to live in it."""

import json
import os
import pathlib
import shutil
import time

_DAY = 86_400
MEGABYTE = 1_000_000


class Home:
    def __init__(self, folder):
        self.folder = pathlib.Path(folder)
        self.folder.mkdir()
        self.environment = {
            "HOME": str(self.folder),
            "XDG_CONFIG_HOME": str(self.folder / ".config"), "XDG_DATA_HOME": str(self.folder / ".local/share"),
            "XDG_STATE_HOME": str(self.folder / ".local/state"), "XDG_CACHE_HOME": str(self.folder / ".cache"),
        }
        self.preferences_file = self.folder / ".config/Karvello/preferences.json"
        self.trash = self.folder / ".local/share/Trash"

    def add(self, path, size=MEGABYTE, days=120, content=None):
        """A file of this age; so are its folders."""
        file = self.folder / path
        file.parent.mkdir(parents=True, exist_ok=True)
        with open(file, "wb") as stream:
            if content is None:
                # A file that takes up no room is nothing to clean.
                if size:
                    os.posix_fallocate(stream.fileno(), 0, size)
            else:
                stream.write(content)
        then = time.time() - days * _DAY
        while file != self.folder:
            os.utime(file, (then, then))
            file = file.parent
        return self.folder / path

    def remove(self, place):
        """A folder with all that is in it, which may have gone."""
        shutil.rmtree(self.folder / place, ignore_errors=True)

    def add_clutter(self):
        self.add("Library/Caches/com.example.Player/stream.bin", 6 * MEGABYTE)
        self.add("Library/Logs/Example/session.log", 3 * MEGABYTE)
        self.add("Library/Logs/Second/second.log", 2 * MEGABYTE)
        self.add(".cache/pip/http/a/wheel", 4 * MEGABYTE)
        self.add("Downloads/setup.deb", 2 * MEGABYTE)
        copy = bytes(range(256)) * 82_032  # 21 MB
        self.add("Documents/film.mov", content=copy)
        self.add("Documents/Copies/film.mov", content=copy, days=100)
        return self

    def set_preferences(self, **values):
        self.preferences_file.parent.mkdir(parents=True, exist_ok=True)
        self.preferences_file.write_text(json.dumps(values))

    def add_many(self, folder, count):
        """This many small files, old ones, in folders of a thousand."""
        for number in range(count):
            place = self.folder / folder / str(number // 1000)
            if number % 1000 == 0:
                place.mkdir(parents=True)
            (place / str(number)).write_bytes(b"content")
        then = time.time() - 120 * _DAY
        for top, _, names in os.walk(self.folder / folder, topdown=False):
            for name in names:
                os.utime(os.path.join(top, name), (then, then))
            os.utime(top, (then, then))

    def preferences(self):
        return json.loads(self.preferences_file.read_text())

    def files(self):
        """Every file below the clutter, by its path and size."""
        found = {}
        for top in ("Library", "Downloads", "Documents", "Movies"):
            for folder, _, names in os.walk(self.folder / top):
                for name in names:
                    file = pathlib.Path(folder, name)
                    found[str(file.relative_to(self.folder))] = file.stat().st_size
        return found

    def trashed(self):
        """The names in the Trash."""
        files = self.trash / "files"
        return sorted(os.listdir(files)) if files.is_dir() else []
