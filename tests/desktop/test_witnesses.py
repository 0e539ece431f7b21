"""The witnesses themselves, without the program: what they say must be true of a real editor."""

import unittest

import wait
from desktop import Desktop
from gnote import Gnote


class WitnessesTest(unittest.TestCase):

    @classmethod
    def setUpClass(cls):
        cls.desktop = Desktop()
        cls.addClassCleanup(cls.desktop.close)
        cls.note = Gnote(cls.desktop, "Witness", "One plain word among a few others.")

    def test_a_word_that_the_user_makes_bold_is_seen_bold(self):
        word = self.desktop.select(self.note.text, "plain")
        self.assertFalse(self.note.text.is_bold(*word))
        self.desktop.hands.press("Control+b")
        wait.until(lambda: self.note.text.is_bold(*word), 3.0, "the word is bold")
        self.assertEqual(self.desktop.hands.down(), [])
        self.assertFalse(self.note.text.is_bold(word[1], word[1] + 3))

    def test_the_extents_of_a_selection_are_where_the_picture_shows_it(self):
        word = self.desktop.select_by_dragging(self.note.text, "others")
        told = self.note.text.extents(*word)
        # The application tells of a selection before it has drawn all of it.
        wait.until(lambda: self.desktop.highlight_seen(told) == told, 5.0,
                   f"the picture shows the selection at {told}")


if __name__ == "__main__":
    unittest.main()
