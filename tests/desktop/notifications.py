"""The desktop's notification service: keeps what it is told to show, and clicks on it."""

from dataclasses import dataclass

from gi.repository import GLib

from bus_service import BusService

NAME = "org.freedesktop.Notifications"

_DESCRIPTION = f"""
<interface name="{NAME}">
  <method name="Notify">
    <arg type="s" direction="in"/><arg type="u" direction="in"/><arg type="s" direction="in"/>
    <arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="as" direction="in"/>
    <arg type="a{{sv}}" direction="in"/><arg type="i" direction="in"/>
    <arg type="u" direction="out"/>
  </method>
  <method name="CloseNotification"><arg type="u" direction="in"/></method>
  <signal name="ActionInvoked"><arg type="u"/><arg type="s"/></signal>
  <signal name="NotificationClosed"><arg type="u"/><arg type="u"/></signal>
</interface>
"""
_CLOSED_BY_USER, _CLOSED_BY_PROGRAM = 2, 3


@dataclass(frozen=True)
class Notification:
    identifier: int
    program: str
    summary: str


class Notifications(BusService):

    def __init__(self, session):
        self.shown = []  # What the user sees at the moment.
        self.count = 0
        super().__init__(session, NAME, "/org/freedesktop/Notifications", _DESCRIPTION)

    def click(self, notification):
        """What the user does who wants to know more; the service then takes it away."""
        self.signal("ActionInvoked", GLib.Variant("(us)", (notification.identifier, "default")))
        self._take_away(notification.identifier, _CLOSED_BY_USER)

    def answer(self, _sender, method, values):
        if method == "CloseNotification":
            self._take_away(values[0], _CLOSED_BY_PROGRAM)
            return None
        program, replaced, _, summary, *_ = values
        self.count += 1
        identifier = replaced or self.count
        self.shown = [old for old in self.shown if old.identifier != identifier]
        self.shown.append(Notification(identifier, program, summary))
        return GLib.Variant("(u)", (identifier,))

    def _take_away(self, identifier, reason):
        self.shown = [old for old in self.shown if old.identifier != identifier]
        self.signal("NotificationClosed", GLib.Variant("(uu)", (identifier, reason)))
