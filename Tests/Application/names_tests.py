"""Names that nobody would choose, all the way: found, shown, moved, restored. They are bytes, and stay so."""

import os
import unicodedata

from case import MOVE, ApplicationTest
from session import wait_until

NAMES = [
    b"\xe2\x80\xaetxt.exe \xe2\x81\xa6bidi\xe2\x81\xa9",
    b"two\nlines\r\n\tand a bell\x07",
    b"<b>bold <img src='file:passwd'> &amp; %s %1 {0}",
    b"n" * 251 + b"-255",
    b"\xff\xfe not UTF-8 \xc3",
    b" leading, trailing and 'quoted' \"twice\" \\ ",
    b"-rf ~ $(reboot) `reboot` ;*?",
    "한국어 é e\N{COMBINING ACUTE ACCENT} 👩‍👩‍👧".encode(),
]
DANGEROUS = {"Cc", "Cf", "Cs", "Zl", "Zp"}
# What an emoji of several is made with, and what keeps a direction to itself.
HARMLESS = {"\N{ZERO WIDTH JOINER}", "\N{FIRST STRONG ISOLATE}", "\N{POP DIRECTIONAL ISOLATE}"}


class Names(ApplicationTest):
    def setUp(self):
        super().setUp()
        self.logs = os.fsencode(self.home.folder / "Library/Logs")
        for name in NAMES:
            self.home.add("Library/Logs/" + os.fsdecode(name) + "/session.log", size=5000)

    def found(self):
        return sorted(os.listdir(self.logs))

    def assert_shown_harmlessly(self, application):
        for element in list(application.shown.elements()):
            text = element.name + element.description
            bad = [character for character in text.replace("\n", "")
                   if unicodedata.category(character) in DANGEROUS and character not in HARMLESS]
            self.assertEqual(bad, [], repr(text))

    def test_names_of_all_kinds_are_found_moved_and_restored_as_they_are(self):
        application = self.start_after_first_run()
        application.open("Cleanup Review")
        application.press_button("Start New Scan")
        rows = wait_until(lambda: self.rows(application), "the findings")
        self.assertTrue(any("<b>bold <img" in row for row in rows), rows)
        self.assert_shown_harmlessly(application)
        application.press("ctrl+a")
        application.press_button(MOVE)
        application.shown.wait_for("Move selected items to Trash?", "dialog")
        self.assert_shown_harmlessly(application)
        self.agree(application)
        wait_until(lambda: len(self.log()) == 1, "the log")
        self.assertEqual(self.log()[0]["succeededItemCount"], len(NAMES))
        self.assertEqual(self.found(), [])
        self.assertEqual(len(self.home.trashed()), len(NAMES))

        application.open("Review & Evidence")
        application.wait_until_ready(lambda name: name.startswith("Select All,"), "check box").act()
        application.wait_until_ready(lambda name: name.startswith("Try Restoring"))
        self.assert_shown_harmlessly(application)
        application.press_button(f"Try Restoring {len(NAMES)} Selected Items")
        wait_until(lambda: self.found() == sorted(NAMES), lambda: f"the names are back: {self.found()}")
        wait_until(lambda: len(self.log()) == 2, "the log")
        self.assertEqual(self.log()[0]["succeededItemCount"], len(NAMES))
        for name in NAMES:
            self.assertEqual(os.stat(os.path.join(self.logs, name, b"session.log")).st_size, 5000)
        self.assertEqual(os.listdir(self.home.trash / "info"), [])
        self.assert_shown_harmlessly(application)

    def rows(self, application):
        names = [element.name for element in application.shown.elements() if element.role == "check box"]
        return names if len(names) > 2 else None
