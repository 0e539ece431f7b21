"""What the applications on the desktop have in common that others wrote."""

import wait


class Application:
    """A running application and its window, in front and with its text focused."""

    def __init__(self, desktop, command, environment=None):
        self._desktop = desktop
        self.process = desktop.session.start(command, environment)
        self.window = wait.until(lambda: desktop.windows.client_of(self.process.pid), 20.0,
                                 f"the window of {command[0]}")
        self.text = desktop.focus(self)

    @property
    def pid(self):
        return self.process.pid
