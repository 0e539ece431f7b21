"""The stored shortcut: only it brings the bar when the user has chosen so."""

import unittest

import bar
import wait
from case import DesktopCase
from gnote import Gnote
from windows import Rect

CONTROL_ALT_F = {"useKeyboardShortcut": True, "shortcutKeyCode": 3, "shortcutModifiers": 0x180000}
SCREEN = Rect(0, 0, 1280, 800)
LONG_ENOUGH = 0.9  # For a poll and the delay, had they brought the bar.


class KeyboardModeTest(DesktopCase):

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.note = Gnote(cls.desktop, "Shortcuts", "First come some words. Then come many more.")
        cls.text = cls.note.text

    def setUp(self):
        super().setUp()
        self.desktop.put_caret(self.text, 0)

    def assert_no_bar(self, program):
        wait.throughout(lambda: program.bar_frame() is None, LONG_ENOUGH, "the bar is hidden")

    def expected(self, words, first):
        return bar.expected_frame(self.text.extents(*words), SCREEN, first)

    def test_the_bar_comes_with_the_shortcut_and_goes_with_the_selection(self):
        program = self.start_program(settings=CONTROL_ALT_F)
        self.hands.press("Control+Alt+f")
        words = self.desktop.select(self.text, "some")
        self.assert_no_bar(program)
        self.hands.press("Control+Alt+Shift+f")
        self.hands.press("Control+Alt+g")
        self.assert_no_bar(program)
        self.assertEqual(self.text.selection(), words)

        self.hands.press("Control+Alt+f")
        shown = program.wait_for_bar_at(self.expected(words, first=True))

        # Other words neither move nor hide it, until the shortcut is pressed again.
        self.hands.repeat("Shift+Left", 8)
        wait.throughout(lambda: program.bar_frame() == shown, LONG_ENOUGH, "the bar stays")
        self.hands.press("Control+Alt+f")
        program.wait_for_bar_at(self.expected(self.text.selection(), first=False))

        self.desktop.deselect(self.text)
        program.wait_until_hidden()

    def test_caps_lock_does_not_matter(self):
        program = self.start_program(settings=CONTROL_ALT_F)
        self.hands.press("Caps_Lock")
        self.addCleanup(self.hands.press, "Caps_Lock")
        words = self.desktop.select(self.text, "many")
        self.assert_no_bar(program)
        self.hands.press("Control+Alt+f")
        program.wait_for_bar_at(self.expected(words, first=True))
        self.program_makes_bold(program, words)

    def program_makes_bold(self, program, words):
        program.click("Bold")
        wait.until(lambda: self.text.is_bold(*words), 3.0, "the words are bold")


if __name__ == "__main__":
    unittest.main()
