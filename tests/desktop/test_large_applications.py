"""Large editors and other toolkits, where they are installed; only on request, since they take long.

Set QUILLET_LARGE_APPS=1 to run them.
"""

import os
import shutil
import unittest
from enum import Enum

from gi.repository import GLib

import bar
import wait
from case import DesktopCase, SCREEN
from windows import Rect

TEXT = "A plain document with a few words.\n"
WORDS = "plain"


class Place(Enum):
    """How to know where an application's selection is."""
    TOLD = 1
    SEEN = 2  # What it tells is off by the height of its menu bar, at times.
    MAYBE = 3  # Older ones do not tell, and the bar comes to the pointer.


EDITORS = [
    ("featherpad", ["featherpad", "--standalone"], Place.TOLD),
    ("gedit", ["gedit", "--standalone"], Place.TOLD),
    ("gnome-text-editor", ["gnome-text-editor", "--standalone"], Place.MAYBE),
    ("libreoffice", ["libreoffice", "--norestore", "--nologo", "--writer"], Place.SEEN),
]
CHROMIUM = ["--no-sandbox", "--force-renderer-accessibility", "--no-first-run", "--disable-gpu",
            "--disable-dev-shm-usage", "--window-size=900,600", "--window-position=200,100"]
START = 60.0  # Seconds that a large application may take to show its document.


@unittest.skipUnless(os.environ.get("QUILLET_LARGE_APPS"), "QUILLET_LARGE_APPS is not set")
class LargeApplicationsTest(DesktopCase):

    def test_editors_of_other_toolkits(self):
        for name, command, place in EDITORS:
            if shutil.which(command[0]) is None:
                continue
            with self.subTest(name):
                path = self.desktop.session.path("document.txt")
                with open(path, "w", encoding="utf-8") as file:
                    file.write(TEXT)
                self.work_in(command + [path], place)

    @unittest.skipIf(shutil.which("chromium") is None, "chromium is not installed")
    def test_a_web_page(self):
        path = self.desktop.session.path("page.html")
        with open(path, "w", encoding="utf-8") as file:
            file.write("<p>An empty line.</p><textarea autofocus rows=8 cols=60>"
                       f"{TEXT}</textarea>")
        self.work_in(["chromium", *CHROMIUM, f"file://{path}"], Place.TOLD)

    def work_in(self, command, place):
        process = self.desktop.session.start(command)
        program = None
        try:
            window = wait.until(self.new_client, START, "its window")
            self.windows.activate(window)
            text = self.desktop.accessibility.text_containing(WORDS, START)
            whole = self.windows.frame(window)
            before = self.desktop.settled_picture(whole)
            chosen = self.desktop.select(text, WORDS)
            after = self.desktop.settled_picture(whole)
            program = self.start_at_once()
            frame = program.wait_for_bar(limit=10.0)
            told = self.told(text, chosen) if place is Place.MAYBE else text.extents(*chosen)
            match place:
                case _ if told is None:
                    pointer_x, _ = self.hands.pointer()
                    pointed = Rect(pointer_x - 100, frame.bottom, 200, 20)
                    self.assertEqual(frame.x, bar.expected_frame(pointed, SCREEN, first=True).x)
                case Place.SEEN:
                    around = Rect(told.x - 4, told.y - 4, told.width + 8, told.height + 44)
                    seen = after.part(around).changes_since(before.part(around))
                    self.assertEqual(frame.y, bar.expected_frame(seen, SCREEN, first=True).y)
                case _:
                    self.assertEqual(frame, bar.expected_frame(told, SCREEN, first=True))
            log = self.key_log()
            program.click("Bold")
            log.wait_for(["Control+b"])
            wait.throughout(lambda: program.bar_frame() is not None, 0.5, "the bar stays")
        finally:
            if program:
                program.end()
            self.desktop.session.end(process)
            wait.until(lambda: not self.windows.clients(), 10.0, "its windows are gone")

    @staticmethod
    def told(text, chosen):
        """Where an application says that a selection is, if it does."""
        try:
            return text.extents(*chosen)
        except GLib.Error:
            return None

    def new_client(self):
        clients = self.windows.clients()
        return clients[-1] if clients else None
