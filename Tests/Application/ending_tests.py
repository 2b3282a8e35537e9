"""Ending in the middle of something. The system calls that it consists of are slowed, so that it is the middle for sure."""

import os
import signal
import time

from case import MOVE, SCAN, ApplicationTest
from session import wait_until

FOLDERS = 200
CANCEL = "Cancel Operation"


class Ending(ApplicationTest):
    def add_logs(self, count):
        self.names = {f"log{number}" for number in range(count)}
        for name in self.names:
            self.home.add(f"Library/Logs/{name}/session.log", size=100)

    def start_scan(self, with_tray=False):
        """Each folder takes a while, so a scan would take a minute."""
        self.add_logs(FOLDERS)
        host = self.start_tray() if with_tray else None
        application = self.start_after_first_run("--open", "cleanupReview", slowed=("getdents64", 100))
        owner = self.item_in(host) if host else None
        application.press_button(SCAN)
        application.shown.wait_for(CANCEL, "push button")
        return application, owner

    def assert_is_scanning(self, application):
        self.assertTrue(application.shown.find(CANCEL, "push button"), application.shown.told())
        self.assertIsNone(application.shown.find(lambda name: "candidate log" in name, "check box"))

    def assert_ends_at_once_and_leaves_nothing(self, application):
        asked = time.monotonic()
        self.assertEqual(application.wait_for_end(), 0)
        self.assertLess(time.monotonic() - asked, 15, "the scan was not dropped")
        self.assertEqual(self.log(), [])
        self.assertEqual(self.home.trashed(), [])
        self.assertEqual({path.name for path in (self.home.folder / "Library/Logs").iterdir()}, self.names)

    def test_a_signal_ends_a_scan(self):
        application, _ = self.start_scan()
        self.assert_is_scanning(application)
        application.process.send_signal(signal.SIGTERM)
        self.assert_ends_at_once_and_leaves_nothing(application)

    def test_closing_the_window_ends_a_scan(self):
        application, _ = self.start_scan()
        self.assert_is_scanning(application)
        application.close_window()
        self.assert_ends_at_once_and_leaves_nothing(application)

    def test_quitting_in_the_tray_ends_a_scan(self):
        application, owner = self.start_scan(with_tray=True)
        application.hide()
        self.activate(owner)
        application.shown.wait_for("Quick Triage", "heading")
        application.press_button("Quit")
        self.assert_ends_at_once_and_leaves_nothing(application)

    def start_clean(self, with_tray=False):
        self.add_logs(FOLDERS)
        host = self.start_tray() if with_tray else None
        application = self.start_after_first_run("--open", "cleanupReview", slowed=("renameat2", 20))
        owner = self.item_in(host) if host else None
        application.press_button(SCAN)
        application.shown.wait_for(lambda name: "candidate log" in name, "check box")
        application.press_button(MOVE)
        self.agree(application)
        wait_until(self.home.trashed, "something in the Trash")
        return application, owner

    def assert_comes_to_a_true_end(self, application):
        begun = len(self.home.trashed())
        self.assertLess(begun, FOLDERS, "the clean was over")
        self.assertEqual(application.wait_for_end(), 0)
        moved = set(self.home.trashed())
        left = {path.name for path in (self.home.folder / "Library/Logs").iterdir()}
        self.assertEqual(moved | left, self.names)
        self.assertEqual(moved & left, set())
        self.assertTrue(left, "the clean was not cut short")
        for name in left:
            self.assertTrue((self.home.folder / f"Library/Logs/{name}/session.log").exists())
        for name in moved:
            self.assertTrue((self.home.trash / f"files/{name}/session.log").exists())
        self.assertEqual({name.removesuffix(".trashinfo") for name in os.listdir(self.home.trash / "info")}, moved)
        self.assertEqual([(entry["succeededItemCount"], entry["wasCancelled"]) for entry in self.log()],
                         [(len(moved), True)])
        recorded = {item["candidate"]["displayName"] for item in self.log()[0]["cleanedItems"]}
        self.assertTrue(recorded and recorded <= moved, recorded)

    def test_a_signal_ends_a_clean_after_the_present_item(self):
        application, _ = self.start_clean()
        application.process.send_signal(signal.SIGTERM)
        self.assert_comes_to_a_true_end(application)

    def test_closing_the_window_ends_a_clean_after_the_present_item(self):
        application, _ = self.start_clean()
        application.close_window()
        self.assert_comes_to_a_true_end(application)

    def test_opening_it_again_in_the_middle_of_ending_has_it_stay(self):
        self.add_logs(1)
        application = self.start_after_first_run("--open", "cleanupReview", slowed=("renameat2", 4000))
        application.press_button(SCAN)
        application.shown.wait_for(lambda name: "candidate log" in name, "check box")
        application.press_button(MOVE)
        self.agree(application)
        application.shown.wait_for(CANCEL, "push button")
        application.close_window()
        self.assertEqual(self.start().wait_for_end(), 0)
        wait_until(self.log, "the clean is in the log")
        application.wait_for_window()
        self.assertTrue(application.is_running())
        application.close_window()
        self.assertEqual(application.wait_for_end(), 0)

    def test_quitting_in_the_tray_ends_a_clean_after_the_present_item(self):
        application, owner = self.start_clean(with_tray=True)
        self.activate(owner)
        application.press_button("Quit")
        self.assert_comes_to_a_true_end(application)
