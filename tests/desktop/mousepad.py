"""A plain text editor with one document."""

from application import Application

_SETTINGS = """[org/xfce/mousepad/preferences/window]
menubar-visible=false
statusbar-visible=false
toolbar-visible=false
client-side-decorations=false
"""


class Mousepad(Application):
    """The editor, its window at a wanted place."""

    def __init__(self, desktop, content, area=None, environment=None):
        path = desktop.session.path("document.txt")
        with open(path, "w", encoding="utf-8") as file:
            file.write(content)
        desktop.session.add_toolkit_settings(_SETTINGS)
        super().__init__(desktop, ["mousepad", path], environment, area)
