"""Every button of the bar and every heading, clicked over a field of a foreign application."""

import bar
from case import DesktopCase, SCREEN
from entries import Entries
from keylog import KeyLog

# What arrives at the application on a US keyboard.
SHORTCUTS = {
    "Bold": "Control+b",
    "Italic": "Control+i",
    "Underline": "Control+u",
    "Strikethrough": "Control+Shift+x",
    "Text Color": "Control+Shift+c",
    "Monospaced": "Control+Shift+m",
    "Link": "Control+k",
    "Bullet List": "Control+Shift+7",
    "Dashed List": "Control+Shift+8",
    "Numbered List": "Control+Shift+9",
    "Checklist": "Control+Shift+l",
    "Decrease Indent": "Control+;",
    "Increase Indent": "Control+'",
    "Decrease Text Size": "Control+/",
    "Increase Text Size": "Control+]",
    "Remove Formatting": "Control+Shift+b",
}
LEVELS = {"Title": "Control+Shift+t", "Heading": "Control+Shift+h",
          "Subheading": "Control+Shift+j", "Body": "Control+Shift+b"}


class ShortcutsTest(DesktopCase):

    def test_each_button_posts_its_shortcut_once_also_where_its_edge_is_cut_off(self):
        self.assertEqual([name for name in bar.BUTTONS if name != "Heading"], list(SHORTCUTS))
        entries = Entries(self.desktop, "plain")
        program = self.start_at_once()
        self.hands.press("Control+a")
        first = program.wait_for_bar()
        self.assertEqual(first.width, bar.FIRST_WIDTH)
        for name, chord in SHORTCUTS.items():
            with KeyLog(self.desktop.session.display) as log:
                program.click(name)
                log.wait_for([chord])
        for level, chord in LEVELS.items():
            program.click("Heading")
            picker = program.wait_for_picker()
            row = self.desktop.accessibility.extents_of(program.pid, level, within=picker)
            with KeyLog(self.desktop.session.display) as log:
                self.hands.click(*row.centre)
                log.wait_for([chord])
            program.wait_until(lambda: program.picker_frame() is None, 2.0, "the picker is closed")
        self.assert_at_work_in(entries)
        nowhere = SCREEN.right - 5, SCREEN.bottom - 5
        for dismiss in (lambda: self.hands.press("Escape"), lambda: self.hands.click(*nowhere)):
            program.click("Heading")
            program.wait_for_picker()
            dismiss()
            program.wait_until(lambda: program.picker_frame() is None, 2.0, "the picker is closed")
        self.assertEqual(program.bar_frame(), first)
        self.assertEqual(program.output(), [])
