"""What is chosen in the settings holds at once."""

from case import ApplicationTest
from session import wait_until


class Settings(ApplicationTest):
    def choose(self, application, drop_down, choice):
        application.shown.wait_for(lambda name: name.startswith(drop_down), "combo box").act()
        application.shown.wait_for(choice, "list item").act()

    def test_another_language_changes_every_text_at_once(self):
        application = self.start_after_first_run()
        application.open("Settings")
        self.choose(application, "Language", "Deutsch")
        application.shown.wait_for("Einstellungen", "heading")
        wait_until(lambda: self.home.preferences()["karvello.language"] == "de", "the language is stored")
        for english in ("Settings", "Live Dashboard", "Cleanup Review"):
            self.assertIsNone(application.shown.find(english), english)
        application.open("Arbeitsspeicheranalyse")

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
