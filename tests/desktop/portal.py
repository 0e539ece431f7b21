"""The desktop's portal, as far as it tells whether the user prefers dark windows."""

from gi.repository import GLib

from bus_service import BusService

_WANTED = ("org.freedesktop.appearance", "color-scheme")
DARK, LIGHT = 1, 2

_DESCRIPTION = """
<interface name="org.freedesktop.portal.Settings">
  <method name="Read"><arg type="s" direction="in"/><arg type="s" direction="in"/>
    <arg type="v" direction="out"/></method>
  <signal name="SettingChanged"><arg type="s"/><arg type="s"/><arg type="v"/></signal>
</interface>
"""


class Portal(BusService):

    def __init__(self, session, scheme):
        self._scheme = scheme
        super().__init__(session, "org.freedesktop.portal.Desktop",
                         "/org/freedesktop/portal/desktop", _DESCRIPTION)

    def prefer(self, scheme):
        """The user changes their mind."""
        self._scheme = scheme
        self.signal("SettingChanged",
                    GLib.Variant("(ssv)", (*_WANTED, GLib.Variant("u", scheme))))

    def answer(self, _sender, _method, values):
        if values != _WANTED:
            raise LookupError("no such setting")
        # One wrapping for the method's answer, one for the setting's value.
        return GLib.Variant("(v)", (GLib.Variant("v", GLib.Variant("u", self._scheme)),))
