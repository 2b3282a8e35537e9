"""What is chosen in the settings holds at once."""

from case import ApplicationTest
from session import wait_until


class Settings(ApplicationTest):
    def test_another_language_changes_every_text_at_once(self):
        application = self.start_after_first_run()
        application.open("Settings")
        application.shown.wait_for("Language, English", "combo box").focus()
        application.shown.wait_for("Language, English", "combo box", ["focused"])
        # The last of the list.
        application.press("space")
        application.shown.wait_for("Deutsch")
        application.press("End")
        application.press("Return")
        application.shown.wait_for("Einstellungen", "heading")
        wait_until(lambda: self.home.preferences()["karvello.language"] == "de", "the language is stored")
        for english in ("Settings", "Live Dashboard", "Cleanup Review"):
            self.assertIsNone(application.shown.find(english), english)
        application.open("RAM-Analyse")

    def test_another_appearance_changes_the_colours_at_once(self):
        def brightness():
            return self.session.picture(application.window()).brightness()

        application = self.start_after_first_run(preferences={"karvello.appearanceMode": "light"})
        application.open("Settings")
        wait_until(lambda: brightness() > 0.7, "a light window")
        application.shown.wait_for("Dark", "radio button").act()
        wait_until(lambda: brightness() < 0.3, "a dark window")
        wait_until(lambda: self.home.preferences()["karvello.appearanceMode"] == "dark", "the appearance is stored")

    def test_what_another_program_stores_holds_at_once(self):
        application = self.start_after_first_run()
        application.open("Settings")
        self.home.set_preferences(**{**self.home.preferences(), "karvello.language": "fr"})
        application.shown.wait_for("Réglages", "heading")
