"""The program as it is installed, in a session and a home of a test."""

import json
import os
import pathlib
import shutil
import subprocess
import time

import session as sessions
from assistant import Assistant
from gi.repository import GLib
from session import wait_until

PROGRAM = pathlib.Path(os.environ["KARVELLO_PROGRAM"])
_LEAST_WIDTH = 1180
_NOWHERE = (0, 0, 0, 0)


def _slowing(call=None, milliseconds=0):
    """The words before a program: it keeps its number, and a second process holds it up."""
    return ["strace", "-D", "-f", "--seccomp-bpf", "-qqq", "-o", "/dev/null", "-e", f"trace={call}",
            "-e", f"inject={call}:delay_enter={milliseconds * 1000}"] if call else []


class Installation:
    """A copy of the program beside what it is told of its own distribution."""

    def __init__(self, folder, sandboxed=False):
        self.program = pathlib.Path(folder) / "bin/karvello"
        self.program.parent.mkdir(parents=True)
        try:
            os.link(PROGRAM, self.program)
        except OSError:
            shutil.copy2(PROGRAM, self.program)
        facts = pathlib.Path(folder) / "share/karvello/distribution.json"
        facts.parent.mkdir(parents=True)
        facts.write_text(json.dumps({"KarvelloDistributionChannel": "AppStore" if sandboxed else "DeveloperID",
                                     "com.apple.security.app-sandbox": sandboxed}))


class Application:
    """A process, and what is on show of it."""

    def __init__(self, session, installation, home, *arguments, without=(), slowed=None, **variables):
        """`slowed`: a system call, and how many milliseconds each takes longer."""
        environment = {**session.environment, **home.environment, **variables}
        for name in without:
            del environment[name]
        self.session = session
        self._log = home.folder.with_name(f"{home.folder.name}-{time.monotonic_ns()}.log")
        self.started = time.monotonic()
        with open(self._log, "wb") as log:
            self.process = sessions.start([*_slowing(*slowed or ()), installation.program, *arguments], environment,
                                          stdout=log, stderr=subprocess.STDOUT)
        self.shown = Assistant(session, self.process.pid)

    def end(self):
        sessions.end(self.process)

    def said(self):
        """What it wrote on its standard streams."""
        return self._log.read_text(errors="replace")

    def is_running(self):
        return self.process.poll() is None

    def wait_for_end(self, limit=sessions.LIMIT):
        """Its exit code."""
        wait_until(lambda: not self.is_running(), "the program ends", limit)
        return self.process.returncode

    def window(self):
        """The number of the dashboard's window, if it is on the screen; popover and item are smaller."""
        return next((window for window in self.windows() if (self.session.place(window) or _NOWHERE)[2] >= _LEAST_WIDTH), None)

    def windows(self):
        """All of the program's, the item in a tray among them."""
        return self.session.output("xdotool", "search", "--onlyvisible", "--pid", self.process.pid).split()

    def wait_for_window(self):
        def window():
            if not self.is_running():
                raise AssertionError(f"the program has ended with {self.process.returncode}")
            return self.window()
        return wait_until(window, "a window")

    def is_in_front(self):
        return self.session.output("xdotool", "getactivewindow").strip() == self.window()

    def press(self, *keys):
        """Keys for its window, once it has the focus."""
        wait_until(self.is_in_front, "the window is in front")
        self.session.press(*keys)

    def close_window(self):
        """As the user does it by the window manager."""
        self.press("alt+F4")

    def hide(self):
        """The same where there is a tray, in which the program goes on."""
        self.close_window()
        wait_until(lambda: self.window() is None, "the window is closed")

    def open(self, section):
        """Chooses a section of the sidebar, and waits for its title."""
        self.shown.wait_for(lambda name: name == section or name.startswith(section + ","), "list item").act()
        self.shown.wait_for(section, "heading")

    def ready(self, name, role="push button"):
        """It, if it can be used now: what is disabled takes no focus."""
        element = self.shown.find(name, role)
        if element:
            try:
                element.focus()
                return element if "focused" in element.states else None
            except GLib.Error:
                pass
        return None

    def wait_until_ready(self, name, role="push button"):
        return wait_until(lambda: self.ready(name, role),
                          lambda: f"a {role} {name} that can be used, on show is\n{self.shown.told()}")

    def press_button(self, name):
        self.wait_until_ready(name).act()
