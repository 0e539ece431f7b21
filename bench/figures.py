"""How the figures are taken: from outside, by clocks and counters of the system alone."""

import os
import random
import statistics
import threading
import time

from Xlib import X, display, error
from gi.repository import Gio, GLib

import wait
from tray import Tray


def middle(times):
    return f"{statistics.median(times):.0f}"


def high(times):
    return f"{sorted(times)[int(0.95 * (len(times) - 1))]:.0f}"


class TimingTray(Tray):
    """A tray that remembers when each process registered its item."""

    def __init__(self, session):
        self.registered = {}
        super().__init__(session)

    def answer(self, sender, method, values):
        moment = time.monotonic()
        super().answer(sender, method, values)
        for item in self.items:
            self.registered.setdefault(item.pid, moment)


def starts(desktop, tray, programs, count):
    """For each program the milliseconds from its start until its item was registered. The programs
    take turns, so that whatever else the machine does meets them alike."""
    times = [[] for _ in programs]
    for index in range(count + 1):
        for program, taken in zip(programs, times):
            began = time.monotonic()
            process = desktop.session.start([program])
            registered = wait.until(lambda: tray.registered.get(process.pid), 20.0,
                                    f"the item of {program}")
            if index > 0:  # The first start reads everything from disk.
                taken.append(1000 * (registered - began))
            desktop.session.end(process)
    return times


class Running:
    """One program at work."""

    def __init__(self, desktop, tray, executable):
        self._session = desktop.session
        self.process = desktop.session.start([executable])
        wait.until(lambda: tray.item_of(self.process.pid), 20.0, "the item")

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self._session.end(self.process)

    def settle(self, limit=20.0):
        """Waits until its memory has been the same for a while and its updater has started."""
        time.sleep(4)
        before = None

        def same():
            nonlocal before
            time.sleep(1)
            last, before = before, self.memory("Rss")
            return before == last

        wait.until(same, limit, "the memory rests")

    def memory(self, *kinds):
        """Kilobytes."""
        total = 0
        with open(f"/proc/{self.process.pid}/smaps_rollup", encoding="ascii") as rollup:
            for line in rollup:
                if line.split(":")[0] in kinds:
                    total += int(line.split()[1])
        return total

    def private(self):
        """What no other process could share. What the kernel calls private would be less honest: a
        library's page is that as long as nobody else happens to have it open."""
        return self.memory("Anonymous")

    def processor_seconds(self):
        """Of all its threads."""
        total = 0
        tasks = f"/proc/{self.process.pid}/task"
        for task in os.listdir(tasks):
            with open(f"{tasks}/{task}/schedstat", encoding="ascii") as schedstat:
                total += int(schedstat.read().split()[0])
        return total / 1e9


def at_rest(desktop, programs, seconds):
    """For each program its processor seconds and the messages that it sent meanwhile."""
    addresses = [desktop.session.environment["DBUS_SESSION_BUS_ADDRESS"],
                 desktop.session.call("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus",
                                      "GetAddress").unpack()[0]]
    listeners = [BusListener(desktop.session, address) for address in addresses]
    before = [program.processor_seconds() for program in programs]
    time.sleep(seconds)
    spent = [program.processor_seconds() - start for program, start in zip(programs, before)]
    sent = [sum(listener.sent_by(program.process.pid) for listener in listeners)
            for program in programs]
    for listener in listeners:
        listener.close()
    return list(zip(spent, sent))


class BusListener:
    """Counts the messages of one bus by the process that sent them."""

    def __init__(self, session, address):
        flags = (Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT
                 | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION)
        self._asking = Gio.DBusConnection.new_for_address_sync(address, flags, None, None)
        self._names = {}
        for name in self._ask("ListNames"):
            if name.startswith(":"):
                try:
                    self._names[name] = self._ask("GetConnectionUnixProcessID", name)
                except GLib.Error:
                    continue  # Gone between the two questions.
        self._session = session
        self._path = session.path(f"messages-{id(self)}")
        with open(self._path, "wb") as output:
            self._monitor = session.start(["dbus-monitor", "--address", address, "--profile"],
                                          stdout=output)
        wait.until(self._lines, 5.0, "the monitor listens")
        self._before = len(self._lines())

    def sent_by(self, pid):
        names = {name for name, owner in self._names.items() if owner == pid}
        return sum(line.split("\t")[3] in names for line in self._lines()[self._before:]
                   if line.count("\t") >= 3)

    def close(self):
        self._session.end(self._monitor)

    def _lines(self):
        with open(self._path, encoding="utf-8", errors="replace") as file:
            return file.read().splitlines()

    def _ask(self, method, argument=None):
        return self._asking.call_sync(
            "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", method,
            GLib.Variant("(s)", (argument,)) if argument else None, None,
            Gio.DBusCallFlags.NONE, 3000, None).unpack()[0]


class MapListener:
    """Remembers when a window that floats was mapped last, by the X server's own word."""

    def __init__(self, display_name):
        self._display = display.Display(display_name)
        self._display.screen().root.change_attributes(event_mask=X.SubstructureNotifyMask)
        self._display.sync()
        self.mapped_at = None
        threading.Thread(target=self._listen, daemon=True).start()

    def _listen(self):
        try:
            while True:
                event = self._display.next_event()
                if event.type == X.MapNotify and event.override:
                    self.mapped_at = time.monotonic()
        except error.ConnectionClosedError:
            pass  # The desktop is gone, and with it what there was to see.


def shows(desktop, note, pid, count):
    """Milliseconds from the key that selects until the bar's window is mapped."""
    listener = MapListener(desktop.session.display)
    times = []
    for _ in range(count):
        if note.text.selection():
            desktop.deselect(note.text)
        wait.until(lambda: not desktop.windows.floating_of(pid), 5.0, "the bar is hidden")
        time.sleep(random.random() / 4)  # Any moment between two polls is as likely.
        listener.mapped_at = None
        began = time.monotonic()
        desktop.hands.press("Shift+Right")
        times.append(1000 * (wait.until(lambda: listener.mapped_at, 5.0, "the bar") - began))
    return times


def select_repeatedly(desktop, note, count):
    """Selects other text as often as the program looks."""
    desktop.put_caret(note.text, 3)
    for index in range(count):
        desktop.hands.press("Shift+Left" if index % 400 >= 200 else "Shift+Right")
        time.sleep(0.26)
