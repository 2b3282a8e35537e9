"""Homes on disks that are full or take no writes, findings that go while they are shown, and files that are not as they were
left."""

import os

import mounts
from case import MOVE, ApplicationTest
from home import MEGABYTE
from session import wait_until


class Disks(mounts.MountsOfTheirOwn, ApplicationTest):
    def start_with_findings(self):
        application = self.start_after_first_run()
        self.scan(application)
        return application

    def clean(self, application):
        application.press_button(MOVE)
        self.agree(application)

    def assert_told_as_not_moved(self, application, reason, *names):
        """In a banner at once, and one by one with the reasons in the evidence."""
        application.shown.wait_for("Some items could not be cleaned. Review the result details.")
        application.open("Review & Evidence")
        told = application.shown.wait_for("Not moved", "list")
        for name in names:
            line = wait_until(lambda: next((part.name for part in told.all_showing() if part.name.startswith(name)), None),
                              lambda: f"{name} among what was not moved; on show is\n{application.shown.told()}")
            self.assertIn(reason, line)

    def test_a_finding_that_goes_while_the_question_is_open_is_told(self):
        self.home.add_clutter()
        application = self.start_with_findings()
        application.press_button(MOVE)
        application.shown.wait_for("Move selected items to Trash?", "dialog")
        self.home.remove("Library/Logs/Second")
        self.agree(application)
        wait_until(lambda: len(self.log()) == 1, "the log")
        self.assertEqual((self.log()[0]["succeededItemCount"], self.log()[0]["failedItemCount"]), (2, 1))
        self.assertEqual(self.home.trashed(), ["Example", "com.example.Player"])
        self.assert_told_as_not_moved(application, "Could not verify file attributes safely", "Second")

    def test_a_finding_that_is_another_by_then_stays(self):
        self.home.add_clutter()
        application = self.start_with_findings()
        self.home.remove("Library/Logs/Second")
        self.home.add("Library/Logs/Second/other.log", content=b"new and dear", days=0)
        self.clean(application)
        wait_until(lambda: len(self.log()) == 1, "the log")
        self.assertEqual((self.log()[0]["succeededItemCount"], self.log()[0]["failedItemCount"]), (2, 1))
        self.assertEqual((self.home.folder / "Library/Logs/Second/other.log").read_bytes(), b"new and dear")
        self.assert_told_as_not_moved(application, "the item changed since it was scanned", "Second")

    def test_a_home_that_takes_no_writes_opens_and_keeps_all(self):
        self.home.add_clutter()
        self.home.set_preferences(**{"karvello.macOnboardingCompleted.v1": True, "karvello.language": "en"})
        before = self.home.files()
        self.put(mounts.make_read_only, self.home.folder)
        application = self.start("--open", "systemReview")
        application.wait_for_window()
        application.shown.wait_for("System Pulse", "heading")
        # A request that cannot be stored leads there all the same.
        self.assertEqual(self.start("--open", "memoryReview").wait_for_end(), 0)
        application.shown.wait_for("Memory Analysis", "heading")
        self.scan(application)
        self.clean(application)
        self.assert_told_as_not_moved(application, "the volume is read only", "Example", "Second", "com.example.Player")
        self.assertEqual(self.home.files(), before)
        application.close_window()
        self.assertEqual(application.wait_for_end(), 0)

    def test_a_full_disk_moves_nothing_and_then_moves_all(self):
        self.fill_disk(size=40 * MEGABYTE, free=32 * MEGABYTE)
        self.home.add("Library/Logs/Example/session.log", 3 * MEGABYTE)
        self.home.add("Library/Logs/Second/second.log", 2 * MEGABYTE)
        application = self.start_with_findings()
        before = self.home.files()
        ballast = self.use_up()
        self.clean(application)
        self.assert_told_as_not_moved(application, "the volume is out of space", "Example", "Second")
        self.assertEqual(self.home.files(), before)
        self.assertEqual(self.home.trashed(), [])
        self.assertEqual(os.listdir(self.home.trash / "info") if self.home.trash.exists() else [], [])
        ballast.unlink()
        application.open("Cleanup Review")
        self.clean(application)
        wait_until(lambda: self.home.trashed() == ["Example", "Second"], lambda: f"the Trash: {self.home.trashed()}")
        wait_until(self.log, "the log, which has room again")
        self.assertEqual((self.log()[0]["succeededItemCount"], self.log()[0]["failedItemCount"]), (2, 0))

    def use_up(self):
        """Every byte of the disk."""
        file = self.home.folder / "all-the-rest"
        with open(file, "wb", buffering=0) as stream:
            for size in (MEGABYTE, 4096):
                try:
                    while True:
                        stream.write(bytes(size))
                except OSError:
                    continue
        return file
