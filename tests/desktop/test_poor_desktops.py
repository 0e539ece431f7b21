"""Desktops that lack something: the program says so where it matters, and goes on."""

import bar
import wait
from case import DesktopCase, EXECUTABLE, SCREEN
from program import Program


class NoWindowManagerTest(DesktopCase):
    """Nobody manages windows, and there is no tray: the bar and the road work all the same."""

    desktop_options = {"window_manager": False}
    with_tray = False

    def test_the_road_works(self):
        note = self.open_note("A few words, and then some more of them.")
        program = self.start_at_once()
        words = self.desktop.select(note.text, "some")
        program.wait_for_bar_at(bar.expected_frame(note.text.extents(*words), SCREEN, True))
        program.click("Bold")
        wait.until(lambda: note.text.is_bold(*words), 3.0, "the word is bold")
        self.assertEqual(self.windows.focused_pid(), note.pid)

    def test_without_an_x_server_it_ends_with_one_plain_line(self):
        program = Program(self.desktop, EXECUTABLE, environment={"DISPLAY": ":99999"})
        self.assertEqual(program.wait_for_end(), 1)
        self.assertEqual(len(program.output() + program.complaints()), 1)


class NoAccessibilityTest(DesktopCase):
    """The accessibility bus is there but switched off, as on most desktops at first."""

    desktop_options = {"accessibility": False}

    def test_it_says_so_and_keeps_its_menu(self):
        program = self.start_program()
        program.wait_for_line("Quillet: Accessibility permissions not granted")
        menu = program.wait_for_icon(self.tray).menu()
        self.assertIn("Status: Ready", [entry.label for entry in menu])
        self.assertFalse(self.desktop.session.accessibility_is_on(),
                         "it was switched on without asking")
