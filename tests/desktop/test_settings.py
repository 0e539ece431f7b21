"""The settings window of the shipped program: opened, used with real hands, and obeyed."""

import os

import wait
from case import DesktopCase, EXECUTABLE, NoteCase, SCREEN
from portal import DARK, LIGHT, Portal
from settings_window import SIZE, TITLE, SettingsWindow
from windows import Rect

LONG_ENOUGH = 1.0  # Four polls.


class SettingsCase(DesktopCase):

    def open_settings(self, program):
        program.wait_for_icon(self.tray).choose("Settings...")
        return SettingsWindow(self.desktop, program)


class WithNote(SettingsCase, NoteCase):
    """A note stands beside the window."""

    body = "A few words to select."

    def select(self, words):
        self.desktop.focus(self.note)
        return self.desktop.select(self.text, words)

    def test_it_is_one_window_in_the_middle_however_it_is_asked_for(self):
        program = self.start_program()
        first = self.open_settings(program)
        frame = first.frame
        self.assertEqual((frame.width, frame.height), SIZE)
        self.assertEqual(self.windows.title(first.window), TITLE)
        hints = first.window.get_wm_normal_hints()
        self.assertEqual((hints.min_width, hints.min_height), (hints.max_width, hints.max_height))
        border = 40  # What the window manager adds above, at most.
        self.assertAlmostEqual(frame.centre[0], SCREEN.centre[0], delta=2)
        self.assertAlmostEqual(frame.centre[1], SCREEN.centre[1], delta=border)
        first.click("page tab", "General")

        self.desktop.focus(self.note)
        second_start = self.desktop.session.start([EXECUTABLE])
        self.assertEqual(second_start.wait(5.0), 0)
        wait.until(first.is_in_front, 3.0, "the second start brings the window forward")
        self.windows.place(first.window, Rect(200, 100, *SIZE))
        moved = wait.until(lambda: first.frame != frame and first.frame, 3.0, "it has moved")
        first.close()
        again = self.open_settings(program)
        self.assertEqual(again.frame, moved)
        again.controls.find("label", "Corvane Quillet v1.0.2")
        self.assertIsNone(program.process.poll())

    def test_a_shortcut_recorded_with_real_keys_brings_the_bar(self):
        program = self.start_at_once()
        window = self.open_settings(program)
        window.click("radio button", "With keyboard shortcut")
        window.wait_until_stored(useKeyboardShortcut=True)
        recorder = window.click("push button", "Keyboard shortcut")
        window.controls.find("label", "Press keys...")
        for chord in ("k", "Tab", "Escape", "Return"):  # Swallowed: no modifier is held.
            self.hands.press(chord)
        self.hands.press("Control+Shift+k")
        window.wait_until_stored(shortcutKeyCode=40, shortcutModifiers=0x120000)
        wait.until(lambda: recorder.description == "⇧⌘K", 2.0, "the button tells the shortcut")

        self.select("few")
        wait.throughout(lambda: program.bar_frame() is None, LONG_ENOUGH, "the bar is hidden")
        self.hands.press("Control+Shift+k")
        program.wait_for_bar()


class LooksTest(SettingsCase):

    def test_the_window_follows_the_desktops_preference_for_dark_windows(self):
        portal = Portal(self.desktop.session, DARK)
        self.addCleanup(portal.close)
        window = self.open_settings(self.start_program())

        def brightness():
            corner = window.frame.right - 4, window.frame.bottom - 4
            return max(self.desktop.camera.take(window.frame).colour(*corner))

        wait.until(lambda: 20 < brightness() < 80, 3.0, "the window is dark")
        portal.prefer(LIGHT)
        wait.until(lambda: brightness() > 200, 3.0, "the window is light")
        portal.prefer(DARK)
        wait.until(lambda: 20 < brightness() < 80, 3.0, "the window is dark again")


class ScreenReaderTest(SettingsCase):
    """The window as someone uses it who does not see it."""

    def test_every_control_has_its_role_and_name_and_does_what_it_is_asked(self):
        program = self.start_program()
        window = self.open_settings(program)
        controls = window.controls
        controls.find("frame", TITLE)

        controls.find("radio button", "With keyboard shortcut").do("Toggle")
        window.wait_until_stored(useKeyboardShortcut=True)
        self.assertIsNone(controls.shown("slider", "Delay before appearing"))
        self.assertEqual(controls.find("push button", "Keyboard shortcut").description, "⌥⌘F")
        controls.find("radio button", "Automatically on text selection").do("Toggle")
        window.wait_until_stored(useKeyboardShortcut=False)
        slider = controls.find("slider", "Delay before appearing")
        slider.set_value(1.7)
        window.wait_until_stored(appearanceDelay=1.7)
        controls.find("label", "Delay before appearing: 1.7s")

        controls.find("page tab", "Apps").do("Press")
        switch = controls.find("check box", "Enable for all applications")
        self.assertTrue(switch.is_checked)
        self.assertIsNone(controls.shown("list", "Applications"))
        switch.do("Toggle")
        window.wait_until_stored(useAllApps=False)
        controls.find("list", "Applications")
        controls.find("list item", "Gnote")
        self.assertFalse(controls.find("check box", "Gnote").is_checked)
        controls.find("check box", "Gnote").do("Toggle")
        window.wait_until_stored(allowedApps=["com.apple.Notes", "org.gnome.Gnote"])
        wait.until(lambda: controls.find("check box", "Gnote").is_checked, 2.0, "it is chosen")
        controls.find("text", "Search apps...")
        controls.find("label", "2 app(s) selected")

        controls.find("page tab", "General").do("Press")
        login = controls.find("check box", "Start at Login")
        self.assertFalse(login.is_checked)
        login.do("Toggle")
        entry = os.path.join(self.desktop.session.config_folder, "autostart",
                             "com.corvane.Quillet.desktop")
        wait.until(lambda: os.path.exists(entry), 3.0, "the login item is there")
        login.do("Toggle")
        wait.until(lambda: not os.path.exists(entry), 3.0, "the login item is gone")
        for name in ("Corvane Quillet v1.0.2", "A floating formatting bar for text editing"):
            controls.find("label", name)
        controls.find("push button", "Feedback senden …").do("Press")
        wait.until(lambda: self.windows.client_of(program.pid, "Feedback senden"), 3.0,
                   "the feedback form is there")
