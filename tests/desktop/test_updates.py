"""The update check of the program: what the menu entry answers, and how quiet the daily look is."""

import wait
from case import DesktopCase
from controls import Controls
from notifications import Notifications
from servers import feed_of

TITLE = "Corvane Quillet Updates"
START_DELAY = 3.0


class UpdateTest(DesktopCase):

    def window(self, program):
        return self.windows.client_of(program.pid, TITLE)

    def controls(self, program):
        return Controls(self.desktop.accessibility, program.pid)

    def wait_for_answer(self, program, words):
        """Waits until the update window is in front and shows these words."""
        program.wait_until(lambda: self.window(program), 5.0, "the window is there")
        self.controls(program).find("label", words)
        program.wait_until(lambda: self.windows.focused_pid() == program.pid, 3.0,
                           "the window has the keyboard")

    def test_without_a_feed_it_says_where_updates_come_from_as_often_as_asked(self):
        program = self.start_program()
        for _ in range(2):
            program.wait_for_icon(self.tray).choose("Auf Updates prüfen …")
            self.wait_for_answer(program, "Updates come with the system's packages")
            self.hands.press("Return")
            program.wait_until(lambda: not self.window(program), 3.0, "the window is closed")

    def test_the_daily_look_tells_by_a_notification_and_leaves_the_keyboard_alone(self):
        notifications = Notifications(self.desktop.session)
        self.addCleanup(notifications.close)
        note = self.open_note("A few words.")
        program, server = self.start_elsewhere(feed_of("1.1"))
        self.desktop.focus(note)
        wait.throughout(lambda: not server.requests(), START_DELAY - 2.0, "it does not look yet")
        program.wait_until(lambda: notifications.shown, START_DELAY + 5.0, "a notification")
        shown = notifications.shown[0]
        self.assertEqual((shown.program, shown.summary),
                         ("Corvane Quillet", "Corvane Quillet 1.1 is available"))
        self.assert_at_work_in(note)
        self.assertIsNone(self.window(program))

        notifications.click(shown)
        self.wait_for_answer(program, "Corvane Quillet 1.1 is available")
        self.controls(program).find("push button", "Later").do("Press")
        program.wait_until(lambda: not self.window(program), 3.0, "the window is closed")
        self.assertEqual(len(server.requests()), 1)
