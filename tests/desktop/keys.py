"""The user's hands: keys and pointer of the X server, through its test extension."""

from Xlib import X, XK, display
from Xlib.ext import xtest

LEFT_BUTTON, RIGHT_BUTTON = 1, 3

MODIFIERS = {"Control": "Control_L", "Shift": "Shift_L", "Alt": "Alt_L", "Super": "Super_L"}


class Hands:
    """Presses what a user presses. Every call returns once the server has taken it."""

    def __init__(self, display_name):
        self._display = display.Display(display_name)
        self.held = []

    def press(self, chord):
        """A key with its modifiers: "b", "Return", "Control+Shift+Right"."""
        *modifiers, key = chord.split("+")
        for name in modifiers:
            self.hold(MODIFIERS[name])
        self._key(X.KeyPress, key)
        self._key(X.KeyRelease, key)
        for name in reversed(modifiers):
            self.release(MODIFIERS[name])

    def repeat(self, chord, times):
        for _ in range(times):
            self.press(chord)

    def hold(self, key):
        self._key(X.KeyPress, key)
        self.held.append(key)

    def release(self, key):
        self._key(X.KeyRelease, key)
        self.held.remove(key)

    def move(self, x, y):
        """Puts the pointer at a pixel of the screen."""
        xtest.fake_input(self._display, X.MotionNotify, x=round(x), y=round(y))
        self._display.sync()

    def click(self, x, y, button=LEFT_BUTTON):
        self.move(x, y)
        self._button(X.ButtonPress, button)
        self._button(X.ButtonRelease, button)

    def drag(self, start, end, steps=12):
        """Presses at `start`, moves in small steps, and lets go at `end`."""
        (x0, y0), (x1, y1) = start, end
        self.move(x0, y0)
        self._button(X.ButtonPress)
        for step in range(1, steps + 1):
            self.move(x0 + (x1 - x0) * step / steps, y0 + (y1 - y0) * step / steps)
        self._button(X.ButtonRelease)

    def pointer(self):
        """Where the pointer is, in pixels."""
        answer = self._display.screen().root.query_pointer()
        return answer.root_x, answer.root_y

    def down(self):
        """The key codes that the server holds for pressed."""
        keymap = self._display.query_keymap()
        return [8 * byte + bit for byte in range(32) for bit in range(8)
                if keymap[byte] & (1 << bit)]

    def modifiers(self):
        """The modifiers that the server holds for active, as its mask; locks left out."""
        mask = self._display.screen().root.query_pointer().mask
        return mask & (X.ShiftMask | X.ControlMask | X.Mod1Mask | X.Mod4Mask)

    def _key(self, what, name):
        code = self._display.keysym_to_keycode(XK.string_to_keysym(name))
        if code == 0:
            raise ValueError(f"the keyboard has no key {name}")
        xtest.fake_input(self._display, what, code)
        self._display.sync()

    def _button(self, what, button=LEFT_BUTTON):
        xtest.fake_input(self._display, what, button)
        self._display.sync()
