"""A window of which nobody tells assistive technology anything."""

import os

from Xlib import X, Xatom, display

import wait


class Sheet:
    """A window of one colour; a floating one stays above all others."""

    def __init__(self, desktop, colour, frame, floating=False):
        self._display = display.Display(desktop.session.display)
        red, green, blue = colour
        self.window = self._display.screen().root.create_window(
            frame.x, frame.y, frame.width, frame.height, 0, X.CopyFromParent,
            background_pixel=red << 16 | green << 8 | blue, override_redirect=floating)
        self.window.change_property(self._display.intern_atom("_NET_WM_PID"), Xatom.CARDINAL, 32,
                                    [os.getpid()])
        self.window.map()
        self._display.sync()
        wait.until(lambda: self.window.get_attributes().map_state == X.IsViewable, 5.0,
                   "the sheet is there")

    def close(self):
        self._display.close()
