"""Where the bar goes at the edges of the screen, over a plain editor."""

import bar
from case import DesktopCase, SCREEN
from mousepad import Mousepad
from windows import Rect

TEXT = "First line of the document\n" + "\n" * 12 + " " * 80 + "end\n"


class PlacementTest(DesktopCase):

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.editor = Mousepad(cls.desktop, TEXT)

    def setUp(self):
        super().setUp()
        self.program = None

    def select_at(self, window, words):
        """Puts the editor somewhere and selects words there; gives the selection's rectangle."""
        self.editor.place(window)
        self.desktop.put_caret(self.editor.text, 0)
        if self.program is None:
            self.program = self.start_at_once()
        return self.editor.text.extents(*self.desktop.select(self.editor.text, words))

    def test_below_a_selection_on_the_screens_first_line(self):
        selection = self.select_at(Rect(200, 0, 800, 500), "line")
        self.assertLess(selection.y, bar.HEIGHT + bar.GAP + bar.MARGIN)
        frame = self.program.wait_for_bar_at(bar.expected_frame(selection, SCREEN, first=True))
        self.assertEqual(frame.y, selection.bottom + bar.GAP)

    def test_on_the_screen_at_its_right_and_left_edges(self):
        selection = self.select_at(Rect(200, 200, 1000, 500), "end")
        self.assertGreater(selection.x, SCREEN.right - bar.FIRST_WIDTH)
        self.program.wait_for_bar_at(bar.expected_frame(selection, SCREEN, first=True))
        self.desktop.deselect(self.editor.text)
        self.program.wait_until_hidden()

        selection = self.select_at(Rect(-4, 200, 800, 500), "First")
        self.assertLess(selection.x, bar.MARGIN)
        frame = self.program.wait_for_bar_at(bar.expected_frame(selection, SCREEN, first=False))
        self.assertEqual(frame.x, bar.MARGIN)

    def test_a_window_that_moves_keeps_its_bar_where_it_was_until_the_text_changes(self):
        selection = self.select_at(Rect(200, 200, 800, 500), "document")
        before = self.program.wait_for_bar_at(bar.expected_frame(selection, SCREEN, first=True))
        self.editor.place(Rect(300, 300, 800, 500))
        self.assertEqual(self.program.bar_frame(), before)
        words = self.desktop.select(self.editor.text, "the")
        self.program.wait_for_bar_at(bar.expected_frame(
            self.editor.text.extents(*words), SCREEN, first=False))


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
