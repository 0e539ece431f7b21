"""Starting the program again while it runs."""

import os
import subprocess
import unittest

import wait
from gi.repository import GLib

from case import DesktopCase, EXECUTABLE

NAME, PATH = "com.corvane.Quillet", "/com/corvane/Quillet"
APPLICATION = "org.freedesktop.Application"


class SecondStartTest(DesktopCase):

    def start_again(self):
        """One more start in the session."""
        return self.desktop.session.start([os.path.abspath(EXECUTABLE)],
                                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT)

    def output_of(self, process, limit=10.0):
        return process.communicate(timeout=limit)[0].decode()

    def test_ten_starts_at_once_are_one_program(self):
        starts = [self.start_again() for _ in range(10)]
        wait.until(lambda: sum(start.poll() is None for start in starts) == 1, 10.0,
                   "nine of ten have ended")
        ended = [start for start in starts if start.poll() is not None]
        self.assertEqual([(start.returncode, self.output_of(start)) for start in ended],
                         [(0, "")] * 9)
        program = next(start for start in starts if start not in ended)
        wait.until(lambda: self.tray.item_of(program.pid), 10.0, "the icon is there")
        self.desktop.session.call(NAME, PATH, APPLICATION, "ActivateAction",
                                  GLib.Variant("(sava{sv})", ("quit", [], {})))
        self.output_of(program)
        self.assertEqual(program.returncode, 0)

    def test_after_a_kill_the_next_start_is_the_program(self):
        self.start_program().kill()
        program = self.start_program()
        again = self.start_again()
        self.assertEqual((self.output_of(again), again.returncode), ("", 0))
        self.assertIsNone(program.process.poll())


if __name__ == "__main__":
    unittest.main()
