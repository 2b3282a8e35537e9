"""A desktop that lacks something, and files that are not as they should be."""

import os
import signal

from application import Installation
from case import MOVE, SCAN, ApplicationTest
from session import wait_until


class Faults(ApplicationTest):
    def test_without_a_session_bus_it_runs_and_ends(self):
        """Assistants are told of the program on that bus, so the display has to do."""
        application = self.start_after_first_run(without=["DBUS_SESSION_BUS_ADDRESS"])
        application.press("ctrl+2")
        application.press("ctrl+r")
        application.close_window()
        self.assertEqual(application.wait_for_end(), 0)

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

    def test_a_scan_that_is_told_to_end_ends(self):
        self.home.add_many("Library/Caches/com.example.Big", 20_000)
        application = self.start_after_first_run("--open", "cleanupReview")
        application.press_button(SCAN)
        application.process.send_signal(signal.SIGTERM)
        self.assertEqual(application.wait_for_end(), 0)
        self.assertEqual(self.log(), [])
        self.assertEqual(self.home.trashed(), [])

    def test_a_clean_that_is_told_to_end_comes_to_a_true_end(self):
        names = {f"log{number}" for number in range(1_500)}
        for name in names:
            self.home.add(f"Library/Logs/{name}/session.log", size=100)
        application = self.start_after_first_run("--open", "cleanupReview")
        application.press_button(SCAN)
        application.shown.wait_for(lambda name: "candidate log" in name, "check box")
        application.press_button(MOVE)
        self.agree(application)
        wait_until(self.home.trashed, "something in the Trash")
        application.process.send_signal(signal.SIGTERM)
        self.assertEqual(application.wait_for_end(), 0)

        moved = set(self.home.trashed())
        left = {name for name in names if (self.home.folder / f"Library/Logs/{name}/session.log").exists()}
        self.assertEqual(moved | left, names)
        self.assertEqual(moved & left, set())
        self.assertEqual({name.removesuffix(".trashinfo") for name in os.listdir(self.home.trash / "info")}, moved)
        self.assertEqual([entry["succeededItemCount"] for entry in self.log()], [len(moved)])
