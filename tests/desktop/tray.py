"""The desktop's tray: a StatusNotifier watcher and host that reads menus over D-Bus."""

import time
from dataclasses import dataclass

from gi.repository import Gio, GLib

from bus_service import BusService

WATCHER = "org.kde.StatusNotifierWatcher"
_ITEM = "org.kde.StatusNotifierItem"
_MENU = "com.canonical.dbusmenu"

_DESCRIPTION = f"""
<interface name="{WATCHER}">
  <method name="RegisterStatusNotifierItem"><arg type="s" direction="in"/></method>
  <method name="RegisterStatusNotifierHost"><arg type="s" direction="in"/></method>
  <property name="RegisteredStatusNotifierItems" type="as" access="read"/>
  <property name="IsStatusNotifierHostRegistered" type="b" access="read"/>
  <property name="ProtocolVersion" type="i" access="read"/>
  <signal name="StatusNotifierItemRegistered"><arg type="s"/></signal>
  <signal name="StatusNotifierItemUnregistered"><arg type="s"/></signal>
  <signal name="StatusNotifierHostRegistered"/>
</interface>
"""


@dataclass(frozen=True)
class Entry:
    """One entry of a menu."""
    identifier: int
    label: str
    separator: bool
    enabled: bool
    shortcut: str


class Tray(BusService):

    def __init__(self, session):
        self.items = []
        super().__init__(session, WATCHER, "/StatusNotifierWatcher", _DESCRIPTION)
        self.signal("StatusNotifierHostRegistered")

    def items_of(self, pid):
        """The icons of a process."""
        return [item for item in list(self.items) if item.pid == pid]

    def item_of(self, pid):
        """The first icon of a process, or None."""
        return next(iter(self.items_of(pid)), None)

    def ask(self, name, path, interface, method, arguments=None, limit=3.0):
        return self._bus.call_sync(name, path, interface, method, arguments, None,
                                   Gio.DBusCallFlags.NONE, round(1000 * limit), None).unpack()

    def answer(self, sender, method, values):
        if method == "RegisterStatusNotifierItem":
            service, = values
            path = service if service.startswith("/") else "/StatusNotifierItem"
            name = sender if service.startswith("/") else service
            pid = self._ask_bus("GetConnectionUnixProcessID",
                                GLib.Variant("(s)", (sender,))).unpack()[0]
            self.items.append(Item(self, sender, name, path, pid))
            self.signal("StatusNotifierItemRegistered", GLib.Variant("(s)", (name,)))

    def value_of(self, name):
        return {"RegisteredStatusNotifierItems":
                GLib.Variant("as", [item.name for item in self.items]),
                "IsStatusNotifierHostRegistered": GLib.Variant("b", True),
                "ProtocolVersion": GLib.Variant("i", 0)}[name]

    def owner_changed(self, name, owner):
        if not owner:
            self.items = [item for item in self.items if name not in (item.name, item.sender)]


class Item:
    """One program's icon with its menu."""

    def __init__(self, tray, sender, name, path, pid):
        self._tray = tray
        self.sender, self.name, self.path, self.pid = sender, name, path, pid

    def property(self, name):
        return self._tray.ask(self.name, self.path, "org.freedesktop.DBus.Properties", "Get",
                              GLib.Variant("(ss)", (_ITEM, name)))[0]

    def menu(self, limit=3.0):
        """The entries of the menu, from top to bottom."""
        _, (_, _, children) = self._menu_call("GetLayout", GLib.Variant(
            "(iias)", (0, -1, [])), limit)
        return [_entry(identifier, properties) for identifier, properties, _ in children]

    def time_to_answer(self):
        """Seconds until the menu is told, three at most."""
        start = time.monotonic()
        self.menu()
        return time.monotonic() - start

    def open(self):
        """What a tray says when its user opens the menu."""
        self._menu_call("AboutToShow", GLib.Variant("(i)", (0,)))
        self._event(0, "opened")

    def close(self):
        self._event(0, "closed")

    def choose(self, label):
        """Clicks the entry with this text."""
        chosen = [entry for entry in self.menu() if entry.label == label]
        if len(chosen) != 1:
            raise AssertionError(f"{len(chosen)} entries are called {label!r}")
        self._event(chosen[0].identifier, "clicked")

    def _event(self, identifier, kind):
        self._menu_call("Event", GLib.Variant("(isvu)", (
            identifier, kind, GLib.Variant("s", ""), 0)))

    def _menu_call(self, method, arguments, limit=3.0):
        return self._tray.ask(self.name, self.property("Menu"), _MENU, method, arguments, limit)


def _entry(identifier, properties):
    shortcut = properties.get("shortcut") or [[]]
    return Entry(identifier, properties.get("label", "").replace("_", ""),
                 properties.get("type") == "separator", properties.get("enabled", True),
                 "+".join(shortcut[0]))
