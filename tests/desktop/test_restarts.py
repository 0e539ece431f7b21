"""Parts of the desktop crash and come back: the running program takes each up again."""

from gi.repository import GLib

import wait
from case import DesktopCase
from text import AccessibilityBus


class RestartTest(DesktopCase):

    def play_main_job(self, program, note):
        words = self.desktop.select(note.text, "few")
        program.wait_for_bar(8.0)
        before = note.text.is_bold(*words)
        program.click("Bold")
        wait.until(lambda: note.text.is_bold(*words) != before, 3.0, "bold is switched")
        self.desktop.deselect(note.text)
        program.wait_until_hidden()

    def play_in_new_note(self, program):
        note = self.open_note("Only a few words.")
        self.play_main_job(program, note)
        self.desktop.session.end(note.process)

    def accessibility_bus(self):
        try:
            return AccessibilityBus(self.desktop.session, self.windows)
        except GLib.Error:
            return None  # The session has not noticed yet that its launcher is gone.

    def test_the_accessibility_bus(self):
        """Whatever of it goes; what it leaves behind serves nobody who is started afterwards."""
        program = self.start_program()
        for part in ("at-spi2-registryd", "at-spi-bus-launcher", "accessibility.conf"):
            with self.subTest(part):
                self.play_in_new_note(program)
                self.desktop.session.kill(part)
                self.desktop.accessibility = wait.until(self.accessibility_bus, 5.0, "a bus is up")
                self.play_in_new_note(program)
