"""Desktops that lack something: the program says so where it matters, and goes on."""

import json
import os
import unittest

import bar
import wait
from case import DesktopCase, EXECUTABLE
from entries import Entries
from gnote import Gnote
from program import Program, settings_path, store_settings
from windows import Rect

AT_ONCE = {"appearanceDelay": 0}
SCREEN = Rect(0, 0, 1280, 800)
DEFAULTS = {"allowedApps": ["com.apple.Notes"], "useAllApps": True, "appearanceDelay": 0.3,
            "useKeyboardShortcut": False, "shortcutKeyCode": 3, "shortcutModifiers": 0x180100}


class NoWindowManagerTest(DesktopCase):
    """Nobody manages windows, and there is no tray: the bar and the road work all the same."""

    desktop_options = {"window_manager": False}
    with_tray = False

    def test_the_road_works(self):
        note = Gnote(self.desktop, "Alone", "A few words, and then some more of them.")
        program = self.start_program(settings=AT_ONCE)
        words = self.desktop.select(note.text, "some")
        program.wait_for_bar_at(bar.expected_frame(note.text.extents(*words), SCREEN, True))
        program.click("Bold")
        wait.until(lambda: note.text.is_bold(*words), 3.0, "the word is bold")
        self.assertEqual(self.windows.focused_pid(), note.pid)


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

    def store(self, content):
        store_settings(self.desktop.session, content)

    def test_a_first_start_stores_the_defaults(self):
        self.start_program()
        wait.until(lambda: self.stored() == DEFAULTS, 5.0, "all six are there")

    def test_a_damaged_file_is_set_aside_and_the_defaults_apply(self):
        damaged = '{"useAllApps": false, "appearan'
        self.store(damaged)
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

    def test_each_mistyped_value_falls_back_on_its_own(self):
        self.store(json.dumps({**DEFAULTS, "useAllApps": "false", "appearanceDelay": 1.5,
                               "allowedApps": [1], "useKeyboardShortcut": True}))
        self.start_program()
        wait.until(lambda: self.stored() == {**DEFAULTS, "appearanceDelay": 1.5,
                                             "useKeyboardShortcut": True}, 5.0,
                   "the good values are kept and the others are the defaults")

    def test_a_key_code_beyond_16_bits_stops_it_with_a_message(self):
        self.store(json.dumps({"shortcutKeyCode": 70000}))
        program = Program(self.desktop, EXECUTABLE)
        self.assertNotEqual(program.wait_for_end(), 0)
        self.assertTrue(any("70000" in line for line in program.output() + program.complaints()))


class NoServerTest(DesktopCase):

    with_tray = False

    def test_without_an_x_server_it_ends_with_one_plain_line(self):
        program = Program(self.desktop, EXECUTABLE, environment={"DISPLAY": ":99999"})
        self.assertEqual(program.wait_for_end(), 1)
        self.assertEqual(len(program.output() + program.complaints()), 1)


if __name__ == "__main__":
    unittest.main()
