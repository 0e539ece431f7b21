"""The desktop's portal, as far as it tells whether the user prefers dark windows."""

import threading

from gi.repository import Gio, GLib

NAME, PATH = "org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop"
_SETTINGS = "org.freedesktop.portal.Settings"
_WANTED = ("org.freedesktop.appearance", "color-scheme")
DARK, LIGHT = 1, 2

_DESCRIPTION = f"""
<node><interface name="{_SETTINGS}">
  <method name="Read"><arg type="s" direction="in"/><arg type="s" direction="in"/>
    <arg type="v" direction="out"/></method>
  <signal name="SettingChanged"><arg type="s"/><arg type="s"/><arg type="v"/></signal>
</interface></node>
"""


class Portal:
    """Stands on the session bus from its construction until `close`."""

    def __init__(self, session, scheme):
        self._scheme = scheme
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
            raise RuntimeError("the portal does not come up")
        self._bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus",
                            "org.freedesktop.DBus", "RequestName",
                            GLib.Variant("(su)", (NAME, 0)), None, Gio.DBusCallFlags.NONE, 3000,
                            None)

    def prefer(self, scheme):
        """The user changes their mind."""
        self._scheme = scheme
        self._bus.emit_signal(None, PATH, _SETTINGS, "SettingChanged",
                              GLib.Variant("(ssv)", (*_WANTED, GLib.Variant("u", scheme))))

    def close(self):
        self._loop.quit()
        self._thread.join(5.0)
        self._bus.close_sync(None)

    def _serve(self, ready):
        self._context.push_thread_default()
        self._bus.register_object(PATH, Gio.DBusNodeInfo.new_for_xml(_DESCRIPTION).interfaces[0],
                                  self._on_call, None, None)
        ready.set()
        self._loop.run()
        self._context.pop_thread_default()

    def _on_call(self, _bus, _sender, _path, _interface, _method, arguments, invocation):
        if arguments.unpack() == _WANTED:
            # One wrapping for the method's answer, one for the setting's value.
            value = GLib.Variant("v", GLib.Variant("u", self._scheme))
            invocation.return_value(GLib.Variant("(v)", (value,)))
        else:
            invocation.return_dbus_error(f"{NAME}.Error.NotFound", "no such setting")
