"""Services that programs expect on the session bus of a desktop."""

import threading

from gi.repository import Gio, GLib

CALL_LIMIT = 3000  # Milliseconds that a D-Bus call may take.
_BUS = "org.freedesktop.DBus"


def connect(address):
    """A connection to a bus, with which this process does not end."""
    bus = Gio.DBusConnection.new_for_address_sync(
        address, Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT
        | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION, None, None)
    bus.set_exit_on_close(False)
    return bus


class BusService:
    """Stands on the session bus from its construction until `close`, on a connection of its own, as
    a real one does, served by a thread of its own. Calls come to `answer`."""

    def __init__(self, session, name, path, description):
        self._path = path
        self._interface = Gio.DBusNodeInfo.new_for_xml(f"<node>{description}</node>").interfaces[0]
        self._bus = connect(session.environment["DBUS_SESSION_BUS_ADDRESS"])
        self._context = GLib.MainContext.new()
        self._loop = GLib.MainLoop.new(self._context, False)
        ready = threading.Event()
        self._thread = threading.Thread(target=self._serve, args=(ready,), daemon=True)
        self._thread.start()
        if not ready.wait(5.0):
            raise RuntimeError(f"{name} does not come up")
        self._ask_bus("RequestName", GLib.Variant("(su)", (name, 0)))

    def close(self):
        """The service goes, as when a panel crashes. Safe to call twice."""
        self._loop.quit()
        self._thread.join(5.0)
        if not self._bus.is_closed():
            self._bus.close_sync(None)

    def answer(self, sender, method, values):
        """What a call returns; a LookupError is an answer too."""
        raise NotImplementedError

    def value_of(self, name):
        """What a property holds."""
        raise NotImplementedError

    def owner_changed(self, name, owner):
        """A name has another owner, or none, on the bus."""

    def signal(self, name, arguments=None):
        self._bus.emit_signal(None, self._path, self._interface.name, name, arguments)

    def _serve(self, ready):
        self._context.push_thread_default()
        self._bus.register_object(self._path, self._interface, self._on_call,
                                  lambda *call: self.value_of(call[4]), None)
        self._bus.signal_subscribe(
            _BUS, _BUS, "NameOwnerChanged", "/org/freedesktop/DBus", None,
            Gio.DBusSignalFlags.NONE,
            lambda *signal: self.owner_changed(*signal[5].unpack()[::2]))
        ready.set()
        self._loop.run()
        self._context.pop_thread_default()

    def _on_call(self, _bus, sender, _path, _interface, method, arguments, invocation):
        try:
            invocation.return_value(self.answer(sender, method, arguments.unpack()))
        except LookupError as error:
            invocation.return_dbus_error(f"{self._interface.name}.Error.NotFound", str(error))

    def _ask_bus(self, method, arguments):
        return self._bus.call_sync(_BUS, "/org/freedesktop/DBus", _BUS, method, arguments, None,
                                   Gio.DBusCallFlags.NONE, CALL_LIMIT, None)
