"""The controls of a program's windows, as a screen reader finds and operates them."""

from gi.repository import GLib

import wait
from text import SHOWING

CHECKED, SELECTED = 4, 23  # Bit numbers of the states.

_ACCESSIBLE = "org.a11y.atspi.Accessible"
_ACTION = "org.a11y.atspi.Action"
_VALUE = "org.a11y.atspi.Value"
_PROPERTIES = "org.freedesktop.DBus.Properties"


class Controls:
    """What a process shows at the moment, by role and name."""

    def __init__(self, bus, pid):
        self._bus, self._pid = bus, pid

    def all(self):
        """The role and name of everything that is shown and has a name."""
        return [(control.role, control.name) for control in self._shown() if control.name]

    def find(self, role, name, limit=3.0):
        """The one shown control of a role with a name; waits until it is there."""
        def found():
            return self.shown(role, name)
        return wait.until(found, limit, f"a {role} {name!r} is shown")

    def shown(self, role, name):
        """The same without waiting, or None."""
        try:
            return next((control for control in self._shown()
                         if control.name == name and control.role == role), None)
        except GLib.Error:
            return None  # A row went away under our feet: the next look finds the tree whole.

    def _shown(self):
        for node in self._bus.nodes_of(self._pid):
            if self._bus.has_state(*node, SHOWING):
                yield Control(self._bus, *node)


class Control:
    """One control; its role and name are those that it had when it was found."""

    def __init__(self, bus, owner, path):
        self._bus, self._node = bus, (owner, path)
        self.name = bus.name_of(owner, path)
        self.role = self._ask(_ACCESSIBLE, "GetRoleName")[0]

    @property
    def frame(self):
        """Where it is on the screen, in pixels."""
        return self._bus.extents(*self._node)

    @property
    def is_checked(self):
        return self._bus.has_state(*self._node, CHECKED)

    @property
    def description(self):
        return self._get(_ACCESSIBLE, "Description")

    @property
    def value(self):
        return self._get(_VALUE, "CurrentValue")

    def set_value(self, value):
        self._ask(_PROPERTIES, "Set", GLib.Variant("(ssv)", (
            _VALUE, "CurrentValue", GLib.Variant("d", value))))

    def do(self, action):
        """Does what assistive technology offers its user to do."""
        names = [name for name, _, _ in self._ask(_ACTION, "GetActions")[0]]
        self._ask(_ACTION, "DoAction", GLib.Variant("(i)", (names.index(action),)))

    def _get(self, interface, name):
        return self._ask(_PROPERTIES, "Get", GLib.Variant("(ss)", (interface, name)))[0]

    def _ask(self, interface, method, arguments=None):
        return self._bus.call(*self._node, interface, method, arguments)
