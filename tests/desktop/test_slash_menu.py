"""The slash menu's panel, as the gallery shows it: real keys, a real pointer, and what a screen
reader finds. Nothing in the shipped program opens it."""

import os

import wait
from case import BUILD, DesktopCase
from controls import Controls

GALLERY = os.path.join(BUILD, "gallery")


class SlashMenuTest(DesktopCase):

    with_tray = False

    def setUp(self):
        super().setUp()
        self.gallery = self.desktop.session.start([GALLERY, "slash"])
        self.addCleanup(self.desktop.session.end, self.gallery)
        self.controls = Controls(self.desktop.accessibility, self.gallery.pid)
        self.controls.find("text", "Search commands...", 10.0)
        wait.until(lambda: self.windows.focused_pid() == self.gallery.pid, 5.0,
                   "the menu has the keyboard")

    def rows(self):
        return [name for role, name in self.controls.all() if role == "list item"]

    def wait_until_selected(self, name):
        wait.until(lambda: [row for row in self.rows()
                            if self.controls.find("list item", row).is_selected] == [name],
                   3.0, f"{name} alone is selected")

    def chosen(self):
        with open(self.desktop.session.path("gallery.log"), encoding="utf-8") as log:
            return log.read().split("\n")[:-1]

    def test_it_is_searched_and_obeyed_from_outside(self):
        self.assertEqual(len(self.rows()), 11)
        self.wait_until_selected("Heading 1")
        self.hands.press("Down")
        self.wait_until_selected("Heading 2")
        for key in "list":
            self.hands.press(key)
        wait.until(lambda: self.rows() == ["Bullet List", "Numbered List", "Checklist"], 3.0,
                   "those that match are left")
        self.wait_until_selected("Numbered List")
        self.hands.press("Return")
        checklist = self.controls.find("list item", "Checklist")
        self.assertEqual(checklist.description, "Todo items")
        self.hands.click(*checklist.frame.centre)
        self.controls.find("list item", "Bullet List").do("Press")
        wait.until(lambda: self.chosen() == ["Numbered List", "Checklist", "Bullet List"], 3.0,
                   "key, pointer and screen reader have chosen")
        self.wait_until_selected("Numbered List")
        self.hands.press("Escape")
        wait.until(lambda: not self.rows(), 3.0, "the menu is hidden")
