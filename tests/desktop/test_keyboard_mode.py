"""The user's keyboard: the stored shortcut, held modifiers, other layouts."""

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

    def test_caps_lock_does_not_matter(self):
        program = self.start_program(settings=CONTROL_ALT_F)
        self.hands.press("Caps_Lock")
        self.addCleanup(self.hands.press, "Caps_Lock")
        words = self.desktop.select(self.text, "many")
        self.assert_no_bar(program)
        self.hands.press("Control+Alt+f")
        program.wait_for_bar_at(self.expected(words, first=True))
        program.click("Bold")
        wait.until(lambda: self.text.is_bold(*words), 3.0, "the word is bold")


class HeldKeysTest(NoteCase):
    """What the user's own fingers do while a shortcut is to be posted."""

    body = "Bold with Dvorak, never with Shift held down."

    def select_and_wait(self, words):
        program = self.start_at_once()
        chosen = self.desktop.select(self.text, words)
        program.wait_for_bar()
        return program, chosen

    def test_a_modifier_that_stays_down_prevents_the_shortcut(self):
        program, words = self.select_and_wait("Shift")
        log = self.key_log()
        self.hands.hold("Shift_L")
        try:
            program.click("Bold")
            program.wait_for_line("Quillet: shortcut not posted — modifier keys are held")
        finally:
            self.hands.release("Shift_L")
        self.assertEqual(log.chords(), [])
        self.assertFalse(self.text.is_bold(*words))

    def test_a_modifier_that_is_soon_let_go_only_delays_it(self):
        program, words = self.select_and_wait("never")
        log = self.key_log()
        self.hands.hold("Shift_L")
        try:
            program.click("Bold")
            wait.throughout(lambda: log.chords() == [], 0.25, "nothing is posted")
        finally:
            self.hands.release("Shift_L")
        log.wait_for(["Control+b"])
        wait.until(lambda: self.text.is_bold(*words), 3.0, "the word is bold")

    def test_letters_follow_the_layout(self):
        self.desktop.session.run(["setxkbmap", "us", "-variant", "dvorak"])
        self.addCleanup(self.desktop.session.run, ["setxkbmap", "us"])
        content = self.text.content()
        program, words = self.select_and_wait("Dvorak")
        program.click("Bold")
        wait.until(lambda: self.text.is_bold(*words), 3.0, "the word is bold")
        self.assertEqual(self.text.content(), content)
