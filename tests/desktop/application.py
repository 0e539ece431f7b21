"""What the applications on the desktop have in common that others wrote."""

import wait


class Application:
    """A running application and its window, at a wanted place, in front and with its text focused."""

    def __init__(self, desktop, command, environment=None, area=None):
        self._desktop = desktop
        self.process = desktop.session.start(command, environment)
        self.window = wait.until(lambda: desktop.windows.client_of(self.process.pid), 20.0,
                                 f"the window of {command[0]}")
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
                   or before == area, 5.0, "the window is in its place")
