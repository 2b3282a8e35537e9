"""Starting, starting again, going into the tray, and ending."""

from case import ApplicationTest
from session import wait_until


class Lifetime(ApplicationTest):
    def test_a_second_start_brings_the_first_forward_and_ends(self):
        first = self.start_after_first_run()
        window = first.window()
        wait_until(first.is_in_front, "the first window in front at its start")
        self.session.output("xdotool", "windowminimize", window)
        wait_until(lambda: not first.is_in_front(), "the window is minimised")
        second = self.start()
        self.assertEqual(second.wait_for_end(), 0)
        wait_until(first.is_in_front, "the first window in front")
        self.assertEqual(first.window(), window)
        self.assertTrue(first.is_running())

    def test_a_second_start_leads_the_first_to_a_section(self):
        first = self.start_after_first_run()
        for name, section in (("memoryReview", "Memory Analysis"), ("systemReview", "System Pulse"),
                              ("cleanupReview", "Cleanup Review")):
            with self.subTest(name):
                self.assertEqual(self.start("--open", name).wait_for_end(), 0)
                first.shown.wait_for(section, "heading")
                first.shown.wait_for(section, "list item", ["selected"])
        first.open("Settings")
        # The same once more is another request.
        self.assertEqual(self.start("--open", "cleanupReview").wait_for_end(), 0)
        first.shown.wait_for("Cleanup Review", "heading")

    def test_help_names_the_program_and_needs_no_display(self):
        application = self.start("--help", without=["DISPLAY"])
        self.assertEqual(application.wait_for_end(), 0)
        self.assertTrue(application.said().startswith("Usage: karvello [options]"), application.said())

    def test_a_session_manager_starts_it_again(self):
        application = self.start_after_first_run("-session", "10ab_cd")
        self.assertTrue(application.is_running())

    def test_a_second_start_leaves_the_window_as_large_as_it_is(self):
        first = self.start_after_first_run()
        place = self.session.place(first.window())
        first.press("alt+F10")
        wait_until(lambda: self.session.place(first.window()) != place, "the window fills the screen")
        large = self.session.place(first.window())
        self.assertEqual(self.start().wait_for_end(), 0)
        wait_until(first.is_in_front, "the first window in front")
        self.assertEqual(self.session.place(first.window()), large)

    def test_a_first_start_opens_where_it_was_asked_to(self):
        application = self.start_after_first_run("--open", "memoryReview")
        application.shown.wait_for("Memory Analysis", "heading")

    def test_without_a_tray_closing_the_window_ends_the_program(self):
        application = self.start_after_first_run()
        application.close_window()
        self.assertEqual(application.wait_for_end(), 0)

    def test_with_a_tray_it_stays_and_shows_the_same_when_it_is_opened_again(self):
        self.home.add_clutter()
        host = self.start_tray()
        application = self.start_after_first_run()
        self.item_in(host)
        self.scan(application)
        application.hide()
        self.assertTrue(application.is_running())
        self.assertEqual(self.start().wait_for_end(), 0)
        application.wait_for_window()
        application.open("Cleanup Review")
        application.shown.wait_for(lambda name: "Example" in name, "check box")

    def test_the_popover_leads_to_the_dashboard(self):
        host = self.start_tray()
        application = self.start_after_first_run()
        owner = self.item_in(host)
        application.hide()

        self.activate(owner)
        application.shown.wait_for("Quick Triage", "heading")
        application.press_button("Open Dashboard")
        application.shown.wait_without("Quick Triage")
        application.shown.wait_for("Live Dashboard", "heading")

    def test_the_popover_quits(self):
        host = self.start_tray()
        application = self.start_after_first_run()
        self.activate(self.item_in(host))
        application.shown.wait_for("Quick Triage", "heading")
        application.press_button("Quit")
        self.assertEqual(application.wait_for_end(), 0)
