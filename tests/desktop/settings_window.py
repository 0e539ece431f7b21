"""The settings window of a running program, seen and used from outside."""

import json

import wait
from controls import Controls
from program import settings_path

TITLE = "Corvane Quillet Settings"
SIZE = (500, 450)


class SettingsWindow:
    """The window, once it is there and has the keyboard."""

    def __init__(self, desktop, program):
        self._desktop, self._program = desktop, program
        self.window = program.wait_until(self.client, 5.0, "the settings window is there")
        program.wait_until(self.is_in_front, 3.0, "the settings window is in front")
        self.controls = Controls(desktop.accessibility, program.pid)

    def client(self):
        """The window that is on the screen, or None."""
        return self._desktop.windows.client_of(self._program.pid, TITLE)

    def is_in_front(self):
        windows = self._desktop.windows
        return windows.active_pid() == windows.focused_pid() == self._program.pid

    @property
    def frame(self):
        return self._desktop.windows.frame(self.window)

    def close(self):
        self._desktop.windows.close(self.window)
        wait.until(lambda: not self.client(), 3.0, "the settings window is closed")

    def click(self, role, name):
        """Clicks a control with the pointer; gives the control."""
        control = self.controls.find(role, name)
        self._desktop.hands.click(*control.frame.centre)
        return control

    def stored(self):
        """What stands in the settings file."""
        with open(settings_path(self._desktop.session), encoding="utf-8") as file:
            return json.load(file)

    def wait_until_stored(self, **values):
        """Waits until the settings file says so."""
        def says_so():
            stored = self.stored()
            return all(stored[key] == value for key, value in values.items())
        try:
            self._program.wait_until(says_so, 3.0, f"{values} is stored")
        except wait.Timeout as timeout:
            raise wait.Timeout(f"{timeout}; {self.stored()} is") from None
