"""The update check of the program: what the menu entry answers."""

from case import DesktopCase
from controls import Controls

TITLE = "Corvane Quillet Updates"


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
