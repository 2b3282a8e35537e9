"""What is photographed, and how the program comes to show it."""

import fnmatch
import itertools
import os
import pathlib
import signal
import subprocess
import time
from contextlib import contextmanager

from gi.repository import Gio, GLib

import photographed_home
import session as sessions
from application import Application, Installation
from home import Home
from session import wait_until

SECTIONS = ["dashboard", "cleanup", "evidence", "map", "large-files", "downloads", "duplicates", "installers", "system", "cpu",
            "memory", "settings"]
# These are longer than the window.
_WHEEL_UP, _WHEEL_DOWN = 4, 5
SCROLLED = ["dashboard", "evidence", "system", "settings"]
MOVE = "Move Selected to Trash"


class Studio:
    """A desktop, and an application after the other in it."""

    def __init__(self, folder, options):
        self._folder = folder
        self._options = options
        self._home = None
        self._application = None
        self._preferences = {}
        self._variant = None
        width, height = (options.factor * length for length in options.size)
        self._session = sessions.Session(folder, display=(width + 400, height + 100))
        if options.factor != 1:
            self._session.environment["QT_SCALE_FACTOR"] = str(options.factor)
        if "FONTCONFIG_FILE" in os.environ:
            self._session.environment["FONTCONFIG_FILE"] = os.environ["FONTCONFIG_FILE"]
        self._installation = Installation(folder / "direct")
        self._tray = sessions.start([pathlib.Path(__file__).with_name("test-status-notifier-host")], self._session.environment,
                                    stdout=subprocess.PIPE, text=True)
        self._tray.stdout.readline()

    def close(self):
        sessions.end(self._tray)
        self._session.close()

    def photograph(self):
        if self._wants("dashboard*", "cleanup*", "evidence*", "confirm*", "first-run", "popover", "ios-guide", *SECTIONS):
            self._photograph_a_life()
        if self._wants("*-denied"):
            self._photograph_without_access()
        if self._wants("*-empty"):
            self._photograph_nothing()
        if self._wants("*-scanning", "*-cleaning"):
            self._photograph_work()

    def _photograph_a_life(self):
        """From the first run to the first undo."""
        home = photographed_home.filled(self._folder / "home")
        with self._started(home, self._installation) as application:
            for _ in self._variants("first-run", **{"karvello.macOnboardingCompleted.v1": False}):
                self._take("first-run")
            for _ in self._variants("dashboard-first", "cleanup-idle", "map-idle", "evidence-empty"):
                self._take_sections("-first", "dashboard")
                self._take_sections("-idle", "cleanup", "map")
                self._take_sections("-empty", "evidence")
            self._scan()
            self._photograph_review(application)
            self._photograph_direct_mode()
            for _ in range(3):
                self._clean()
            # A scan forgets what can be put back.
            for _ in self._variants("cleanup-finished", "evidence", "evidence-end"):
                self._take_sections("-finished", "cleanup")
                self._take_sections("", "evidence")
            self._scan()
            for _ in self._variants(*SECTIONS, *(name + "-end" for name in SCROLLED)):
                self._take_sections("", *(section for section in SECTIONS if section not in ("cleanup", "evidence")))
            if self._wants("ios-guide"):
                self._open("settings")
                self._scroll(_WHEEL_DOWN)
                application.press_button("iOS Guide")
                for _ in self._variants("ios-guide"):
                    self._take("ios-guide")
            self._photograph_popover(application)

    def _photograph_review(self, application):
        names = ["cleanup", "cleanup-open", "cleanup-filtered", "confirm"]
        if not self._wants(*names):
            return
        self._open("cleanup")
        if grouping := application.shown.find(lambda name: "No grouping" in name, "combo box"):
            grouping.focus()
            application.press("Down", "Down")
        for _ in self._variants(*names):
            self._take_sections("", "cleanup")
            application.press("Tab", "ctrl+f", "Down", "Down", "Right")
            self._take("cleanup-open")
            application.press("Left", "ctrl+f", *"cache")
            self._take("cleanup-filtered")
            application.press("Down")
            application.press("ctrl+a", "ctrl+Return")
            wait_until(lambda: application.shown.find(lambda name: True, "dialog"), "the question")
            self._take("confirm")
            application.press("Escape")
            application.press("ctrl+f", "Escape", "Escape")

    def _photograph_direct_mode(self):
        """It warns, and shows more."""
        if self._wants("cleanup-direct"):
            self._prefer({"karvello.macScanMode": "direct"})
            self._scan()
            for _ in self._variants("cleanup-direct", **{"karvello.macScanMode": "direct"}):
                self._take_sections("-direct", "cleanup")
            self._prefer({"karvello.macScanMode": "standard"})
            self._scan()

    def _photograph_popover(self, application):
        if not self._wants("popover"):
            return
        owner = self._item
        for _ in self._variants("popover"):
            place = GLib.Variant("(ii)", (self._options.size[0], 20))
            self._session.session_bus.call_sync(owner, "/StatusNotifierItem", "org.kde.StatusNotifierItem", "Activate", place,
                                                None, Gio.DBusCallFlags.NONE, 30_000, None)
            main = application.window()
            popover = wait_until(lambda: next((window for window in self._windows() if window != main), None), "the popover")
            self._take("popover", popover)
            self._session.press("Escape")
            wait_until(lambda: popover not in self._windows(), "the popover goes")

    def _photograph_without_access(self):
        home = photographed_home.Home(self._folder / "home-denied")
        with self._started(home, Installation(self._folder / "sandboxed", sandboxed=True)):
            for _ in self._variants(*(section + "-denied" for section in SECTIONS)):
                self._take_sections("-denied", "dashboard", "cleanup", "map", "duplicates", "settings")

    def _photograph_nothing(self):
        with self._started(Home(self._folder / "home-empty"), self._installation):
            self._scan()
            for _ in self._variants(*(section + "-empty" for section in SECTIONS)):
                self._take_sections("-empty", "dashboard", "cleanup", "map", "large-files", "duplicates", "installers")

    def _photograph_work(self):
        home = photographed_home.busy(self._folder / "home-busy")
        photographed_home.add_logs(home, "first")
        with self._started(home, self._installation) as application:
            for _ in self._variants("cleanup-scanning", "map-scanning"):
                for section in ("cleanup", "map"):
                    if self._wants(section + "-scanning"):
                        self._open(section)
                        self._take_at_work(section + "-scanning", "ctrl+r", delay=0.2)
                        self._wait_for_the_scan()
            if not self._wants("cleanup-cleaning"):
                return
            for number, _ in enumerate(self._variants("cleanup-cleaning")):
                photographed_home.add_logs(home, number)
                self._open("cleanup")
                application.press("ctrl+r")
                self._wait_for_the_scan()
                application.press("ctrl+a", "ctrl+Return")
                wait_until(lambda: application.shown.find(lambda name: True, "dialog"), "the question")
                self._take_at_work("cleanup-cleaning", "Tab", "Return", delay=1)
                self._wait_for_the_scan()

    @contextmanager
    def _started(self, home, installation, **preferences):
        self._home = home
        self._preferences = {"karvello.macOnboardingCompleted.v1": True, "karvello.macAdvancedExpanded": True,
                             "karvello.language": "en", **preferences}
        home.set_preferences(**self._preferences)
        self._application = Application(self._session, installation, home)
        try:
            window = self._application.wait_for_window()
            self._item = self._tray.stdout.readline().strip()
            width, height = (self._options.factor * length for length in self._options.size)
            self._leave()
            self._session.output("xdotool", "windowmove", window, 0, 0, "windowsize", "--sync", window, width, height)
            yield self._application
        except BaseException:
            print("The program", "runs" if self._application.is_running() else f"ended with {self._application.process.returncode}",
                  "and said:", self._application.said(), "On show is:", self._application.shown.told(), sep="\n", flush=True)
            raise
        finally:
            self._application.end()

    def _windows(self):
        return self._session.output("xdotool", "search", "--onlyvisible", "--all", "--pid", self._application.process.pid,
                                    "--name", ".").split()

    def _wants(self, *names):
        """Whether any picture is asked for whose name is, or looks like, one of these."""
        asked = self._options.only
        return asked is None or any(fnmatch.fnmatch(name, wish) or fnmatch.fnmatch(wish, name) for name in names for wish in asked)

    def _variants(self, *names, **preferences):
        """The program in each look in turn, if any of these pictures is asked for; in the end in English again."""
        if not self._wants(*names):
            return
        looks = itertools.product(self._options.schemes, self._options.languages, self._options.scales)
        for scheme, language, scale in looks:
            self._variant = f"{scheme}-{language}-{scale}"
            self._prefer({"karvello.appearanceMode": scheme, "karvello.language": language, "karvello.textScale": scale,
                          **preferences})
            yield self._variant
        self._prefer({"karvello.language": "en"})
        print(*names, flush=True)

    def _prefer(self, preferences):
        before = self._picture()
        self._home.set_preferences(**{**self._home.preferences(), **self._preferences, **preferences})
        # The program looks at the file after a while. Where nothing changes there is nothing to wait for.
        with _at_most():
            wait_until(lambda: self._picture().rows != before.rows, "another look", limit=2)

    def _open(self, section):
        application = self._application
        place = SECTIONS.index(section) + 1
        application.press(f"ctrl+{min(place, 9)}")
        for _ in range(place - 9):
            application.press("Down")
        # The mark of the keyboard goes with the focus, and a click brings that back.
        item = application.shown.wait_for(lambda name: True, "list item", ["selected"])
        # Assistants are told places in the window's own pixels.
        x, y, width, height = (self._options.factor * length for length in item.place())
        x += width // 2
        y += height // 2
        neighbour = y + height if section in ("dashboard", "map", "system") else y - height
        self._session.output("xdotool", "mousemove", x, neighbour, "click", 1, "sleep", 0.1,
                             "mousemove", x, y, "click", 1)
        self._leave()

    def _leave(self):
        """Nothing lies under the pointer."""
        width, height = (self._options.factor * length for length in self._options.size)
        self._session.output("xdotool", "mousemove", width + 300, height + 50)

    def _scan(self):
        application = self._application
        for section in ("cleanup", "map"):
            self._open(section)
            application.press("ctrl+r")
            self._wait_for_the_scan()

    def _wait_for_the_scan(self):
        shown = self._application.shown
        time.sleep(0.3)
        wait_until(lambda: shown.find("Cancel Operation") is None, "the work ends")

    def _clean(self):
        application = self._application
        self._open("cleanup")
        application.press("ctrl+shift+a")
        for row in [element for element in application.shown.elements()
                    if element.role == "check box" and element.name.startswith("Cleanup candidate")][1:4]:
            row.act()
        application.press("ctrl+Return")
        dialog = wait_until(lambda: application.shown.find(lambda name: True, "dialog"), "the question")
        next(part for part in dialog.all_showing() if part.role == "push button" and part.name == MOVE).act()
        self._wait_for_the_scan()

    def _take_sections(self, suffix, *sections):
        for section in sections:
            name = section + suffix
            if not self._wants(name, name + "-end"):
                continue
            self._open(section)
            self._take(name)
            if suffix == "" and section in SCROLLED and self._wants(name + "-end"):
                self._scroll(_WHEEL_DOWN)
                self._take(name + "-end")
                self._scroll(_WHEEL_UP)

    def _scroll(self, wheel):
        """To that end of the page."""
        width, height = (self._options.factor * length for length in self._options.size)
        self._session.output("xdotool", "mousemove", width - 10, height // 2, "click", "--repeat", 40, wheel)
        self._leave()

    def _take(self, name, window=None):
        """Once it does not change any more. Figures that change by the second do not keep the picture for ever."""
        if not self._wants(name):
            return
        window = window or self._application.window()
        last = None

        def is_still():
            nonlocal last
            before, last = last, self._session.picture(window)
            return before is not None and before.rows == last.rows

        time.sleep(0.3)
        with _at_most():
            wait_until(is_still, "a still window", limit=1.5)
        self._write(name, last)

    def _take_at_work(self, name, *keys, delay):
        """The program holds still in the middle of what the keys begin."""
        process = self._application.process
        self._application.press(*keys)
        time.sleep(delay)
        process.send_signal(signal.SIGSTOP)
        try:
            self._write(name, self._picture())
        finally:
            process.send_signal(signal.SIGCONT)

    def _write(self, name, picture):
        picture.write_png(self._options.folder / f"{self._variant}-{name}.png")

    def _picture(self):
        return self._session.picture(self._application.window())


@contextmanager
def _at_most():
    try:
        yield
    except AssertionError:
        pass
