"""A window of our own with a plain field and a password field, as a foreign application has them.

Started by itself: entries.py plain|password gives the focus to that field.
"""

import os
import sys

import gi

from application import Application

gi.require_version("Gdk", "3.0")
gi.require_version("Gtk", "3.0")
from gi.repository import Gdk, GLib, Gtk  # After the versions.

WORDS = "open sesame"

_DESKTOP_FILE = """[Desktop Entry]
Type=Application
Name=Two Fields
Exec={executable}
StartupWMClass=two-fields
"""


class Entries(Application):
    """The window as a process of its own, with one of its fields focused."""

    def __init__(self, desktop, field):
        script = os.path.abspath(__file__)
        folder = os.path.join(desktop.session.environment["XDG_DATA_HOME"], "applications")
        os.makedirs(folder, exist_ok=True)
        with open(os.path.join(folder, "two-fields.desktop"), "w", encoding="utf-8") as file:
            file.write(_DESKTOP_FILE.format(executable=script))
        super().__init__(desktop, [sys.executable, script, field])


def _is_foreign_shortcut(_field, event):
    """The toolkit has own uses for some shortcuts; here none but Control+A does anything."""
    return bool(event.state & Gdk.ModifierType.CONTROL_MASK) and event.keyval != Gdk.KEY_a


def _show(focused):
    GLib.set_prgname("two-fields")
    window = Gtk.Window(title="Two fields", default_width=400)
    box = Gtk.Box(orientation=Gtk.Orientation.VERTICAL, spacing=60, margin=60)
    for name, visible in (("plain", True), ("password", False)):
        field = Gtk.Entry(text=WORDS, visibility=visible)
        field.connect("key-press-event", _is_foreign_shortcut)
        box.add(field)
        if name == focused:
            field.grab_focus()
    window.add(box)
    window.connect("destroy", Gtk.main_quit)
    window.show_all()
    Gtk.main()


if __name__ == "__main__":
    _show(sys.argv[1])
