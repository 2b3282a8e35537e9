"""What all suites share: a session for the suite, a home and an installation for each test."""

import json
import pathlib
import shutil
import tempfile
import unittest

import session as sessions
from application import Application, Installation
from gi.repository import Gio, GLib
from home import Home
from services import TRAY, Service

SCAN = "Start New Scan"
MOVE = "Move Selected to Trash"
QUESTION = "Move selected items to Trash?"


class ApplicationTest(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.folder = pathlib.Path(tempfile.mkdtemp(prefix="karvello-application-"))
        cls.addClassCleanup(shutil.rmtree, cls.folder, ignore_errors=True)
        cls.session = sessions.Session(cls.folder)
        cls.addClassCleanup(cls.session.close)
        cls.installation = Installation(cls.folder / "direct")

    def setUp(self):
        self.home = Home(self.folder / f"home-{self._testMethodName}")

    def start(self, *arguments, installation=None, home=None, **options):
        """Ends with the test, and tells what it said if the test fails."""
        application = Application(self.session, installation or self.installation, home or self.home, *arguments,
                                  **options)
        self.addCleanup(self._leave, application)
        return application

    def start_after_first_run(self, *arguments, preferences=None, **options):
        self.home.set_preferences(**{"karvello.macOnboardingCompleted.v1": True, "karvello.language": "en",
                                     "karvello.macAdvancedExpanded": True,
                                     **(preferences or {})})
        application = self.start(*arguments, **options)
        application.wait_for_window()
        return application

    def _leave(self, application):
        application.end()
        if not self._outcome.success:
            print(f"{application.process.args} said:\n{application.said()}", flush=True)

    def scan(self, application):
        """From the dashboard to the findings."""
        application.open("Cleanup Review")
        application.press_button(SCAN)
        return application.shown.wait_for(lambda name: "Example" in name, "check box")

    def agree(self, application):
        """Presses the button of the question, which has the same words as the one that asks."""
        dialog = application.shown.wait_for(QUESTION, "dialog")
        next(part for part in dialog.all_showing() if part.role == "push button" and part.name == MOVE).act()

    def log(self):
        file = self.home.folder / ".local/share/Karvello/cleanup-audit-log.json"
        return json.loads(file.read_text()) if file.exists() else []

    def serve(self, *command):
        """A service of the desktop, until the test ends."""
        service = Service(self.session, *command)
        self.addCleanup(service.end)
        return service

    def start_tray(self):
        """A host of status notifier items; each of its lines is the owner of one."""
        return self.serve(TRAY)

    def item_in(self, host):
        """Its owner on the bus."""
        owner = host.line()
        self.assertTrue(owner, "no item in the tray")
        return owner

    def activate(self, owner):
        self.session.session_bus.call_sync(owner, "/StatusNotifierItem", "org.kde.StatusNotifierItem", "Activate",
                                           GLib.Variant("(ii)", (1200, 20)), None, Gio.DBusCallFlags.NONE, 30_000, None)
