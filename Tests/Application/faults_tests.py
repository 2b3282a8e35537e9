"""A desktop that lacks something, and files that are not as they should be."""

import base64

from application import Installation
from case import MOVE, SCAN, ApplicationTest
from session import wait_until


class Faults(ApplicationTest):
    def test_a_sandboxed_build_scans_no_other_way_and_asks_for_access(self):
        self.home.add_clutter()
        sandboxed = Installation(self.folder / "sandboxed", sandboxed=True)
        application = self.start_after_first_run("--open", "cleanupReview", installation=sandboxed,
                                                 preferences={"karvello.macScanMode": "direct"})
        application.shown.wait_for("Grant Home Folder Access", "push button")
        self.assertIsNone(application.shown.find("Direct distribution"))
        self.assertTrue(application.shown.find("Standard", "radio button"), application.shown.told())
        wait_until(lambda: self.home.preferences().get("karvello.macScanMode") == "standard",
                   lambda: f"the stored mode: {self.home.preferences()}")

    def test_damaged_preferences_are_the_first_run_and_stay_beside(self):
        damaged = b'{"karvello.language": "de", '
        self.home.add("Library/Logs/Example/session.log")
        self.home.add(".config/Karvello/preferences.json", content=damaged)
        application = self.start()
        application.wait_for_window()
        application.press_button("Set Up Later")
        application.shown.wait_for("Live Dashboard", "heading")
        kept = [file for file in self.home.preferences_file.parent.iterdir() if file.read_bytes() == damaged]
        self.assertEqual(len(kept), 1)
        self.assertTrue(self.home.preferences()["karvello.macOnboardingCompleted.v1"])

    def test_damaged_values_count_as_none_and_are_kept(self):
        damaged = {"data": base64.b64encode(b'{"fallbackPath": "/no').decode()}
        stores = ("karvello.homeAccessBookmark.v1", "karvello.customScanFolders.v1", "karvello.cleanupIgnoreItems.v1")
        self.home.add_clutter()
        application = self.start_after_first_run(preferences={
            **{store: damaged for store in stores}, "karvello.textScale": 5, "karvello.appearanceMode": "gigantic",
            "karvello.macScanMode": {"unknown": []}})
        self.scan(application)
        application.open("Settings")
        # One at a time, the worst first.
        application.shown.wait_for(lambda name: name.startswith("Could not load home folder access bookmark."), "alert message")
        application.press_button("Close")
        application.shown.wait_for(lambda name: name.startswith("Could not load ignored cleanup items."), "alert message")
        kept = self.home.preferences()
        for store in stores:
            with self.subTest(store):
                self.assertEqual(kept.get(store + ".malformedBackup"), damaged)

    def test_a_damaged_log_stays_beside_and_says_nothing_false(self):
        damaged = b'[{"id": "half of an entry'
        self.home.add_clutter()
        log = self.home.add(".local/share/Karvello/cleanup-audit-log.json", content=damaged)
        application = self.start_after_first_run("--open", "cleanupReview")
        application.open("Review & Evidence")
        application.shown.wait_for("Nothing to restore")
        self.scan(application)
        application.press_button(MOVE)
        self.agree(application)
        wait_until(lambda: log.exists() and log.read_bytes() != damaged and len(self.log()) == 1, "an entry in a new log")
        kept = [file for file in log.parent.iterdir() if file != log and file.read_bytes() == damaged]
        self.assertEqual(len(kept), 1)

    def test_in_a_home_that_takes_no_files_it_starts_and_tells_so(self):
        self.home.add_clutter()
        # A file in the place of each folder, since nothing is read-only to root.
        for place in (".config", ".local"):
            self.home.add(place, size=0)
        application = self.start()
        application.wait_for_window()
        application.press_button("Start Scan")
        application.shown.wait_for(lambda name: "Example" in name, "check box")
