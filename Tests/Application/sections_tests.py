"""Each section by the keyboard, as somebody finds it who hears and does not see."""

from case import ApplicationTest

SECTIONS = ("Live Dashboard", "Cleanup Review", "Review & Evidence", "Storage Map", "Large Files", "Downloads", "Duplicates",
            "Installer Review", "System Pulse", "CPU Analysis", "Memory Analysis", "Settings")

# What somebody presses, toggles, chooses, or types into.
ACTING = ("push button", "check box", "radio button", "list item", "combo box", "text", "entry", "menu item", "link",
          "button menu", "popup menu")
# What takes the focus on behalf of what is in it; and labels, since Qt 6.4 says of each that the focus goes there.
OTHERS = ("frame", "list", "dialog", "label")


class Sections(ApplicationTest):
    def assert_is_on_show(self, application, section):
        application.shown.wait_for(section, "heading")
        application.shown.wait_for(section, "list item", ["selected", "focused"])
        selected = [element.name for element in application.shown.elements()
                    if element.role == "list item" and "selected" in element.states]
        self.assertEqual([name for name in selected if name in SECTIONS], [section])

    def test_the_digits_lead_to_the_first_nine(self):
        application = self.start_after_first_run()
        for place, section in enumerate(SECTIONS[:9], 1):
            with self.subTest(section):
                application.press(f"ctrl+{place}")
                self.assert_is_on_show(application, section)

    def test_the_arrows_lead_through_all_and_back(self):
        application = self.start_after_first_run()
        application.press("ctrl+1")
        self.assert_is_on_show(application, SECTIONS[0])
        for section in SECTIONS[1:]:
            with self.subTest(section):
                application.press("Down")
                self.assert_is_on_show(application, section)
        application.press("Down")
        self.assert_is_on_show(application, SECTIONS[-1])
        application.press("Up")
        self.assert_is_on_show(application, SECTIONS[-2])
        application.press("Home")
        self.assert_is_on_show(application, SECTIONS[0])
        application.press("End")
        self.assert_is_on_show(application, SECTIONS[-1])

    def test_everything_that_takes_the_focus_has_a_name_and_a_fitting_role(self):
        self.home.add_clutter()
        application = self.start_after_first_run()
        self.scan(application)
        application.open("Storage Map")
        application.press_button("Start Insight Scan")
        application.shown.wait_for(lambda name: "of the largest area" in name, "list item")
        for section in SECTIONS:
            with self.subTest(section):
                application.open(section)
                self.assertEqual(self.faults(application), [])

    def faults(self, application):
        """What can be reached or pressed, and does not say what it is."""
        faults = []
        for element in application.shown.elements():
            role, name = element.role, element.name
            reached = "focusable" in element.states and role not in OTHERS
            if reached and role not in ACTING or (reached or role in ACTING) and not name:
                faults.append((role, name, element.place()))
        return faults

    def test_f1_lists_the_keys_and_gives_the_focus_back(self):
        application = self.start_after_first_run()
        application.press("ctrl+1")
        self.assert_is_on_show(application, SECTIONS[0])
        application.press("F1")
        application.shown.wait_for("Keyboard Shortcuts", "dialog")
        application.shown.wait_for("Close", "push button", ["focused"])
        application.shown.wait_for(lambda name: name.startswith("Ctrl+R, "), "list item")
        application.press("Escape")
        application.shown.wait_without("Keyboard Shortcuts", "dialog")
        self.assert_is_on_show(application, SECTIONS[0])
