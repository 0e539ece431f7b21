"""A private desktop: an X server, a session bus, a window manager and the accessibility bus."""

import os
import select
import shutil
import signal
import subprocess
import sys
import tempfile

from gi.repository import Gio, GLib

import processes
import wait
from bus_service import CALL_LIMIT, connect


class Session:
    """Everything that a program needs to believe in a desktop; gone without a trace at the end.

    `monitors` are (width, height, x, y) rectangles of the one wide X screen; empty means that the
    whole screen is one monitor.
    """

    def __init__(self, width=1280, height=800, monitors=()):
        self._children = []
        self._logs = []
        self.folder = tempfile.mkdtemp(prefix="quillet-")
        signal.signal(signal.SIGTERM, lambda *_: sys.exit("ended by SIGTERM"))
        try:
            self._make_environment()
            self._start_x_server(width, height, monitors)
            self._start_bus()
            self.start_window_manager()
            self._switch_accessibility_on()
        except BaseException:
            self.close()
            raise

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()

    def close(self):
        """Ends every process of the session and removes its folder. Safe to call twice."""
        while self._children:
            processes.end(self._children.pop())
        processes.end_all_with_environment("XDG_RUNTIME_DIR", self.runtime_folder)
        while self._logs:
            self._logs.pop().close()
        shutil.rmtree(self.folder, ignore_errors=True)

    @property
    def runtime_folder(self):
        return os.path.join(self.folder, "runtime")

    @property
    def config_folder(self):
        return os.path.join(self.folder, "home", ".config")

    @property
    def display(self):
        return self.environment["DISPLAY"]

    def path(self, name):
        """The path of a file of this session."""
        return os.path.join(self.folder, name)

    def start(self, command, environment=None, **options):
        """Starts a program in the session; its output goes to a log unless the caller takes it."""
        if "stdout" not in options:
            log = open(self.path(f"{os.path.basename(command[0])}.log"), "ab")
            self._logs.append(log)
            options.update(stdout=log, stderr=subprocess.STDOUT)
        child = processes.start(command, {**self.environment, **(environment or {})}, **options)
        self._children.append(child)
        return child

    def launch(self, entry, action=None):
        """Starts what a desktop file names, or one of its actions, as desktops do. Programs without
        a folder are looked for in this process's own PATH."""
        context = Gio.AppLaunchContext()
        for name in os.environ:
            context.unsetenv(name)
        for name, value in self.environment.items():
            context.setenv(name, value)
        application = Gio.DesktopAppInfo.new_from_filename(entry)
        if action:
            application.launch_action(action, context)
        elif not application.launch([], context):
            raise AssertionError(f"{entry} starts nothing")

    def run(self, command):
        """Runs a small tool to its end; gives what it printed."""
        return subprocess.run(command, env=self.environment, stdin=subprocess.DEVNULL, timeout=10,
                              check=True, text=True, capture_output=True).stdout

    def end(self, process):
        """Ends a program that `start` gave."""
        processes.end(process)
        if process in self._children:
            self._children.remove(process)

    def call(self, name, path, interface, method, arguments=None, answer=None):
        """A call on the session bus, with a limit."""
        return self.bus.call_sync(name, path, interface, method, arguments,
                                  GLib.VariantType(answer) if answer else None,
                                  Gio.DBusCallFlags.NONE, CALL_LIMIT, None)

    def processes_of(self, part):
        """The session's processes whose command line has this part; there is one at least."""
        found = [pid for pid in processes.with_environment("XDG_RUNTIME_DIR", self.runtime_folder)
                 if part in processes.command_line(pid)]
        if not found:
            raise AssertionError(f"nothing with {part} runs")
        return found

    def kill(self, part):
        """Kills the session's processes whose command line has this part, as a crash would."""
        victims = self.processes_of(part)
        for pid in victims:
            os.kill(pid, signal.SIGKILL)
        wait.until(lambda: not any(processes.command_line(pid) for pid in victims), 5.0,
                   f"{part} is gone")

    def add_toolkit_settings(self, content):
        """For the applications that are started from now on."""
        folder = os.path.join(self.config_folder, "glib-2.0", "settings")
        os.makedirs(folder, exist_ok=True)
        with open(os.path.join(folder, "keyfile"), "a", encoding="utf-8") as file:
            file.write(content)

    def files_of_home(self):
        """Every file below the home folder, settings and caches included."""
        return [os.path.join(folder, name)
                for folder, _, names in os.walk(self.environment["HOME"]) for name in names]

    def _make_environment(self):
        home = os.path.join(self.folder, "home")
        os.mkdir(self.runtime_folder, 0o700)
        for part in (".config", ".local/share", ".cache"):
            os.makedirs(os.path.join(home, part))
        kept = {key: os.environ[key] for key in ("PATH", "ASAN_OPTIONS", "UBSAN_OPTIONS",
                                                 "LSAN_OPTIONS") if key in os.environ}
        self.environment = {
            **kept,
            "HOME": home,
            "USER": "quillet",
            "LC_ALL": "C.UTF-8",
            "XDG_RUNTIME_DIR": self.runtime_folder,
            "XDG_CONFIG_HOME": self.config_folder,
            "XDG_DATA_HOME": os.path.join(home, ".local/share"),
            "XDG_CACHE_HOME": os.path.join(home, ".cache"),
            "XDG_SESSION_TYPE": "x11",
            "GDK_BACKEND": "x11",
            "GSETTINGS_BACKEND": "keyfile",
            "GIO_USE_VFS": "local",
            "GTK_USE_PORTAL": "0",
        }

    def _start_x_server(self, width, height, monitors):
        self.x_server, number = self._start_server(
            ["Xvfb", "-displayfd", "{pipe}", "-screen", "0", f"{width}x{height}x24", "-dpi", "96",
             "-nolisten", "tcp", "-noreset"])
        self.environment["DISPLAY"] = f":{number}"
        for index, (monitor_width, monitor_height, x, y) in enumerate(monitors):
            # The first one takes the output, so that no monitor of the server's own is left.
            self.run(["xrandr", "--setmonitor", f"screen{index}",
                      f"{monitor_width}/{monitor_width // 4}x"
                      f"{monitor_height}/{monitor_height // 4}+{x}+{y}",
                      "screen" if index == 0 else "none"])

    def _start_bus(self):
        # A short path: the address of a socket has little room.
        self.bus_daemon, address = self._start_server(
            ["dbus-daemon", "--session", "--nofork", "--nopidfile",
             f"--address=unix:path={self.runtime_folder}/bus", "--print-address={pipe}"])
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = address
        self.bus = connect(address)

    def _start_server(self, command):
        """A server that tells on a pipe where it is, once it is up, and what it tells."""
        reading, writing = os.pipe()
        server = self.start([part.format(pipe=writing) for part in command], pass_fds=[writing])
        os.close(writing)
        with open(reading, encoding="utf-8") as pipe:
            if not select.select([pipe], [], [], 10.0)[0]:
                raise wait.Timeout(f"{command[0]} does not come up")
            return server, pipe.readline().strip()

    def start_window_manager(self):
        """Also after an earlier one has ended."""
        # It makes this file once it manages windows. Its properties on the root window come earlier,
        # and a window that is mapped in between may stay unseen.
        sign = self.path("managing")
        if os.path.exists(sign):
            os.remove(sign)
        self.start(["openbox", "--sm-disable", "--startup", f"touch {sign}"])
        wait.until(lambda: os.path.exists(sign), 10.0, "the window manager is up")

    def _switch_accessibility_on(self):
        """Before any application starts: some look only then."""
        self.call("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress")
        self.call("org.a11y.Bus", "/org/a11y/bus", "org.freedesktop.DBus.Properties", "Set",
                  GLib.Variant("(ssv)", ("org.a11y.Status", "IsEnabled",
                                         GLib.Variant("b", True))))
