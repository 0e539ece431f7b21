"""Where the bar goes on two screens, and on dense ones, over a plain editor."""

import bar
from case import DesktopCase
from mousepad import Mousepad
from windows import Rect

TEXT = "First line of the document\n" + "\n" * 12 + " " * 80 + "end\n"


class SecondScreenTest(DesktopCase):
    """Two screens of different sizes beside one another."""

    LEFT, RIGHT = Rect(0, 0, 1280, 800), Rect(1280, 0, 1024, 768)
    desktop_options = {"width": 2304, "height": 800,
                       "monitors": [(1280, 800, 0, 0), (1024, 768, 1280, 0)]}

    def test_the_bar_stays_on_the_screen_of_the_selection(self):
        editor = Mousepad(self.desktop, TEXT, Rect(1400, 200, 880, 400))
        program = self.start_at_once()
        for words, first in (("document", True), ("end", False)):
            area = editor.text.extents(*self.desktop.select(editor.text, words))
            frame = bar.expected_frame(area, self.RIGHT, first)
            self.assertGreater(area.x, self.RIGHT.x)
            program.wait_for_bar_at(frame)
        self.desktop.deselect(editor.text)
        program.wait_until_hidden()

        editor.place(Rect(380, 200, 880, 400))
        area = editor.text.extents(*self.desktop.select(editor.text, "end"))
        frame = program.wait_for_bar_at(bar.expected_frame(area, self.LEFT, first=False))
        self.assertEqual(frame.right, self.LEFT.right - bar.MARGIN)


class DoubleScaleTest(DesktopCase):
    """A screen with two pixels to the point."""

    SCREEN = Rect(0, 0, 2560, 1600)
    desktop_options = {"width": 2560, "height": 1600}

    def assert_bar_above(self, editor, seen_from):
        """The picture counts: the editor's own word is in pixels or in points."""
        program = self.start_program(settings={"appearanceDelay": 0}, scale=2)
        words = self.desktop.select(editor.text, "document")
        told = editor.text.extents(*words)
        seen = self.desktop.highlight_seen(seen_from(told))
        frame = program.wait_for_bar()
        expected = bar.expected_frame(seen, self.SCREEN, first=True, scale=2)
        self.assertEqual((frame.width, frame.height), (expected.width, expected.height))
        # Windows stand on whole points: one pixel may be lost.
        self.assertAlmostEqual(frame.x, expected.x, delta=1)
        self.assertAlmostEqual(frame.y, expected.y, delta=1)

        log = self.key_log()
        program.click("Monospaced")
        log.wait_for(["Control+Shift+m"])

    def test_over_an_editor_that_draws_for_the_same_screen(self):
        editor = Mousepad(self.desktop, TEXT, Rect(500, 700, 1200, 600), {"GDK_SCALE": "2"})
        self.addCleanup(self.desktop.session.end, editor.process)
        self.assert_bar_above(editor, lambda told: Rect(
            2 * told.x, 2 * told.y, 2 * told.width, 2 * told.height))

    def test_over_an_editor_that_knows_nothing_of_dense_screens(self):
        editor = Mousepad(self.desktop, TEXT, Rect(500, 700, 1200, 600))
        self.addCleanup(self.desktop.session.end, editor.process)
        self.assert_bar_above(editor, lambda told: told)
