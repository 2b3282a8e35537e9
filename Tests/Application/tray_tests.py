"""The item in a tray of the older kind, which embeds windows, and what the popover says of a machine in need."""

import time

import mounts
import session as sessions
from case import ApplicationTest
from session import wait_until

SECTIONS = {"Review Cleanup": "Cleanup Review", "Open Memory Analysis": "Memory Analysis",
            "Review System Status": "System Pulse"}
HEIGHT = 24


class Tray(mounts.MountsOfTheirOwn, ApplicationTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.show_tray()

    @classmethod
    def show_tray(cls):
        cls.tray = cls.session.run("trayer", "--edge", "top", "--align", "right", "--widthtype", "request", "--height", HEIGHT)

    def strain_machine(self):
        figures = self.folder / f"figures-{self._testMethodName}"
        zone = figures / "thermal/thermal_zone0"
        zone.mkdir(parents=True)
        for name, text in (("mode", "enabled"), ("temp", "80000"), ("trip_point_0_type", "passive"),
                           ("trip_point_0_temp", "70000")):
            (zone / name).write_text(text + "\n")
        memory = figures / "meminfo"
        memory.write_text("MemTotal: 1000000 kB\nMemFree: 50000 kB\nMemAvailable: 100000 kB\n")
        self.put(mounts.put_over, "/sys/class/thermal", zone.parent)
        self.put(mounts.put_over, "/proc/meminfo", memory)

    def wait_for_item(self, application):
        """Its place in the tray."""
        return wait_until(lambda: self.place_of_item(application), "the item is in the tray")

    def place_of_item(self, application):
        for window in application.windows():
            x, y, width, height = self.session.place(window) or (0, 0, 0, 0)
            if 0 < width == height <= HEIGHT and y < HEIGHT:
                return x + width // 2, y + height // 2
        return None

    def open_popover(self, application):
        self.click_until(application, 1, lambda: application.shown.find("Quick Triage", "heading"), "the popover")

    def click_until(self, application, button, is_open, what):
        """A window that goes just then takes the focus from what the click has opened: a person clicks once more."""
        def opens():
            self.session.click(*self.wait_for_item(application), button)
            try:
                return wait_until(is_open, what, limit=3)
            except AssertionError:
                return None

        wait_until(opens, what)

    def start_hidden(self, **options):
        """With its item only."""
        application = self.start_after_first_run(**options)
        self.wait_for_item(application)
        application.hide()
        return application

    def test_a_click_opens_the_popover_and_another_closes_it(self):
        application = self.start_hidden()
        self.open_popover(application)
        # Two clicks that follow each other sooner are a double click.
        time.sleep(0.6)
        self.session.click(*self.wait_for_item(application))
        application.shown.wait_without("Quick Triage")
        # A click that follows at once is taken for the one that closed it.
        time.sleep(0.3)
        self.open_popover(application)
        application.shown.wait_for("No alerts need review now")
        self.session.press("Escape")
        application.shown.wait_without("Quick Triage")
        self.assertTrue(application.is_running())

    def test_a_double_click_opens_the_popover(self):
        application = self.start_hidden()
        item = self.wait_for_item(application)
        self.session.output("xdotool", "mousemove", *item, "click", "--repeat", 2, "--delay", 60, 1)
        application.shown.wait_for("Quick Triage", "heading")
        time.sleep(1)
        self.assertTrue(application.shown.find("Quick Triage", "heading"))

    def choose_in_menu(self, application, place):
        """By the keyboard: assistants are not told of the menu of an item."""
        known = set(application.windows())
        self.click_until(application, 3, lambda: set(application.windows()) - known, "the menu")
        self.session.press(*["Down"] * place, "Return")

    def test_the_menu_of_the_item_leads_to_each_section_and_quits(self):
        application = self.start_hidden()
        for place, section in enumerate(("Live Dashboard", *SECTIONS.values()), 1):
            with self.subTest(section):
                self.choose_in_menu(application, place)
                application.wait_for_window()
                application.shown.wait_for(section, "heading")
                application.hide()
        self.choose_in_menu(application, 5)
        self.assertEqual(application.wait_for_end(), 0)

    def test_the_popover_leads_to_each_section_that_a_machine_in_need_calls_for(self):
        self.fill_disk()
        self.strain_machine()
        application = self.start_hidden()
        for button, section in SECTIONS.items():
            with self.subTest(section):
                self.open_popover(application)
                application.press_button(button)
                application.shown.wait_without("Quick Triage")
                application.wait_for_window()
                application.shown.wait_for(section, "heading")
                application.hide()

    def test_the_popover_quits(self):
        application = self.start_hidden()
        self.open_popover(application)
        application.press_button("Quit")
        self.assertEqual(application.wait_for_end(), 0)

    def test_closing_the_window_ends_the_program_once_the_tray_has_gone(self):
        application = self.start_hidden()
        self.open_popover(application)
        application.press_button("Open Dashboard")
        application.wait_for_window()
        sessions.end(self.tray)
        self.addCleanup(self.show_tray)
        application.close_window()
        self.assertEqual(application.wait_for_end(), 0)
