"""What the X server says of windows: whose, where, mapped, active, focused."""

from dataclasses import dataclass

from Xlib import X, Xatom, display, error
from Xlib.protocol import event


@dataclass(frozen=True)
class Rect:
    """Pixels of the screen, origin top left."""
    x: int
    y: int
    width: int
    height: int

    @property
    def right(self):
        return self.x + self.width

    @property
    def bottom(self):
        return self.y + self.height

    @property
    def centre(self):
        return self.x + self.width / 2, self.y + self.height / 2

    def touches(self, other):
        return (self.x < other.right and other.x < self.right
                and self.y < other.bottom and other.y < self.bottom)

    def __str__(self):
        return f"{self.width}x{self.height}+{self.x}+{self.y}"


class Windows:
    """The windows of one X server."""

    def __init__(self, display_name):
        self._display = display.Display(display_name)
        self._root = self._display.screen().root

    def floating_of(self, pid):
        """The mapped windows of a process that no window manager handles, with their frames."""
        found = []
        for window in self._root.query_tree().children:
            try:
                attributes = window.get_attributes()
                if (attributes.override_redirect and attributes.map_state == X.IsViewable
                        and self._pid(window) == pid):
                    found.append((window, self.frame(window)))
            except error.XError:
                continue  # It went away between the two questions.
        return found

    def clients(self):
        """The windows that the window manager handles, oldest first."""
        return [self._display.create_resource_object("window", identifier)
                for identifier in self._cardinals(self._root, "_NET_CLIENT_LIST")]

    def client_of(self, pid, title=None):
        """A managed window of a process, by a part of its title if one is given; or None."""
        for window in self.clients():
            try:
                if self._pid(window) == pid and (title is None or title in self.title(window)):
                    return window
            except error.XError:
                continue
        return None

    def frame(self, window):
        """Where a window's inside is on the screen."""
        geometry = window.get_geometry()
        origin = self._root.translate_coords(window, 0, 0)
        # The answer of this call has its sign the other way round in python-xlib.
        return Rect(-origin.x if origin.x > 0x7fff else origin.x,
                    -origin.y if origin.y > 0x7fff else origin.y,
                    geometry.width, geometry.height)

    def title(self, window):
        text = window.get_full_text_property(self._display.intern_atom("_NET_WM_NAME"))
        return text or window.get_wm_name() or ""

    def active_pid(self):
        """The process of the window that the window manager calls active, or None."""
        return self._active()[1]

    def active_of(self, pid):
        """The active window, if it is that process's; or None."""
        window, owner = self._active()
        return window if owner == pid else None

    def _active(self):
        for identifier in self._cardinals(self._root, "_NET_ACTIVE_WINDOW"):
            if identifier:
                window = self._display.create_resource_object("window", identifier)
                try:
                    return window, self._pid(window)
                except error.XError:
                    pass  # It has just gone, and the window manager does not know it yet.
        return None, None

    def focused_pid(self):
        """The process whose window has the keyboard, or None."""
        window = self._display.get_input_focus().focus
        try:
            while not isinstance(window, int) and window.id != self._root.id:
                pid = self._pid(window)
                if pid is not None:
                    return pid
                window = window.query_tree().parent
        except error.XError:
            pass
        return None

    def place(self, window, rect):
        """Asks for a window's inside to be at a place; the window manager keeps its border."""
        window.configure(x=rect.x, y=rect.y, width=rect.width, height=rect.height)
        self._display.sync()

    def activate(self, window):
        """What a taskbar asks for when its user clicks a window's entry."""
        self._message(window, "_NET_ACTIVE_WINDOW", [2, X.CurrentTime, 0, 0, 0])

    def close(self, window):
        """What the close button of a window's border asks for."""
        self._message(window, "_NET_CLOSE_WINDOW", [X.CurrentTime, 2, 0, 0, 0])

    def _message(self, window, name, values):
        message = event.ClientMessage(window=window, client_type=self._display.intern_atom(name),
                                      data=(32, values))
        self._root.send_event(message, event_mask=X.SubstructureRedirectMask
                              | X.SubstructureNotifyMask)
        self._display.sync()

    def _pid(self, window):
        values = self._cardinals(window, "_NET_WM_PID", Xatom.CARDINAL)
        return values[0] if values else None

    def _cardinals(self, window, name, kind=X.AnyPropertyType):
        answer = window.get_full_property(self._display.intern_atom(name), kind)
        return list(answer.value) if answer else []
