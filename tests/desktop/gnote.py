"""A real notes application with one note."""

import os
from xml.sax.saxutils import escape

from application import Application

IDENTIFIER = "0f3e2a54-8f1d-4a53-9c0e-7f6d5b1c2a10"

_NOTE = """<?xml version="1.0" encoding="utf-8"?>
<note version="0.3" xmlns:link="http://beatniksoftware.com/tomboy/link" \
xmlns:size="http://beatniksoftware.com/tomboy/size" xmlns="http://beatniksoftware.com/tomboy">
<title>{title}</title>
<text xml:space="preserve"><note-content version="0.1">{title}

{body}</note-content></text>
<last-change-date>2024-01-01T00:00:00.0000000+00:00</last-change-date>
<last-metadata-change-date>2024-01-01T00:00:00.0000000+00:00</last-metadata-change-date>
<create-date>2024-01-01T00:00:00.0000000+00:00</create-date>
<cursor-position>0</cursor-position><selection-bound-position>0</selection-bound-position>
<width>700</width><height>420</height>
<open-on-startup>False</open-on-startup>
</note>
"""

_SETTINGS = """[org/gnome/gnote]
enable-spellchecking=false
enable-url-links=false
enable-close-note-on-escape=false
use-client-side-decorations='disabled'
search-window-width=640
search-window-height=400
"""


class Gnote(Application):
    """The application, started with a note open."""

    def __init__(self, desktop, title, body):
        folder = os.path.join(desktop.session.environment["XDG_DATA_HOME"], "gnote")
        os.makedirs(folder, exist_ok=True)
        self._note_file = os.path.join(folder, f"{IDENTIFIER}.note")
        with open(self._note_file, "w", encoding="utf-8") as file:
            file.write(_NOTE.format(title=escape(title), body=escape(body)))
        desktop.session.add_toolkit_settings(_SETTINGS)
        super().__init__(desktop, ["gnote", "--open-note", f"note://gnote/{IDENTIFIER}"])

    def saved(self):
        """The note as it lies on disk, marks included."""
        with open(self._note_file, encoding="utf-8") as file:
            return file.read()
