"""The bar that comes with the stored shortcut."""

import bar
import wait
from case import NoteCase, SCREEN

CONTROL_ALT_F = {"useKeyboardShortcut": True, "shortcutKeyCode": 3, "shortcutModifiers": 0x180000}
LONG_ENOUGH = 0.9  # For a poll and the delay, had they brought the bar.


class KeyboardModeTest(NoteCase):

    body = "First come some words. Then come many more."

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
        self.hands.repeat("Shift+Right", 5)
        wait.throughout(lambda: program.bar_frame() == shown, LONG_ENOUGH, "the bar stays")
        self.hands.press("Control+Alt+f")
        program.wait_for_bar_at(self.expected(self.text.selection(), first=False))

        self.desktop.deselect(self.text)
        program.wait_until_hidden()
