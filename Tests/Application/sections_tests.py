"""Each section by the keyboard, as somebody finds it who hears and does not see."""

from case import ApplicationTest

SECTIONS = ("Live Dashboard", "Cleanup Review", "Review & Evidence", "Storage Map", "Large Files", "Downloads", "Duplicates",
            "Installer Review", "System Pulse", "CPU Analysis", "Memory Analysis", "Settings")


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

    def test_everything_that_takes_the_focus_has_a_name(self):
        application = self.start_after_first_run()
        for section in SECTIONS:
            with self.subTest(section):
                application.open(section)
                nameless = [(element.role, element.place()) for element in application.shown.elements()
                            if element.role in ("push button", "check box", "list item", "combo box", "text", "radio button")
                            and not element.name]
                self.assertEqual(nameless, [])
