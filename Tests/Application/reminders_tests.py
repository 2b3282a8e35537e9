"""What goes to the desktop's notifications, whatever kind of service there is."""

import mounts
import session as sessions
from case import ApplicationTest
from gi.repository import Gio, GLib
from services import NOTIFICATIONS
from session import owner_of, wait_until

ENABLED = "karvello.menuBarRemindersEnabled"
DELIVERED_AT = "karvello.menuBarReminderLastDeliveredAt"
TITLE = "Karvello Needs Review"
ENDING = "Review only; Karvello does not clean anything from notifications."


class Reminders(mounts.MountsOfTheirOwn, ApplicationTest):
    def setUp(self):
        super().setUp()
        self.fill_disk()

    def start_with_reminders(self, host):
        """Whose popover is open: what it shows is fresh, and what it shows is told."""
        application = self.start_after_first_run(preferences={ENABLED: True})
        self.activate(self.item_in(host))
        application.shown.wait_for("Quick Triage", "heading")
        application.shown.wait_for("Review Cleanup", "push button")
        return application

    def is_enabled(self):
        return self.home.preferences()[ENABLED]

    def assert_it_goes_on(self, application):
        """It reacts, and ends in good order."""
        application.press_button("Open Dashboard")
        application.open("Settings")
        application.hide()
        self.assertTrue(application.is_running())

    def dunst(self, interface, name):
        return self.session.session_bus.call_sync(
            "org.freedesktop.Notifications", "/org/freedesktop/Notifications", interface, name, None, None,
            Gio.DBusCallFlags.NONE, 30_000, None).unpack()

    def test_a_reminder_is_shown_by_a_real_service_once(self):
        dunst = self.session.run("dunst", "-config", "/dev/null")
        self.addCleanup(sessions.end, dunst)
        wait_until(lambda: owner_of(self.session.session_bus, "org.freedesktop.Notifications"), "notifications")
        self.start_with_reminders(self.start_tray())
        wait_until(lambda: DELIVERED_AT in self.home.preferences(), lambda: f"delivered: {self.home.preferences()}")
        self.dunst("org.dunstproject.cmd0", "NotificationCloseAll")
        shown = wait_until(lambda: self.dunst("org.dunstproject.cmd0", "NotificationListHistory")[0], "in the history")
        self.assertEqual([(each["appname"], each["summary"]) for each in shown], [("Karvello", TITLE)])
        self.assertIn("Free space", shown[0]["body"])
        self.assertIn(ENDING, shown[0]["body"])

    def test_a_service_that_gives_no_true_answer_counts_as_no_delivery(self):
        host = self.start_tray()
        for behaviour in ("refuses", "zero", "wordy", "deaf"):
            with self.subTest(behaviour):
                service = self.serve(NOTIFICATIONS, behaviour)
                application = self.start_with_reminders(host)
                self.assertEqual(service.wait_to_hear()[0]["summary"], TITLE)
                self.assert_it_goes_on(application)
                self.assertNotIn(DELIVERED_AT, self.home.preferences())
                self.assertTrue(self.is_enabled())
                application.end()
                service.end()

    def test_without_a_service_that_answers_the_wish_is_taken_back(self):
        host = self.start_tray()
        for behaviour in (None, "lies", "silent"):
            with self.subTest(behaviour):
                service = self.serve(NOTIFICATIONS, behaviour) if behaviour else None
                application = self.start_with_reminders(host)
                self.assert_it_goes_on(application)
                wait_until(lambda: not self.is_enabled(), "the wish is taken back")
                self.assertNotIn(DELIVERED_AT, self.home.preferences())
                application.end()
                if service:
                    service.end()
