"""Desktops that lack something: the program says so where it matters, and goes on."""

import json
import os

import bar
import wait
from case import DesktopCase, EXECUTABLE, SCREEN
from entries import Entries
from program import Program, settings_path, store_settings

DEFAULTS = {"allowedApps": ["com.apple.Notes"], "useAllApps": True, "appearanceDelay": 0.3,
            "useKeyboardShortcut": False, "shortcutKeyCode": 3, "shortcutModifiers": 0x180100}


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


class SettingsFileTest(DesktopCase):
    """The settings are read when the first application is looked at."""

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        Entries(cls.desktop, "plain")

    def stored(self):
        """What the file holds, or None while there is no file."""
        try:
            with open(settings_path(self.desktop.session), encoding="utf-8") as file:
                return json.load(file)
        except FileNotFoundError:
            return None

    def test_a_damaged_file_is_set_aside_and_the_defaults_apply(self):
        damaged = '{"useAllApps": false, "appearan'
        store_settings(self.desktop.session, damaged)
        program = self.start_program()
        wait.until(lambda: any("settings" in line for line in program.output()), 5.0,
                   "the program says that the settings are damaged")
        wait.until(lambda: self.stored() == DEFAULTS, 5.0, "the defaults are stored")
        folder = os.path.dirname(settings_path(self.desktop.session))
        others = [name for name in os.listdir(folder) if name != "settings.json"]
        self.assertEqual(len(others), 1, others)
        with open(os.path.join(folder, others[0]), encoding="utf-8") as file:
            self.assertEqual(file.read(), damaged)
        os.remove(os.path.join(folder, others[0]))
