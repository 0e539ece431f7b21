"""A plain text editor with one document."""

import os

import wait
from windows import Rect

_SETTINGS = """[org/xfce/mousepad/preferences/window]
menubar-visible=false
statusbar-visible=false
toolbar-visible=false
client-side-decorations=false
"""


class Mousepad:
    """The editor, its window at a wanted place and its text focused."""

    def __init__(self, desktop, content, area=None, environment=None):
        self._desktop = desktop
        path = desktop.session.path("document.txt")
        with open(path, "w", encoding="utf-8") as file:
            file.write(content)
        settings = os.path.join(desktop.session.config_folder, "glib-2.0", "settings")
        os.makedirs(settings, exist_ok=True)
        with open(os.path.join(settings, "keyfile"), "a", encoding="utf-8") as file:
            file.write(_SETTINGS)
        self.process = desktop.session.start(["mousepad", path], environment)
        self.window = wait.until(lambda: desktop.windows.client_of(self.process.pid), 20.0,
                                 "the editor's window")
        if area is not None:
            self.place(area)
        self.text = desktop.focus(self)

    @property
    def pid(self):
        return self.process.pid

    def place(self, area):
        """Puts the window's inside at a place of the screen, as near as its border lets it."""
        before = self._desktop.windows.frame(self.window)
        self._desktop.windows.place(self.window, area)
        wait.until(lambda: self._desktop.windows.frame(self.window) != before
                   or before == area, 5.0, "the editor's window is in its place")

    def frame(self) -> Rect:
        return self._desktop.windows.frame(self.window)
