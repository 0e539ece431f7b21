"""Start at login: the entry that the program leaves, started as desktops start it."""

import os
import shutil
import signal

import processes
import wait
from case import DesktopCase, EXECUTABLE
from entries import Entries

# Everything that means something to those who read an Exec line, on the way to the program.
FOLDERS = ("my \"apps\" \\ $HOME `id`; 'ü' & a=b", "100%u $0 a=b %%")


class LoginTest(DesktopCase):

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        Entries(cls.desktop, "plain")  # The first application seen makes it read its settings.
        cls.entry = os.path.join(cls.desktop.session.config_folder, "autostart",
                                 "com.corvane.Quillet.desktop")

    def write_entry(self, *lines):
        os.makedirs(os.path.dirname(self.entry), exist_ok=True)
        with open(self.entry, "w", encoding="utf-8") as file:
            file.write("\n".join(("[Desktop Entry]", "Type=Application", "Name=Old", *lines)))

    def read_entry(self):
        with open(self.entry, encoding="utf-8") as file:
            return file.read()

    def log_in(self):
        self.desktop.session.launch(self.entry)

    def running(self, executable):
        session = processes.with_environment("XDG_RUNTIME_DIR", self.desktop.session.runtime_folder)
        return [pid for pid in session if processes.executable(pid) == executable]

    def program_in(self, folder):
        """A copy of the program that has registered itself, and has ended."""
        folder = self.desktop.session.path(folder)
        os.mkdir(folder)
        copy = shutil.copy2(os.path.abspath(EXECUTABLE), folder)
        self.write_entry("Exec=/an/earlier/place")
        program = self.start_program(copy)
        program.wait_until(lambda: "/an/earlier/place" not in self.read_entry(), 5.0,
                           "the entry names the place of today")
        program.end()
        return copy

    def test_the_entry_starts_the_program_wherever_it_lies_and_never_twice(self):
        for folder in FOLDERS:
            with self.subTest(folder):
                copy = self.program_in(folder)
                self.log_in()
                pid, = wait.until(lambda: self.running(copy), 5.0, "the program runs")
                wait.until(lambda: self.tray.item_of(pid), 10.0, "its icon is there")
                self.log_in()
                wait.until(lambda: self.windows.client_of(pid), 5.0, "the second start tells it")
                wait.until(lambda: self.running(copy) == [pid], 5.0, "the second start has ended")
                os.kill(pid, signal.SIGTERM)
                wait.until(lambda: not self.running(copy), 5.0, "the program has ended")
