"""Endings that nobody chose in the menu: signals, and servers that go away."""

import signal
import time
import unittest

import wait
from case import EXECUTABLE, NoteCase
from desktop import Desktop
from gnote import Gnote
from program import Program
from tray import Tray

SIGNALS = (signal.SIGTERM, signal.SIGINT, signal.SIGHUP)


class SignalTest(NoteCase):
    """After each, the program is gone with status 0, no window of it is left, no key is down."""

    body = "Only a few words."

    def start_with_bar(self):
        self.desktop.put_caret(self.note.text, 0)
        program = self.start_at_once()
        self.desktop.select(self.note.text, "few")
        program.wait_for_bar()
        return program

    def assert_ended(self, program):
        self.assertEqual(program.wait_for_end(), 0)
        self.assertEqual(self.windows.floating_of(program.pid), [])
        wait.until(lambda: not self.tray.items_of(program.pid), 3.0, "the icon is gone")
        self.assertEqual(program.output(), [])

    def test_each_ends_it_while_it_posts_a_shortcut_and_no_key_stays_down(self):
        """The click is followed by 0.1 s of waiting, then the chord."""
        for number, moment in zip(SIGNALS, (0.02, 0.1, 0.12)):
            with self.subTest(number.name):
                program = self.start_with_bar()
                program.click("Bold")
                time.sleep(moment)
                program.process.send_signal(number)
                self.assert_ended(program)
                self.assertEqual(self.hands.down(), [])

    def test_without_an_x_server_it_ends_with_one_plain_line(self):
        program = Program(self.desktop, EXECUTABLE, environment={"DISPLAY": ":99999"})
        self.assertEqual(program.wait_for_end(), 1)
        self.assertEqual(len(program.output() + program.complaints()), 1)


class LostServerTest(unittest.TestCase):
    """A server goes, and takes half the desktop along: nothing but the program is asked here."""

    def setUp(self):
        self.desktop = Desktop()
        self.addCleanup(self.desktop.close)
        tray = Tray(self.desktop.session)
        self.addCleanup(tray.close)
        note = Gnote(self.desktop, "Losses", "Only a few words.")
        self.program = Program(self.desktop, EXECUTABLE)
        self.program.wait_for_icon(tray)
        self.desktop.select(note.text, "few")
        self.program.wait_for_bar()

    def assert_ended_with_one_line(self):
        self.assertEqual(self.program.wait_for_end(), 1)
        # The toolkit may have been drawing when the server went.
        lines = [line for line in self.program.output() + self.program.complaints()
                 if not line.startswith("xcb_shm_")]
        self.assertEqual(len(lines), 1, lines)
        return lines[0]

    def test_without_its_x_server_it_ends_with_one_line(self):
        self.desktop.session.x_server.kill()
        self.assertIn("X11", self.assert_ended_with_one_line())

    def test_without_its_session_bus_it_ends_with_one_line_and_without_its_bar(self):
        self.desktop.session.bus_daemon.kill()
        self.assertEqual(self.assert_ended_with_one_line(), "Quillet: the session bus is gone")
        self.assertEqual(self.desktop.windows.floating_of(self.program.pid), [])
