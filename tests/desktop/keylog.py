"""What the keyboard did, as the X server saw it: real keys and posted ones alike."""

import threading

from Xlib import X, XK, display
from Xlib.ext import record
from Xlib.protocol import rq

import wait

_MODIFIERS = {"Control_L": "Control", "Control_R": "Control", "Shift_L": "Shift",
              "Shift_R": "Shift", "Alt_L": "Alt", "Alt_R": "Alt", "Super_L": "Super",
              "Super_R": "Super"}
_ORDER = ["Control", "Alt", "Super", "Shift"]


class KeyLog:
    """Listens from construction until `close`."""

    def __init__(self, display_name):
        self._control = display.Display(display_name)
        self._data = display.Display(display_name)
        self._lock = threading.Lock()
        self._events = []
        self._context = self._data.record_create_context(0, [record.AllClients], [{
            "core_requests": (0, 0), "core_replies": (0, 0), "ext_requests": (0, 0, 0, 0),
            "ext_replies": (0, 0, 0, 0), "delivered_events": (0, 0),
            "device_events": (X.KeyPress, X.KeyRelease), "errors": (0, 0),
            "client_started": False, "client_died": False}])
        started = threading.Event()
        self._thread = threading.Thread(target=self._listen, args=(started,), daemon=True)
        self._thread.start()
        if not started.wait(5.0):
            raise RuntimeError("the X server does not record")

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()

    def close(self):
        """Safe to call twice."""
        if not self._thread.is_alive():
            return
        self._control.record_disable_context(self._context)
        self._control.flush()
        self._thread.join(5.0)
        self._control.close()
        self._data.close()

    def chords(self):
        """The keys pressed so far that are no modifiers, each with the modifiers held: in the
        order Control, Alt, Super, Shift, as in "Control+Shift+t"."""
        held, chords = [], []
        with self._lock:
            events = list(self._events)
        for pressed, name in events:
            modifier = _MODIFIERS.get(name)
            if modifier and pressed:
                held.append(modifier)
            elif modifier and modifier in held:
                held.remove(modifier)
            elif pressed:
                chords.append("+".join([m for m in _ORDER if m in held] + [name]))
        return chords

    def all_released(self):
        """Whether every key pressed so far was let go again."""
        with self._lock:
            names = [name if pressed else None for pressed, name in self._events]
        return len([name for name in names if name]) * 2 == len(names)

    def wait_for(self, chords, limit=2.0):
        """Waits until just these chords have come, and all keys are up again."""
        try:
            wait.until(lambda: len(self.chords()) >= len(chords) and self.all_released(), limit,
                       f"the chords {chords}")
        finally:
            if self.chords() != chords:
                raise AssertionError(f"{chords} were to come, {self.chords()} came")

    def _listen(self, started):
        self._data.record_enable_context(self._context,
                                         lambda reply: self._take(reply, started))

    def _take(self, reply, started):
        if reply.category == record.StartOfData:
            started.set()
        if reply.category != record.FromServer or reply.client_swapped:
            return
        data = reply.data
        while data:
            event, data = rq.EventField(None).parse_binary_value(data, self._data.display,
                                                                 None, None)
            keysym = self._control.keycode_to_keysym(event.detail, 0)
            name = XK.keysym_to_string(keysym) or _name_of(keysym)
            with self._lock:
                self._events.append((event.type == X.KeyPress, name))


def _name_of(keysym):
    """The name of a key that writes nothing."""
    for name in (*_MODIFIERS, "Right", "Left", "Home", "End", "Escape", "Caps_Lock", "Return"):
        if XK.string_to_keysym(name) == keysym:
            return name
    return hex(keysym)
