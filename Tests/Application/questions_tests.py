"""Every question before something moves or ends, answered by no and by yes."""

import os
import pathlib
import shutil
import subprocess

import session as sessions
from case import MOVE, QUESTION, ApplicationTest
from session import wait_until

WINDOW = pathlib.Path(os.environ.get("KARVELLO_TEST_WINDOW", ""))
EXTRAS = "Move selected extras to Trash"
EXTRAS_QUESTION = "Move selected duplicate extras to Trash?"
QUIT_QUESTION = "Request Quit for Selected Apps?"


class Questions(ApplicationTest):
    def setUp(self):
        super().setUp()
        self.home.add_clutter()
        self.home.add("Movies/old.mkv", size=150_000_000)
        self.before = self.home.files()

    def find_insights(self, application, section, found):
        application.open(section)
        application.press("ctrl+r")
        return application.shown.wait_for(found, "check box")

    def assert_answers_count(self, application, question, button, no_effect, effect):
        """By no with the button, the key and the answer that has the focus; then by yes."""
        for refuse in (lambda: application.press_button("Cancel"), lambda: application.press("Escape"),
                       lambda: application.press("Return")):
            application.press_button(button)
            application.shown.wait_for(question, "dialog")
            application.shown.wait_for("Cancel", "push button", ["focused"])
            refuse()
            application.shown.wait_without(question, "dialog")
            no_effect()
        application.press_button(button)
        dialog = application.shown.wait_for(question, "dialog")
        agree = [part for part in dialog.all_showing() if part.role == "push button" and part.name != "Cancel"]
        self.assertEqual(len(agree), 1)
        agree[0].act()
        effect()

    def assert_nothing_moved(self):
        self.assertEqual(self.home.files(), self.before)
        self.assertEqual(self.home.trashed(), [])
        self.assertEqual(self.log(), [])

    def assert_moves(self, application, question, button, path):
        def moved():
            wait_until(lambda: self.home.trashed() == [os.path.basename(path)], lambda: f"the Trash: {self.home.trashed()}")
            wait_until(lambda: len(self.log()) == 1, "the log")
            self.assertEqual(self.log()[0]["succeededItemCount"], 1)
            self.assertEqual(self.home.files(), {each: size for each, size in self.before.items() if each != path})

        self.assert_answers_count(application, question, button, self.assert_nothing_moved, moved)

    def test_before_a_large_file_moves(self):
        application = self.start_after_first_run()
        self.find_insights(application, "Large Files", lambda name: name.startswith("old.mkv")).act()
        self.assert_moves(application, QUESTION, MOVE, "Movies/old.mkv")

    def test_before_a_download_moves(self):
        application = self.start_after_first_run()
        self.find_insights(application, "Downloads", lambda name: name.startswith("setup.deb")).act()
        self.assert_moves(application, QUESTION, MOVE, "Downloads/setup.deb")

    def test_before_a_duplicate_moves_and_the_keeper_stays(self):
        application = self.start_after_first_run()
        self.find_insights(application, "Duplicates", lambda name: name.startswith("film.mov, Extra copy")).act()
        keeper = application.shown.wait_for(lambda name: name.startswith("film.mov, Keeper"), "list item")
        self.assertFalse({"checkable", "checked"} & keeper.states)
        self.assert_moves(application, EXTRAS_QUESTION, EXTRAS, "Documents/Copies/film.mov")

    def test_a_restore_is_of_what_is_selected_by_then(self):
        application = self.start_after_first_run()
        self.scan(application)
        application.press_button(MOVE)
        self.agree(application)
        wait_until(lambda: len(self.log()) == 1, "the log")
        trashed = self.home.trashed()
        application.open("Review & Evidence")
        application.shown.wait_for(lambda name: name.startswith("Second,"), "check box").act()
        application.wait_until_ready("Try Restoring 1 Selected Item")
        application.shown.wait_for(lambda name: name.startswith("Second,"), "check box", ["checked"]).act()
        application.shown.wait_for("Try Restoring 0 Selected Items", "push button")
        self.assertIsNone(application.ready("Try Restoring 0 Selected Items"))
        self.assertEqual(self.home.trashed(), trashed)
        application.shown.wait_for(lambda name: name.startswith("Example,"), "check box").act()
        application.press_button("Try Restoring 1 Selected Item")
        wait_until(lambda: "Library/Logs/Example/session.log" in self.home.files(), "the log file is back")
        wait_until(lambda: len(self.log()) == 2, "the log")
        self.assertEqual(self.home.trashed(), [name for name in trashed if name != "Example"])

    def test_before_an_application_is_asked_to_quit(self):
        """Its name is this test's alone, on a display of the test: nobody else's program can be meant."""
        name = f"editor-of-test-{os.getpid()}"
        program = self.home.folder / ".local/bin" / name
        program.parent.mkdir(parents=True)
        shutil.copy2(WINDOW, program)
        entry = self.home.add(f".local/share/applications/{name}.desktop",
                              content=f"[Desktop Entry]\nType=Application\nName=Our Editor\nExec={program}\n".encode())
        self.assertTrue(entry.exists())
        editor = sessions.start([program, "closes"], self.session.environment, stdout=subprocess.PIPE, text=True)
        self.addCleanup(sessions.end, editor)
        self.assertTrue(editor.stdout.readline().startswith("shown"))

        application = self.start_after_first_run(XDG_DATA_DIRS=str(self.folder))
        application.open("Memory Analysis")
        application.shown.wait_for(lambda text: text.startswith("Our Editor"), "check box").act()
        application.shown.wait_for(lambda text: text.startswith("Our Editor"), "check box", ["checked"])

        def runs():
            self.assertIsNone(editor.poll())

        self.assert_answers_count(application, QUIT_QUESTION, "Request Quit (1)", runs,
                                  lambda: wait_until(lambda: editor.poll() == 0, "the editor has closed"))
        self.assert_nothing_moved()
