"""What the desktop tests have in common: a desktop, a tray, programs, and a look back at the end."""

import os
import unittest

from desktop import Desktop
from keylog import KeyLog
from program import Program
from tray import Tray

EXECUTABLE = os.environ.get("QUILLET_EXECUTABLE", "build/release/corvane-quillet")
FAILURES = os.environ.get("QUILLET_FAILURES")  # A folder for pictures of what went wrong.


class DesktopCase(unittest.TestCase):
    """One desktop for all tests of a class. After each test no key is down, and no program that
    the test started has complained, unless the test says that it may."""

    desktop_options = {}
    with_tray = True

    @classmethod
    def setUpClass(cls):
        cls.desktop = Desktop(**cls.desktop_options)
        cls.addClassCleanup(cls.desktop.close)
        cls.hands, cls.windows = cls.desktop.hands, cls.desktop.windows
        cls.tray = Tray(cls.desktop.session) if cls.with_tray else None
        if cls.tray:
            cls.addClassCleanup(cls.tray.close)

    def setUp(self):
        self.programs = []

    def tearDown(self):
        if FAILURES and self.has_failed():
            os.makedirs(FAILURES, exist_ok=True)
            self.desktop.camera.take().save(os.path.join(FAILURES, f"{self.id()}.png"))
        self.assertEqual(self.hands.down(), [], "keys are still down")
        self.assertEqual(self.hands.modifiers(), 0, "modifiers are still active")
        for program in self.programs:
            self.assertEqual(program.complaints(), [], "the program complained")

    def has_failed(self):
        result = self._outcome.result
        return any(test is self for test, _ in result.failures + result.errors)

    def start_program(self, executable=EXECUTABLE, **options):
        """A program that runs until the test is over; its icon is there."""
        program = Program(self.desktop, executable, **options)
        self.programs.append(program)
        self.addCleanup(program.end)
        if self.with_tray:
            program.wait_for_icon(self.tray)
        return program

    def key_log(self):
        log = KeyLog(self.desktop.session.display)
        self.addCleanup(log.close)
        return log

    def assert_at_work_in(self, application):
        """The keyboard still belongs to an application."""
        self.assertEqual(self.windows.active_pid(), application.pid)
        self.assertEqual(self.windows.focused_pid(), application.pid)
