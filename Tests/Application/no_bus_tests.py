"""Where there is no session bus, there is nobody who reads the screen for us: keys, the mouse, what is drawn, and files."""

import os
import time

from case import MOVE, ApplicationTest
from home import Home
from services import FalseBus
from session import owner_of, wait_until

READY = {"karvello.macOnboardingCompleted.v1": True, "karvello.language": "en", "karvello.appearanceMode": "light"}


class NoBus(ApplicationTest):
    def start_without_bus(self, *arguments, **options):
        application = self.start(*arguments, without=["DBUS_SESSION_BUS_ADDRESS"], **options)
        application.wait_for_window()
        wait_until(lambda: self.is_drawn(application), "the window is drawn")
        return application

    def picture(self, application):
        return self.session.picture(application.window())

    def is_drawn(self, application):
        """In many colours."""
        return len({row[x:x + 3] for row in self.picture(application).rows for x in range(0, len(row), 3)}) > 50

    def wait_until_still(self, application):
        """Nothing has moved for a while, as it does during a scan."""
        shown, since = None, 0

        def is_still():
            nonlocal shown, since
            rows = self.picture(application).rows
            if rows != shown:
                shown, since = rows, time.monotonic()
            return time.monotonic() - since > 0.7

        wait_until(is_still, "nothing moves any more")

    def centre_of(self, application, words):
        x, y, width, height = application.shown.wait_for(lambda text: text.startswith(words)).place()
        return x + width // 2, y + height // 2

    def places_to_restore_with(self):
        """The box for all and the button, as the program shows them in another such home with a bus."""
        own = self.home
        self.home = Home(self.folder / "home-of-the-other").add_clutter()
        application = self.start_after_first_run()
        self.scan(application)
        application.press("ctrl+a")
        application.press_button(MOVE)
        self.agree(application)
        wait_until(lambda: len(self.log()) == 1, "the other clean")
        application.open("Review & Evidence")
        box = self.centre_of(application, "Select All,")
        application.wait_until_ready(lambda name: name.startswith("Select All,"), "check box").act()
        places = box, self.centre_of(application, "Try Restoring")
        application.end()
        self.home = own
        return places

    def test_a_first_run_to_the_trash_and_back(self):
        self.home.add_clutter()
        self.home.set_preferences(**{"karvello.appearanceMode": "light"})
        before = self.home.files()
        application = self.start_without_bus()
        self.assertIsNone(owner_of(self.session.session_bus, "io.github.karvello.Karvello"))
        application.press("Return")
        wait_until(lambda: self.home.preferences().get("karvello.macOnboardingCompleted.v1"), "the first run is over")

        # A question darkens all else.
        bright = 0

        def is_asked():
            nonlocal bright
            bright = max(bright, self.picture(application).brightness())
            return self.picture(application).brightness() < bright - 0.15

        def asks():
            # Pressed again too early, the keys would answer the question.
            self.wait_until_still(application)
            application.press("ctrl+a")
            application.press("ctrl+Return")
            try:
                return wait_until(is_asked, "", limit=10)
            except AssertionError:
                return False

        wait_until(asks, "the scan is over, and the question is asked")
        application.press("Return")
        wait_until(lambda: not is_asked(), "the question is gone")
        self.assertEqual(self.home.files(), before)
        self.assertEqual(self.home.trashed(), [])

        wait_until(asks, "the question is asked again")
        application.press("Tab")
        application.press("space")
        wait_until(lambda: not is_asked(), "the question is gone")
        wait_until(self.log, "the clean is in the log")
        self.assertEqual(len(self.log()), 1)
        moved = self.home.trashed()
        self.assertIn("Example", moved)
        self.assertNotIn("Library/Logs/Example/session.log", self.home.files())

        box, button = self.places_to_restore_with()
        self.session.output("xdotool", "windowactivate", "--sync", application.window())
        application.press("ctrl+3")
        before_section = self.picture(application).rows
        self.session.click(*box)
        wait_until(lambda: self.picture(application).rows != before_section, "the box is checked")
        self.session.click(*button)
        wait_until(lambda: self.home.files() == before, lambda: f"the files are back: {self.home.files()}")
        wait_until(lambda: len(self.log()) == 2, "the restore is in the log")
        self.assertEqual(self.home.trashed(), [])
        self.assertEqual(sorted(os.listdir(self.home.trash / "info")), [])
        application.close_window()
        self.assertEqual(application.wait_for_end(), 0)

    def test_the_digits_lead_through_the_sections(self):
        self.home.set_preferences(**READY)
        application = self.start_without_bus()
        seen = [self.picture(application).rows]
        for place in (2, 3, 4, 5, 9):
            application.press(f"ctrl+{place}")
            wait_until(lambda: self.picture(application).rows not in seen and self.is_drawn(application), "another section")
            seen.append(self.picture(application).rows)
        application.close_window()
        self.assertEqual(application.wait_for_end(), 0)

    def test_its_own_dialog_picks_folders(self):
        self.home.set_preferences(**READY)
        twin = self.start()
        twin.wait_for_window()
        twin.open("Settings")
        button = self.centre_of(twin, "Add Folder")
        twin.end()
        application = self.start_without_bus()
        application.press("ctrl+1")
        application.press("End")
        self.session.click(*button)
        wait_until(lambda: self.dialogs(), "a dialog")
        self.session.press("Escape")
        wait_until(lambda: not self.dialogs(), "the dialog is gone")
        application.close_window()
        self.assertEqual(application.wait_for_end(), 0)

    def dialogs(self):
        return self.session.output("xdotool", "search", "--onlyvisible", "--name", "^Add user-selected folders").split()

    def test_a_bus_that_is_none_holds_up_nothing_for_ever(self):
        """Nobody behind the address, somebody who says nothing, and somebody who talks nonsense."""
        self.home.set_preferences(**READY)
        for behaviour in ("absent", "silent", "lies"):
            with self.subTest(behaviour):
                address = self.folder / f"{behaviour}.socket"
                server = FalseBus(address, behaviour) if behaviour != "absent" else None
                application = self.start(DBUS_SESSION_BUS_ADDRESS=f"unix:path={address}")
                application.wait_for_window()
                wait_until(lambda: self.is_drawn(application), "the window is drawn")
                shown = self.picture(application).rows
                application.press("ctrl+2")
                wait_until(lambda: self.picture(application).rows != shown, "another section")
                application.close_window()
                self.assertEqual(application.wait_for_end(), 0)
                if server:
                    self.assertTrue(server.was_asked())
                    server.close()
