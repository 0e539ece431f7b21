"""The running program started again, and told what to do: by the actions of the desktop file from
a launcher, and over the bus as a dock asks for them."""

import os
import subprocess

from gi.repository import GLib

import processes
import wait
from case import DesktopCase, EXECUTABLE
from entries import Entries

NAME, PATH = "com.corvane.Quillet", "/com/corvane/Quillet"
APPLICATION = "org.freedesktop.Application"
ENTRY = os.path.abspath(os.path.join(os.path.dirname(__file__),
                                     f"../../packaging/linux/{NAME}.desktop"))
WINDOWS = {"settings": "Corvane Quillet Settings", "feedback": "Feedback senden"}


class ActionTest(DesktopCase):

    @classmethod
    def setUpClass(cls):
        earlier = os.environ["PATH"]
        cls.addClassCleanup(os.environ.update, {"PATH": earlier})
        os.environ["PATH"] = os.path.dirname(os.path.abspath(EXECUTABLE)) + ":" + earlier
        super().setUpClass()
        cls.other = Entries(cls.desktop, "plain")

    def launch(self, action):
        self.desktop.session.launch(ENTRY, action)

    def call(self, action):
        self.desktop.session.call(NAME, PATH, APPLICATION, "ActivateAction",
                                  GLib.Variant("(sava{sv})", (action, [], {})))

    def wait_for_window(self, pid, title):
        """The window, in front of everything and with the keyboard."""
        window = wait.until(lambda: self.windows.client_of(pid, title), 5.0, f"{title} is there")
        wait.until(lambda: self.windows.focused_pid() == pid, 5.0, f"{title} has the keyboard")
        return window

    def close(self, pid):
        self.hands.press("Alt+F4")
        wait.until(lambda: not self.windows.client_of(pid), 3.0, "the window is closed")

    def of_session(self):
        """The processes of this session that run the program."""
        session = processes.with_environment("XDG_RUNTIME_DIR", self.desktop.session.runtime_folder)
        return [pid for pid in session
                if processes.executable(pid) == os.path.realpath(EXECUTABLE)]

    def test_the_running_program_answers_them_again_and_again(self):
        program = self.start_program()
        for ask in (self.launch, self.call):
            for action, title in WINDOWS.items():
                for _ in range(2):
                    with self.subTest(f"{ask.__name__} {action}"):
                        self.desktop.focus(self.other)
                        ask(action)
                        self.wait_for_window(program.pid, title)
                        self.close(program.pid)
        wait.until(lambda: self.of_session() == [program.pid], 5.0, "no other start is left")

    def test_each_way_to_quit_ends_it(self):
        for ask in (self.launch, self.call):
            with self.subTest(ask.__name__):
                program = self.start_program()
                ask("quit")
                self.assertEqual(program.wait_for_end(), 0)

    def test_a_program_that_is_not_running_is_started_with_the_window(self):
        for action, title in WINDOWS.items():
            with self.subTest(action):
                self.desktop.focus(self.other)
                self.launch(action)
                pid, = wait.until(self.of_session, 5.0, "the program runs")
                self.wait_for_window(pid, title)
                self.call("quit")
                wait.until(lambda: not self.of_session(), 5.0, "the program has ended")

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
        self.call("quit")
        self.output_of(program)
        self.assertEqual(program.returncode, 0)
