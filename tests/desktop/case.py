"""What the desktop tests have in common: a desktop, a tray, programs, and a look back at the end."""

import os
import unittest

from desktop import Desktop
from gnote import Gnote
from keylog import KeyLog
from program import Program
from servers import Server
from tray import Tray
from windows import Rect

SCREEN = Rect(0, 0, 1280, 800)  # Unless a test wants another one.
EXECUTABLE = os.environ.get("QUILLET_EXECUTABLE", "build/release/corvane-quillet")
BUILD = os.environ.get("QUILLET_BUILD", "build/dev")
# The same program with other servers.
ELSEWHERE = os.path.join(BUILD, "tests", "corvane-quillet-elsewhere")
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

    def start_elsewhere(self):
        """The same program with a server of ours; and the server."""
        server = Server(self.desktop.session.folder)
        self.addCleanup(server.close)
        return self.start_program(ELSEWHERE, environment=server.environment), server

    def start_at_once(self):
        """A program whose bar comes without a delay."""
        return self.start_program(settings={"appearanceDelay": 0})

    def open_note(self, body):
        """A note that is there until the test is over."""
        note = Gnote(self.desktop, "Note", body)
        self.addCleanup(self.desktop.session.end, note.process)
        return note

    def key_log(self):
        log = KeyLog(self.desktop.session.display)
        self.addCleanup(log.close)
        return log

    def assert_at_work_in(self, application):
        """The keyboard still belongs to an application."""
        self.assertEqual(self.windows.active_pid(), application.pid)
        self.assertEqual(self.windows.focused_pid(), application.pid)


class NoteCase(DesktopCase):
    """One note for all tests of a class; in front, with the caret at its beginning."""

    body = ""

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.note = Gnote(cls.desktop, "Note", cls.body)
        cls.text = cls.note.text

    def setUp(self):
        super().setUp()
        self.desktop.focus(self.note)
        self.desktop.put_caret(self.text, 0)
