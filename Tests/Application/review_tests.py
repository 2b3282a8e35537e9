"""From the first look to the Trash and back."""

import os

from case import MOVE, QUESTION, ApplicationTest
from session import wait_until

PLAYER = "Library/Caches/com.example.Player/stream.bin"
LOGS = ("Library/Logs/Example/session.log", "Library/Logs/Second/second.log")
FOUND = ("Example", "Second")


def is_named(part):
    return lambda name: part in name


class Review(ApplicationTest):
    def setUp(self):
        super().setUp()
        self.home.add_clutter()
        self.before = self.home.files()

    def select(self, application, *names):
        for name in names:
            row = application.shown.wait_for(is_named(name), "check box")
            if "checked" not in row.states:
                row.act()
            application.shown.wait_for(is_named(name), "check box", ["checked"])

    def select_only(self, application, *names):
        application.press_button("Clear")
        application.shown.wait_for("No items selected")
        self.select(application, *names)

    def ask(self, application):
        application.press_button(MOVE)
        application.shown.wait_for(QUESTION, "dialog")
        # The dialog's own button that says no has the focus.
        application.shown.wait_for("Cancel", "push button", ["focused"])

    def assert_nothing_moved(self):
        self.assertEqual(self.home.files(), self.before)
        self.assertEqual(self.home.trashed(), [])
        self.assertEqual(self.log(), [])

    def test_what_is_confirmed_goes_to_the_trash_and_comes_back(self):
        application = self.start()
        application.wait_for_window()
        # The first run asks once, and begins.
        application.press_button("Start Scan")
        for name in FOUND:
            application.shown.wait_for(is_named(name), "check box")
        self.select_only(application, *FOUND)

        self.ask(application)
        application.press_button("Cancel")
        application.shown.wait_without(QUESTION, "dialog")
        self.assert_nothing_moved()

        self.ask(application)
        self.agree(application)
        wait_until(lambda: self.home.trashed() == ["Example", "Second"], lambda: f"the Trash: {self.home.trashed()}")
        application.shown.wait_without(is_named("Second"), "check box")
        self.assertEqual(self.home.files(), {PLAYER: self.before[PLAYER]} | {
            path: size for path, size in self.before.items() if path not in LOGS and path != PLAYER})
        wait_until(lambda: len(self.log()) == 1, lambda: f"the log: {self.log()}")

        application.open("Review & Evidence")
        application.wait_until_ready(lambda name: name.startswith("Select All,"), "check box").act()
        application.press_button("Try Restoring 2 Selected Items")
        wait_until(lambda: self.home.files() == self.before, lambda: f"the files are back: {self.home.files()}")
        wait_until(lambda: len(self.log()) == 2, lambda: f"the log: {self.log()}")
        self.assertEqual(self.home.trashed(), [])
        self.assertEqual(os.listdir(self.home.trash / "info"), [])
        application.shown.wait_without("Try Restoring 2 Selected Items")

    def test_escape_and_return_on_the_question_move_nothing(self):
        application = self.start_after_first_run()
        self.scan(application)
        self.select_only(application, *FOUND)
        for key in ("Escape", "Return", "space", "KP_Enter"):
            with self.subTest(key):
                self.ask(application)
                application.press(key)
                application.shown.wait_without(QUESTION, "dialog")
                self.assert_nothing_moved()
                # The dialog gives the focus back to the button that opened it.
                application.shown.wait_for(MOVE, "push button", ["focused"])

    def test_ctrl_return_asks_and_moves_nothing_by_itself(self):
        application = self.start_after_first_run()
        self.scan(application)
        self.select_only(application, *FOUND)
        application.press("ctrl+Return")
        application.shown.wait_for(QUESTION, "dialog")
        application.shown.wait_for("Cancel", "push button", ["focused"])
        application.press("Return")
        application.shown.wait_without(QUESTION, "dialog")
        self.assert_nothing_moved()
