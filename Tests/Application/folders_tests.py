"""What is shown in the desktop's file manager, and the folders that its dialogs give; some managers and dialogs lie."""

import base64
import json

from assistant import Assistant
from case import ApplicationTest
from gi.repository import GLib
from services import DESKTOP_SERVICE
from session import owner_of, wait_until

REVEAL = "Show in File Manager"
FAILED = "Could Not Open in the File Manager"
ADDED = "karvello.customScanFolders.v1"
MANAGER = "org.freedesktop.FileManager1"
# Its name is acted on byte by byte.
NAME = "Lögs <b>&\n"


class Folders(ApplicationTest):
    def setUp(self):
        super().setUp()
        self.folder_shown = self.home.add(f"Library/Logs/{NAME}/session.log").parent
        self.uri = GLib.filename_to_uri(str(self.folder_shown), None) + "/"

    def start_with_findings(self, **options):
        application = self.start_after_first_run("--open", "cleanupReview", **options)
        application.press_button("Start New Scan")
        application.shown.wait_for(lambda name: "Lögs" in name, "check box")
        return application

    def reveal(self, application):
        """From the menu of the row."""
        row = application.shown.wait_for(lambda name: "Lögs" in name, "check box")
        row.focus()
        application.shown.wait_for(lambda name: "Lögs" in name, "check box", ["focused"])
        application.press("shift+F10")
        application.shown.wait_for(REVEAL, "menu item").act()
        application.shown.wait_without(REVEAL, "menu item")

    def wait_for_failure(self, application):
        alert = application.shown.wait_for(FAILED, "dialog")
        self.assertIn("The file manager could not open this item.", alert.description)
        self.assertNotIn("\n\n", alert.description)
        application.press_button("OK")
        application.shown.wait_without(FAILED, "dialog")

    def add_folder(self, application):
        application.open("Settings")
        application.press_button("Add Folder")

    def added_folders(self):
        stored = self.home.preferences().get(ADDED)
        return [folder["fallbackPath"] for folder in json.loads(base64.b64decode(stored["data"]))] if stored else []

    def test_a_real_file_manager_shows_the_folder(self):
        manager = self.session.run("pcmanfm-qt", "--daemon-mode", XDG_CONFIG_HOME=self.folder / "manager")
        self.addCleanup(manager.terminate)
        wait_until(lambda: owner_of(self.session.session_bus, MANAGER), "the file manager")
        application = self.start_with_findings()
        self.reveal(application)
        shown = Assistant(self.session, manager.pid)
        shown.wait_for("Logs", "frame")
        # Its line below the files tells what is selected.
        shown.wait_for(lambda name: "Lögs" in name and name.endswith("folder"), "label")
        self.assertIsNone(application.shown.find(FAILED))

    def test_a_file_manager_is_told_the_very_item(self):
        for behaviour in ("works", "wordy"):
            with self.subTest(behaviour):
                manager = self.serve(DESKTOP_SERVICE, "file-manager", behaviour)
                application = self.start_with_findings()
                self.reveal(application)
                self.assertEqual(manager.wait_to_hear(), [{"method": "ShowItems", "values": [[self.uri], ""]}])
                application.open("Live Dashboard")
                self.assertIsNone(application.shown.find(FAILED))
                application.end()
                manager.end()

    def test_where_nothing_shows_files_it_says_so(self):
        self.serve(DESKTOP_SERVICE, "file-manager", "refuses")
        # Without the program that opens folders where there is no service.
        application = self.start_with_findings(PATH=str(self.folder))
        self.reveal(application)
        self.wait_for_failure(application)
        self.reveal(application)
        self.wait_for_failure(application)

    def test_a_finding_that_has_gone_is_shown_by_its_parent(self):
        manager = self.serve(DESKTOP_SERVICE, "file-manager", "works")
        application = self.start_with_findings()
        self.home.remove(self.folder_shown)
        self.reveal(application)
        application.shown.wait_for("Opened Parent Folder")
        parent = GLib.filename_to_uri(str(self.folder_shown.parent) + "/", None)
        self.assertEqual(manager.wait_to_hear(), [{"method": "ShowFolders", "values": [[parent], ""]}])

    def test_a_desktop_that_never_answers_holds_up_nothing_and_is_given_up(self):
        manager = self.serve(DESKTOP_SERVICE, "file-manager", "silent")
        portal = self.serve(DESKTOP_SERVICE, "portal", "silent")
        application = self.start_with_findings()
        self.reveal(application)
        manager.wait_to_hear()
        self.add_folder(application)
        portal.wait_to_hear()
        application.open("Memory Analysis")
        # Then come a dialog that the program has itself, and the words for what did not come about.
        application.shown.wait_for(lambda name: name.startswith("Add user-selected folders"), "dialog")
        self.session.press("Escape")
        self.wait_for_failure(application)
        self.assertEqual(self.added_folders(), [])

    def test_the_folder_that_the_portal_gives_is_added(self):
        portal = self.serve(DESKTOP_SERVICE, "portal", "picks", self.uri)
        application = self.start_after_first_run()
        self.add_folder(application)
        application.shown.wait_for(lambda name: name.startswith(REVEAL + ", ~/Library/Logs/Lögs"), "push button")
        self.assertEqual(self.added_folders(), [str(self.folder_shown)])
        call = portal.wait_to_hear()[0]
        self.assertEqual(call["method"], "OpenFile")
        self.assertTrue(call["values"][2]["directory"])

    def test_a_dialog_that_ends_without_a_folder_adds_none(self):
        for behaviour in ("cancels", "leaves", "wordy"):
            with self.subTest(behaviour):
                portal = self.serve(DESKTOP_SERVICE, "portal", behaviour)
                application = self.start_after_first_run()
                self.add_folder(application)
                portal.wait_to_hear()
                if behaviour != "leaves":
                    # It can be asked for once more.
                    wait_until(lambda: application.press_button("Add Folder") or len(portal.heard()) == 2, "another dialog")
                self.assertEqual(self.added_folders(), [])
                self.assertTrue(application.shown.find("No custom folders added."), application.shown.told())
                application.end()
                portal.end()

    def test_a_place_that_is_no_folder_is_told_and_not_added(self):
        for place in ("/no/such/folder", "/", "/etc/passwd"):
            with self.subTest(place):
                portal = self.serve(DESKTOP_SERVICE, "portal", "picks", "file://" + place)
                application = self.start_after_first_run()
                self.add_folder(application)
                portal.wait_to_hear()
                application.shown.wait_for(lambda name: "Could not save custom scan folders" in name)
                self.assertEqual(self.added_folders(), [])
                application.end()
                portal.end()
