"""The heading picker: opened, a level chosen, dismissed, and never in the way of the text."""

from case import NoteCase
from keylog import KeyLog


class HeadingPickerTest(NoteCase):

    body = "Some words make a better heading than others."

    def setUp(self):
        super().setUp()
        self.program = self.start_at_once()
        self.words = self.desktop.select(self.text, "better")
        self.program.wait_for_bar()
        self.program.click("Heading")
        self.picker = self.program.wait_for_picker()

    def assert_only_the_picker_closed(self):
        self.program.wait_until(lambda: self.program.picker_frame() is None, 2.0,
                                "the picker is closed")
        self.assertIsNotNone(self.program.bar_frame())
        self.assertEqual(self.text.selection(), self.words)
        self.assert_at_work_in(self.note)

    def test_it_stands_below_its_button_and_leaves_the_keyboard_to_the_text(self):
        x, _ = self.program.point_of("Heading")
        bar = self.program.bar_frame()
        self.assertAlmostEqual(self.picker.centre[0], x, delta=1)
        self.assertLessEqual(abs(self.picker.y - bar.bottom), 12)
        self.assertEqual(self.text.selection(), self.words)
        self.assert_at_work_in(self.note)

    def test_each_level_posts_its_shortcut_once_and_closes_the_picker(self):
        for level, chord in (("Title", "Control+Shift+t"), ("Heading", "Control+Shift+h"),
                             ("Subheading", "Control+Shift+j"), ("Body", "Control+Shift+b")):
            if self.program.picker_frame() is None:
                self.program.click("Heading")
                self.program.wait_for_picker()
            with KeyLog(self.desktop.session.display) as log:
                self.hands.click(*self.row_in_picker(level).centre)
                log.wait_for([chord])
            self.assert_only_the_picker_closed()

    def row_in_picker(self, level):
        picker = self.program.wait_for_picker()
        return self.desktop.accessibility.extents_of(self.program.pid, level, within=picker)

    def test_a_click_elsewhere_dismisses_it(self):
        # An empty place of the notes application's toolbar: it takes nothing from the text.
        window = self.windows.frame(self.note.window)
        self.hands.click(window.x + window.width // 2, window.y + 22)
        self.assert_only_the_picker_closed()

    def test_it_goes_with_the_bar_and_comes_back_with_it(self):
        self.desktop.deselect(self.text)
        self.program.wait_until(lambda: not self.windows.floating_of(self.program.pid), 3.0,
                                "bar and picker are gone")
        self.desktop.select(self.text, "words")
        self.program.wait_for_bar()
        self.program.wait_for_picker()
        # At the button where it is now, not where the bar stood before.
        self.program.wait_until(
            lambda: abs(self.program.picker_frame().centre[0]
                        - self.program.point_of("Heading")[0]) <= 1,
            3.0, "the picker stands at its button")
