"""The desktop's notification service: keeps what it is told to show, and clicks on it."""

import threading
from dataclasses import dataclass

from gi.repository import Gio, GLib

NAME = "org.freedesktop.Notifications"
_PATH = "/org/freedesktop/Notifications"

_DESCRIPTION = f"""
<node><interface name="{NAME}">
  <method name="Notify">
    <arg type="s" direction="in"/><arg type="u" direction="in"/><arg type="s" direction="in"/>
    <arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="as" direction="in"/>
    <arg type="a{{sv}}" direction="in"/><arg type="i" direction="in"/>
    <arg type="u" direction="out"/>
  </method>
  <method name="CloseNotification"><arg type="u" direction="in"/></method>
  <signal name="ActionInvoked"><arg type="u"/><arg type="s"/></signal>
  <signal name="NotificationClosed"><arg type="u"/><arg type="u"/></signal>
</interface></node>
"""
_CLOSED_BY_USER, _CLOSED_BY_PROGRAM = 2, 3


@dataclass(frozen=True)
class Notification:
    identifier: int
    program: str
    summary: str
    body: str
    actions: tuple


class Notifications:
    """Stands on the session bus from its construction until `close`."""

    def __init__(self, session):
        self.shown = []  # What the user sees at the moment.
        self.count = 0
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
            raise RuntimeError("the notification service does not come up")
        self._bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus",
                            "org.freedesktop.DBus", "RequestName",
                            GLib.Variant("(su)", (NAME, 0)), None, Gio.DBusCallFlags.NONE, 3000,
                            None)

    def close(self):
        self._loop.quit()
        self._thread.join(5.0)
        self._bus.close_sync(None)

    def click(self, notification):
        """What the user does who wants to know more; the service then takes it away."""
        self._signal("ActionInvoked", GLib.Variant("(us)", (notification.identifier, "default")))
        self._take_away(notification.identifier, _CLOSED_BY_USER)

    def _serve(self, ready):
        self._context.push_thread_default()
        interface = Gio.DBusNodeInfo.new_for_xml(_DESCRIPTION).interfaces[0]
        self._bus.register_object(_PATH, interface, self._on_call, None, None)
        ready.set()
        self._loop.run()
        self._context.pop_thread_default()

    def _on_call(self, _bus, _sender, _path, _interface, method, arguments, invocation):
        values = arguments.unpack()
        if method == "CloseNotification":
            self._take_away(values[0], _CLOSED_BY_PROGRAM)
            invocation.return_value(None)
            return
        program, replaced, _, summary, body, actions, _, _ = values
        self.count += 1
        identifier = replaced or self.count
        self.shown = [old for old in self.shown if old.identifier != identifier]
        self.shown.append(Notification(identifier, program, summary, body, tuple(actions)))
        invocation.return_value(GLib.Variant("(u)", (identifier,)))

    def _take_away(self, identifier, reason):
        self.shown = [old for old in self.shown if old.identifier != identifier]
        self._signal("NotificationClosed", GLib.Variant("(uu)", (identifier, reason)))

    def _signal(self, name, arguments):
        self._bus.emit_signal(None, _PATH, NAME, name, arguments)
