"""The settings window of the shipped program: opened, used with real hands, and obeyed."""

import os
import random
import time

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

    def test_the_bar_obeys_the_choice_of_applications_at_the_next_poll(self):
        program = self.start_at_once()
        window = self.open_settings(program)
        window.click("page tab", "Apps")
        window.click("check box", "Enable for all applications")
        window.controls.find("label", "1 app(s) selected")
        self.select("few")
        wait.throughout(lambda: program.bar_frame() is None, LONG_ENOUGH, "the bar is hidden")

        self.windows.activate(window.window)
        window.click("text", "Search apps...")
        for key in "gnote":
            self.hands.press(key)
        window.click("check box", "Gnote")
        window.controls.find("label", "2 app(s) selected")
        window.wait_until_stored(allowedApps=["com.apple.Notes", "org.gnome.Gnote"])
        self.desktop.focus(self.note)
        program.wait_for_bar()  # The words are still selected.

    def test_the_delay_that_the_slider_is_dragged_to_is_the_bars(self):
        program = self.start_program()
        window = self.open_settings(program)
        self.hands.drag(window.slider_point(0.15), window.slider_point(0.5))
        window.controls.find("label", "Delay before appearing: 1.0s")
        window.wait_until_stored(appearanceDelay=1.0)
        self.select("words")
        selected = time.monotonic()
        program.wait_for_bar()
        self.assertGreater(time.monotonic() - selected, 0.9)
        self.assertLess(time.monotonic() - selected, 1.8)


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

    def test_damaged_desktop_entries_are_skipped_and_the_others_listed(self):
        folder = os.path.join(self.desktop.session.environment["XDG_DATA_HOME"], "applications")
        os.makedirs(folder)
        entry = "[Desktop Entry]\nType=Application\nExec=true\n"
        for name, content in {"good": entry + "Name=Aa good one\n", "nameless": entry,
                              "undecodable": entry + "Name=\udcff\udcfe\n",
                              "half": "[Desktop Entry\nName=Aa half\n"}.items():
            with open(os.path.join(folder, f"{name}.desktop"), "w", encoding="utf-8",
                      errors="surrogateescape") as file:
                file.write(content)
        with open(os.path.join(folder, "huge.desktop"), "wb") as file:
            file.truncate(5 << 30)
        os.mkfifo(os.path.join(folder, "pipe.desktop"))
        os.symlink("loop.desktop", os.path.join(folder, "loop.desktop"))
        os.symlink(".", os.path.join(folder, "again"))
        window = self.open_settings(self.start_program(settings={"useAllApps": False}))
        window.click("page tab", "Apps")
        window.controls.find("check box", "Aa good one")
        shown = [name for role, name in window.controls.all() if role == "list item"]
        self.assertEqual(shown[0], "Aa good one")
        for name in shown[1:]:
            self.assertNotIn(name, ("Aa half", "nameless", "undecodable", "huge", "pipe", "loop"))


class KillTest(SettingsCase):

    def test_a_kill_at_any_moment_leaves_a_whole_file(self):
        moment = random.Random(1)
        stops = {round(stop / 10, 1) for stop in range(21)}
        for _ in range(10):
            program = self.start_program(settings={"useAllApps": False})
            window = self.open_settings(program)
            slider = window.controls.find("slider", "Delay before appearing")
            self.hands.click(*window.slider_point(0))
            window.wait_until_stored(appearanceDelay=0.0)
            self.assertEqual(slider.value, 0.0)
            for _ in range(moment.randrange(20, 50)):
                self.hands.repeat("Right", 1)
                self.hands.repeat("Left", 1)
            program.kill()
            stored = window.stored()
            self.assertEqual(len(stored), 6)
            self.assertIn(stored.pop("appearanceDelay"), stops)
            self.assertEqual(stored, {
                "allowedApps": ["com.apple.Notes"], "useAllApps": False,
                "useKeyboardShortcut": False, "shortcutKeyCode": 3, "shortcutModifiers": 0x180100})


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
