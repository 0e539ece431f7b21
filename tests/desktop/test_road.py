"""The road of one selection in a real notes application, from the word to its bold letters."""

import bar
import wait
from case import NoteCase, SCREEN

BODY = """The quick brown fox jumps over the lazy dog.

Another paragraph has other words to select."""


class RoadTest(NoteCase):

    body = BODY

    def setUp(self):
        super().setUp()
        self.program = self.start_program()

    def expected(self, words, first):
        return bar.expected_frame(self.text.extents(*words), SCREEN, first)

    def test_the_bar_stands_8_points_above_what_the_picture_shows_selected(self):
        words = self.desktop.select_by_dragging(self.text, "lazy")
        frame = self.program.wait_for_bar()
        told = self.text.extents(*words)
        seen = self.desktop.highlight_seen(told)
        # GTK 4 forgets the thin border around the text.
        self.assertAlmostEqual(seen.y - frame.bottom, bar.GAP, delta=1)
        self.assertAlmostEqual(frame.x, seen.x, delta=1)

    def test_bold_makes_the_word_bold_and_leaves_the_rest_alone(self):
        words = self.desktop.select(self.text, "brown")
        frame = self.program.wait_for_bar()
        content = self.text.content()
        self.assertFalse(self.text.is_bold(*words))
        log = self.key_log()
        self.program.click("Bold")
        log.wait_for(["Control+b"])
        wait.until(lambda: self.text.is_bold(*words), 3.0, "the word is bold")
        self.assertFalse(self.text.is_bold(words[1], words[1] + 4))
        self.assertEqual(self.text.content(), content)
        self.assertEqual(self.text.selection(), words)
        self.assert_at_work_in(self.note)
        wait.throughout(lambda: self.program.bar_frame() == frame, 0.8, "the bar stays")
        wait.until(lambda: "<bold>brown</bold>" in self.note.saved(), 10.0, "the note is saved")

    def test_extending_the_selection_moves_the_bar_without_hiding_it(self):
        start = self.text.offset_of("quick")
        end = start + len("quick")
        self.desktop.put_caret(self.text, end)
        self.hands.repeat("Shift+Left", end - start)
        self.program.wait_for_bar_at(self.expected((start, end), first=True))
        self.hands.repeat("Shift+Left", len("The "))
        extended = self.expected((start - len("The "), end), first=False)

        def moved():
            frame = self.program.bar_frame()
            self.assertIsNotNone(frame, "the bar was hidden on its way")
            return frame == extended

        self.program.wait_until(moved, 3.0, f"the bar is at {extended}")

    def test_its_corners_show_what_lies_below_and_a_button_tells_its_name_under_the_pointer(self):
        before = self.desktop.settled_picture()
        self.desktop.select(self.text, "words")
        frame = self.program.wait_for_bar()
        after = self.desktop.settled_picture()
        for x in (frame.x, frame.right - 1):
            for y in (frame.y, frame.bottom - 1):
                self.assertEqual(after.colour(x, y), before.colour(x, y), (x, y))
        self.assertNotEqual(after.colour(*frame.centre), before.colour(*frame.centre))

        self.hands.move(*self.program.point_of("Italic"))
        windows = lambda: self.windows.floating_of(self.program.pid)
        self.program.wait_until(lambda: len(windows()) == 2, 3.0, "the tooltip is there")
        self.assert_at_work_in(self.note)
