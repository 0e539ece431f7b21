"""The menu of the icon, as a desktop's tray reads it over D-Bus."""

import wait
from case import DesktopCase

SEPARATOR = "-"
ENTRIES = [
    "Corvane Quillet", SEPARATOR, "Status: Ready", SEPARATOR, "Check Accessibility...", SEPARATOR,
    "Settings...", SEPARATOR, "Auf Updates prüfen …", "Feedback senden …", SEPARATOR,
    "Quit Corvane Quillet",
]
GREY = {"Corvane Quillet", "Status: Ready"}


class MenuTest(DesktopCase):

    def test_it_has_its_twelve_entries(self):
        item = self.start_program().wait_for_icon(self.tray)
        menu = item.menu()
        self.assertEqual([SEPARATOR if entry.separator else entry.label for entry in menu],
                         ENTRIES)
        self.assertEqual({entry.label for entry in menu
                          if not entry.separator and not entry.enabled}, GREY)
        shortcuts = {entry.label: entry.shortcut for entry in menu if entry.shortcut}
        self.assertEqual(shortcuts, {"Settings...": "Control+,",
                                     "Quit Corvane Quillet": "Control+Q"})

    def test_checking_accessibility_says_that_it_is_granted(self):
        program = self.start_program()
        program.wait_for_icon(self.tray).choose("Check Accessibility...")
        wait.until(lambda: self.windows.client_of(program.pid), 3.0, "the alert is there")
        alert = self.windows.frame(self.windows.client_of(program.pid))
        for words in ("Accessibility Access Granted",
                      "Corvane Quillet has the required accessibility permissions."):
            self.desktop.accessibility.extents_of(program.pid, words, alert)
        wait.until(lambda: self.windows.focused_pid() == program.pid, 3.0, "the alert is in front")
        self.hands.press("Return")
        wait.until(lambda: not self.windows.client_of(program.pid), 3.0, "the alert is closed")
        self.assertIsNone(program.process.poll())

    def test_polling_pauses_only_while_the_menu_is_open(self):
        note = self.open_note("A few words.")
        program = self.start_at_once()
        item = program.wait_for_icon(self.tray)
        item.open()
        self.desktop.select(note.text, "few")
        wait.throughout(lambda: program.bar_frame() is None, 0.6, "the bar is hidden")
        item.close()
        program.wait_for_bar()
