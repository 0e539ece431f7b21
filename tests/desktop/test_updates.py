"""The update check of the program: what the menu entry answers, and how quiet the daily look is.

A second executable takes the place of the shipped one where there is a feed: the same objects, with
the address of a server of ours and its authority in place of the build's own."""

import os

from gi.repository import GLib

import wait
from case import DesktopCase, ELSEWHERE
from controls import Controls
from notifications import Notifications
from servers import Feed

TITLE = "Corvane Quillet Updates"
MENU_ENTRY = "Auf Updates prüfen …"
START_DELAY = 3.0


class UpdateCase(DesktopCase):

    def ask(self, program):
        program.wait_for_icon(self.tray).choose(MENU_ENTRY)

    def window(self, program):
        return self.windows.client_of(program.pid, TITLE)

    def wait_for_answer(self, program, *words):
        """Waits until the update window is in front and shows all these words."""
        def shows():
            try:
                return self.window(program) and set(words) <= {
                    name for _, name in Controls(self.desktop.accessibility, program.pid).all()}
            except GLib.Error:
                return False  # One answer takes the place of another under our feet.
        program.wait_until(shows, 5.0, f"the window shows {words}")
        program.wait_until(lambda: self.windows.focused_pid() == program.pid, 3.0,
                           "the window has the keyboard")

    def press(self, program, button):
        Controls(self.desktop.accessibility, program.pid).find("push button", button).do("Press")
        program.wait_until(lambda: not self.window(program), 3.0, "the window is closed")

    def state_path(self):
        return os.path.join(self.desktop.session.environment["HOME"],
                            ".local/state/corvane-quillet/updates.json")


class WithoutFeedTest(UpdateCase):

    def test_it_says_where_updates_come_from_as_often_as_asked(self):
        program = self.start_program()
        for _ in range(2):
            self.ask(program)
            self.wait_for_answer(program, "Updates come with the system's packages", "OK")
            self.hands.press("Return")
            program.wait_until(lambda: not self.window(program), 3.0, "the window is closed")
        self.assertFalse(os.path.exists(self.state_path()))


class WithFeedTest(UpdateCase):

    def setUp(self):
        super().setUp()
        if os.path.exists(self.state_path()):
            os.remove(self.state_path())
        self.feed = Feed(self.desktop.session)
        self.addCleanup(self.feed.close)
        self.notifications = Notifications(self.desktop.session)
        self.addCleanup(self.notifications.close)

    def start(self, **environment):
        return self.start_program(executable=ELSEWHERE,
                                  environment={**self.feed.environment, **environment})

    def test_the_daily_look_tells_by_a_notification_and_leaves_the_keyboard_alone(self):
        note = self.open_note("A few words.")
        self.feed.publish("1.1")
        program = self.start()
        self.desktop.focus(note)
        wait.throughout(lambda: not self.feed.requests(), START_DELAY - 2.0, "it does not look yet")
        program.wait_until(lambda: self.notifications.shown, START_DELAY + 5.0, "a notification")
        shown = self.notifications.shown[0]
        self.assertEqual((shown.program, shown.summary),
                         ("Corvane Quillet", "Corvane Quillet 1.1 is available"))
        self.assert_at_work_in(note)
        self.assertIsNone(self.window(program))

        self.notifications.click(shown)
        self.wait_for_answer(program, "Corvane Quillet 1.1 is available")
        self.press(program, "Later")
        self.assertEqual(self.feed.requests(), 1)
