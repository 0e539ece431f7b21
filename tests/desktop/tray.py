"""The desktop's tray: a StatusNotifier watcher and host that reads menus over D-Bus."""

import threading
import time
from dataclasses import dataclass

from gi.repository import Gio, GLib

WATCHER = "org.kde.StatusNotifierWatcher"
_ITEM = "org.kde.StatusNotifierItem"
_MENU = "com.canonical.dbusmenu"

_DESCRIPTION = f"""
<node><interface name="{WATCHER}">
  <method name="RegisterStatusNotifierItem"><arg type="s" direction="in"/></method>
  <method name="RegisterStatusNotifierHost"><arg type="s" direction="in"/></method>
  <property name="RegisteredStatusNotifierItems" type="as" access="read"/>
  <property name="IsStatusNotifierHostRegistered" type="b" access="read"/>
  <property name="ProtocolVersion" type="i" access="read"/>
  <signal name="StatusNotifierItemRegistered"><arg type="s"/></signal>
  <signal name="StatusNotifierItemUnregistered"><arg type="s"/></signal>
  <signal name="StatusNotifierHostRegistered"/>
</interface></node>
"""


@dataclass(frozen=True)
class Entry:
    """One entry of a menu."""
    identifier: int
    label: str
    separator: bool
    enabled: bool
    shortcut: str


class Tray:
    """Stands on the session bus from its construction until `close`."""

    def __init__(self, session):
        self._session = session
        self.items = []
        # A connection of its own, as a real tray has, served by a thread of its own.
        self._bus = Gio.DBusConnection.new_for_address_sync(
            session.environment["DBUS_SESSION_BUS_ADDRESS"],
            Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT
            | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION, None, None)
        self._bus.set_exit_on_close(False)
        self._context = GLib.MainContext.new()
        self._loop = GLib.MainLoop.new(self._context, False)
        ready = threading.Event()
        self._thread = threading.Thread(target=self._serve, args=(ready,), daemon=True)
        self._thread.start()
        if not ready.wait(5.0):
            raise RuntimeError("the tray does not come up")
        self._call_bus("RequestName", GLib.Variant("(su)", (WATCHER, 0)))
        self._signal("StatusNotifierHostRegistered", None)

    def close(self):
        """The tray goes, as when a panel crashes. Safe to call twice."""
        self._loop.quit()
        self._thread.join(5.0)
        if not self._bus.is_closed():
            self._bus.close_sync(None)

    def items_of(self, pid):
        """The icons of a process."""
        return [item for item in list(self.items) if item.pid == pid]

    def item_of(self, pid):
        """The first icon of a process, or None."""
        return next(iter(self.items_of(pid)), None)

    def ask(self, name, path, interface, method, arguments=None, limit=3.0):
        return self._bus.call_sync(name, path, interface, method, arguments, None,
                                   Gio.DBusCallFlags.NONE, round(1000 * limit), None).unpack()

    def _serve(self, ready):
        self._context.push_thread_default()
        interface = Gio.DBusNodeInfo.new_for_xml(_DESCRIPTION).interfaces[0]
        self._bus.register_object("/StatusNotifierWatcher", interface, self._on_call,
                                  self._on_get, None)
        self._bus.signal_subscribe("org.freedesktop.DBus", "org.freedesktop.DBus",
                                   "NameOwnerChanged", "/org/freedesktop/DBus", None,
                                   Gio.DBusSignalFlags.NONE, self._on_owner_changed)
        ready.set()
        self._loop.run()
        self._context.pop_thread_default()

    def _on_call(self, _bus, sender, _path, _interface, method, arguments, invocation):
        if method == "RegisterStatusNotifierItem":
            service = arguments.unpack()[0]
            path = service if service.startswith("/") else "/StatusNotifierItem"
            name = sender if service.startswith("/") else service
            pid = self._call_bus("GetConnectionUnixProcessID",
                                 GLib.Variant("(s)", (sender,))).unpack()[0]
            self.items.append(Item(self, sender, name, path, pid))
            self._signal("StatusNotifierItemRegistered", GLib.Variant("(s)", (name,)))
        invocation.return_value(None)

    def _on_get(self, _bus, _sender, _path, _interface, name):
        return {"RegisteredStatusNotifierItems":
                GLib.Variant("as", [item.name for item in self.items]),
                "IsStatusNotifierHostRegistered": GLib.Variant("b", True),
                "ProtocolVersion": GLib.Variant("i", 0)}[name]

    def _on_owner_changed(self, _bus, _sender, _path, _interface, _signal, arguments):
        name, _, owner = arguments.unpack()
        if not owner:
            self.items = [item for item in self.items if name not in (item.name, item.sender)]

    def _call_bus(self, method, arguments):
        return self._bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus",
                                   "org.freedesktop.DBus", method, arguments, None,
                                   Gio.DBusCallFlags.NONE, 3000, None)

    def _signal(self, name, arguments):
        self._bus.emit_signal(None, "/StatusNotifierWatcher", WATCHER, name, arguments)


class Item:
    """One program's icon with its menu."""

    def __init__(self, tray, sender, name, path, pid):
        self._tray = tray
        self.sender, self.name, self.path, self.pid = sender, name, path, pid

    def property(self, name):
        return self._tray.ask(self.name, self.path, "org.freedesktop.DBus.Properties", "Get",
                              GLib.Variant("(ss)", (_ITEM, name)))[0]

    def icon_sizes(self):
        """Width and height of each picture of the icon, in pixels."""
        return [(width, height) for width, height, _ in self.property("IconPixmap")]

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
