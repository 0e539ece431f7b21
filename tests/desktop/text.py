"""What a screen reader would learn of an application's text, over the accessibility bus."""

from collections import deque

from gi.repository import Gio, GLib

import wait
from bus_service import connect
from windows import Rect

CALL_LIMIT = 2000  # Milliseconds that one question may take.
ON_SCREEN, IN_WINDOW = 0, 1
FOCUSED = 12  # Bit numbers of the states.
SHOWING = 25
MOST_NODES = 3000

_TEXT = "org.a11y.atspi.Text"
_ACCESSIBLE = "org.a11y.atspi.Accessible"


class AccessibilityBus:
    """The bus on which applications tell what they show."""

    def __init__(self, session, windows):
        self._windows = windows
        address = session.call("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress",
                               answer="(s)").unpack()[0]
        self._connection = connect(address)

    def call(self, name, path, interface, method, arguments=None):
        return self._connection.call_sync(name, path, interface, method, arguments, None,
                                          Gio.DBusCallFlags.NONE, CALL_LIMIT, None).unpack()

    def focused_text(self, pid, limit=10.0):
        """The text widget of a process that has the focus; waits until there is one."""
        node = self._wait_for(pid, self._is_focused_text, limit, "a focused text widget")
        return Text(self, *node)

    def text_containing(self, words, limit=10.0):
        """The focused text widget of whichever process, once it holds these words."""
        def found():
            for name, path in self._roots():
                node = self._find_below((name, path), lambda *node: self._is_focused_text(*node)
                                        and words in Text(self, *node).content())
                if node:
                    return Text(self, *node)
            return None
        return wait.until(found, limit, f"a focused text widget with {words!r}")

    def extents_of(self, pid, label, within, limit=5.0):
        """Where the widget of a process that bears a name is on the screen, in pixels; at least a
        part of it lies in the rectangle `within`."""
        def is_wanted(*node):
            return (self.name_of(*node) == label and self.has_state(*node, SHOWING)
                    and within.touches(self.extents(*node)))
        return self.extents(*self._wait_for(pid, is_wanted, limit, f"a widget {label!r}"))

    def extents(self, name, path):
        """Where a node is on the screen, in pixels."""
        return Rect(*self.call(name, path, "org.a11y.atspi.Component", "GetExtents",
                               GLib.Variant("(u)", (ON_SCREEN,)))[0])

    def window_of(self, name):
        """Where the window in front of an application is on the screen, in pixels."""
        pid = self._pid((name,))
        return self._windows.frame(self._windows.active_of(pid) or self._windows.client_of(pid))

    def nodes_of(self, pid):
        """Everything that a process tells of, from the outside in."""
        return [node for root in self._roots() if self._pid(root) == pid
                for node in self._walk(root)]

    def _wait_for(self, pid, is_wanted, limit, what):
        return wait.until(lambda: self._find(pid, is_wanted), limit, f"process {pid} has {what}")

    def _find(self, pid, is_wanted):
        for root in self._roots():
            node = self._find_below(root, is_wanted) if self._pid(root) == pid else None
            if node:
                return node
        return None

    def _find_below(self, root, is_wanted):
        try:
            return next((node for node in self._walk(root) if is_wanted(*node)), None)
        except GLib.Error:
            return None  # The tree changed under our feet: the next look finds it whole.

    def _roots(self):
        return self.call("org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root",
                         _ACCESSIBLE, "GetChildren")[0]

    def _pid(self, root):
        try:
            return self.call("org.freedesktop.DBus", "/org/freedesktop/DBus",
                             "org.freedesktop.DBus", "GetConnectionUnixProcessID",
                             GLib.Variant("(s)", (root[0],)))[0]
        except GLib.Error:
            return None  # It has just gone.

    def _walk(self, root):
        waiting = deque([root])
        for _ in range(MOST_NODES):
            if not waiting:
                return
            node = waiting.popleft()
            yield node
            waiting.extend(self.call(*node, _ACCESSIBLE, "GetChildren")[0])

    def has_state(self, name, path, state):
        low, _ = self.call(name, path, _ACCESSIBLE, "GetState")[0]
        return bool(low & (1 << state))

    def _is_focused_text(self, name, path):
        return self.has_state(name, path, FOCUSED) and _TEXT in self.call(
            name, path, _ACCESSIBLE, "GetInterfaces")[0]

    def name_of(self, name, path):
        return self.call(name, path, "org.freedesktop.DBus.Properties", "Get",
                         GLib.Variant("(ss)", (_ACCESSIBLE, "Name")))[0]


class Text:
    """One text widget of another application."""

    def __init__(self, bus, name, path):
        self._bus = bus
        self._node = (name, path)

    def content(self):
        return self._ask("GetText", "(ii)", 0, -1)[0]

    def offset_of(self, words):
        """Where `words` begin; they must be there once."""
        content = self.content()
        if content.count(words) != 1:
            raise AssertionError(f"{words!r} stands {content.count(words)} times in {content!r}")
        return content.index(words)

    def caret(self):
        return self._bus.call(*self._node, "org.freedesktop.DBus.Properties", "Get",
                              GLib.Variant("(ss)", (_TEXT, "CaretOffset")))[0]

    def selection(self):
        """The selected range as (start, end), or None."""
        if self._ask("GetNSelections")[0] < 1:
            return None
        start, end = self._ask("GetSelection", "(i)", 0)
        return (start, end) if end > start else None

    def selected_text(self):
        selection = self.selection()
        return self._ask("GetText", "(ii)", *selection)[0] if selection else ""

    def extents(self, start, end):
        """The rectangle around a range on one line, in pixels of the screen."""
        try:
            return Rect(*self._ask("GetRangeExtents", "(iiu)", start, end, ON_SCREEN))
        except GLib.Error as refusal:
            if "NotSupported" not in refusal.message:
                raise
        # A toolkit that knows nothing of the screen, and of ranges less than of characters.
        window = self._bus.window_of(self._node[0])
        first, last = (Rect(*self._ask("GetCharacterExtents", "(iu)", offset, IN_WINDOW))
                       for offset in (start, end - 1))
        return Rect(window.x + first.x, window.y + first.y, last.right - first.x, first.height)

    def attributes(self, offset):
        """The attributes of the character at `offset`."""
        return self._ask("GetAttributeRun", "(ib)", offset, True)[0]

    def is_bold(self, start, end):
        """Whether every character of a range is drawn bold."""
        return all(int(self.attributes(offset).get("weight", "400")) >= 700
                   for offset in range(start, end))

    def _ask(self, method, kinds=None, *values):
        return self._bus.call(*self._node, _TEXT, method,
                              GLib.Variant(kinds, values) if kinds else None)
