"""The program under test: the shipped executable, started in a private desktop."""

import json
import os
import signal
import subprocess

import bar
import wait

# Said when the settings are first asked for, on a desktop where the program is no login item.
_EXPECTED_LINES = ("Failed to disable start at login: ",)


class Program:
    """The running executable, seen from outside alone."""

    _starts = 0

    def __init__(self, desktop, executable, settings=None, scale=1, environment=None):
        self._desktop = desktop
        self._scale = scale
        Program._starts += 1
        self._output_path = desktop.session.path(f"program-{Program._starts}.out")
        self._errors_path = desktop.session.path(f"program-{Program._starts}.err")
        if settings is not None:
            store_settings(desktop.session, json.dumps(settings))
        if scale != 1:
            environment = {**(environment or {}), "QT_SCALE_FACTOR": str(scale)}
        with open(self._output_path, "wb") as output, open(self._errors_path, "wb") as errors:
            self.process = desktop.session.start([os.path.abspath(executable)], environment,
                                                 stdout=output, stderr=errors)

    @property
    def pid(self):
        return self.process.pid

    def output(self):
        """What it said so far, without what it says at every start."""
        lines = _read(self._output_path).splitlines()
        return [line for line in lines if not line.startswith(_EXPECTED_LINES)]

    def complaints(self):
        """Whatever stands on standard error: warnings of libraries included."""
        return _read(self._errors_path).splitlines()

    def bar_frame(self):
        """Where the bar is, in pixels, or None while it is hidden."""
        found = [frame for _, frame in self._desktop.windows.floating_of(self.pid)
                 if bar.is_bar(frame, self._scale)]
        if len(found) > 1:
            raise AssertionError(f"{len(found)} bars: {', '.join(map(str, found))}")
        return found[0] if found else None

    def picker_frame(self):
        """Where the heading picker is, or None while it is closed."""
        return next((frame for _, frame in self._desktop.windows.floating_of(self.pid)
                     if bar.is_picker(frame, self._scale)), None)

    def wait_until(self, condition, limit, what):
        """Waits for something that only a running program brings."""
        def holds_while_running():
            if self.process.poll() is not None:
                raise AssertionError(
                    f"{what}: the program has ended with status {self.process.returncode}")
            return condition()
        return wait.until(holds_while_running, limit, what)

    def wait_for_line(self, line, limit=5.0):
        self.wait_until(lambda: line in self.output(), limit, f"the program says {line!r}")

    def wait_for_icon(self, tray, limit=10.0):
        """The program's icon in a tray."""
        return self.wait_until(lambda: tray.item_of(self.pid), limit, "the icon is in the tray")

    def wait_for_bar(self, limit=3.0):
        return self.wait_until(self.bar_frame, limit, "the bar is there")

    def wait_for_picker(self, limit=2.0):
        return self.wait_until(self.picker_frame, limit, "the picker is open")

    def wait_for_bar_at(self, frame, limit=3.0):
        """Waits until the bar is exactly at a place; says where it is when it does not come."""
        try:
            self.wait_until(lambda: self.bar_frame() == frame, limit, f"the bar is at {frame}")
        except wait.Timeout as timeout:
            raise wait.Timeout(f"{timeout}; it is at {self.bar_frame()}") from None
        return frame

    def wait_until_hidden(self, limit=3.0):
        self.wait_until(lambda: self.bar_frame() is None, limit, "the bar is hidden")

    def point_of(self, name):
        """The middle of what is visible of a button of the bar."""
        frame = self.bar_frame()
        if frame is None:
            raise AssertionError(f"no bar to look for {name} in")
        return bar.button(name, frame, self._scale).centre

    def click(self, name):
        self._desktop.hands.click(*self.point_of(name))

    def wait_for_end(self, limit=5.0):
        """Waits until the process is gone; its exit status."""
        try:
            return self.process.wait(limit)
        except subprocess.TimeoutExpired:
            raise wait.Timeout(f"the program still runs after {limit} s") from None

    def kill(self):
        self.process.send_signal(signal.SIGKILL)
        self.process.wait(5.0)

    def end(self):
        self._desktop.session.end(self.process)


def settings_path(session):
    return os.path.join(session.config_folder, "corvane-quillet", "settings.json")


def store_settings(session, content):
    """Writes the settings file as it is given, before the program starts."""
    os.makedirs(os.path.dirname(settings_path(session)), exist_ok=True)
    with open(settings_path(session), "w", encoding="utf-8") as file:
        file.write(content)


def _read(path):
    with open(path, encoding="utf-8", errors="replace") as file:
        return file.read()
