"""The feedback form, filled in with real keys and sent to a real server."""

import base64
import time

import gi

gi.require_version("GdkPixbuf", "2.0")
from gi.repository import GdkPixbuf, GLib  # After the version.

from case import DesktopCase
from sheet import Sheet
from windows import Rect

TITLE = "Feedback senden"
BLUE, RED = (20, 60, 200), (200, 30, 20)


def inside(png, margin=30):
    """Width and height of a picture, and its colours away from the edges, as another library reads
    it."""
    loader = GdkPixbuf.PixbufLoader.new_with_type("png")
    loader.write_bytes(GLib.Bytes.new(png))
    loader.close()
    picture = loader.get_pixbuf()
    width, height, size = picture.get_width(), picture.get_height(), picture.get_n_channels()
    data, stride = picture.get_pixels(), picture.get_rowstride()
    colours = {data[start:start + 3]
               for row in range(margin, height - margin)
               for start in range(row * stride + margin * size,
                                  row * stride + (width - margin) * size, size)}
    return width, height, colours


class FeedbackTest(DesktopCase):

    def form(self, program):
        """The form's window on the screen, or None."""
        return self.windows.client_of(program.pid, TITLE)

    def open_form(self, program):
        program.wait_for_icon(self.tray).choose("Feedback senden …")
        window = program.wait_until(lambda: self.form(program), 5.0, "the form is there")
        self.desktop.accessibility.focused_text(program.pid)
        return self.windows.frame(window)

    def type(self, words):
        for letter in words:
            self.hands.press("space" if letter == " " else letter)

    def click_send(self, frame):
        """The button in the corner; the window has the same name."""
        self.hands.click(frame.right - 80, frame.bottom - 30)

    def shows(self, program, frame, words, limit=10.0):
        """Waits until a part of the form bears these words; where it is."""
        return self.desktop.accessibility.extents_of(program.pid, words, frame, limit)

    def test_a_message_with_a_picture_of_what_lies_below_the_form(self):
        behind = Sheet(self.desktop, BLUE, Rect(200, 100, 900, 600))
        self.addCleanup(behind.close)
        program, server = self.start_elsewhere()
        frame = self.open_form(program)
        front = Sheet(self.desktop, RED, Rect(frame.x + 20, frame.y + 10, 60, 30), floating=True)
        self.addCleanup(front.close)

        self.type("it hangs ")
        self.hands.press("Tab")
        self.hands.press("space")
        self.shows(program, frame, "Screenshot")
        self.click_send(frame)
        self.shows(program, frame, "Danke! Feedback ist drin (ID: r1)")
        confirmed = time.monotonic()
        program.wait_until(lambda: not self.form(program), 5.0, "the form is gone")
        self.assertAlmostEqual(time.monotonic() - confirmed, 1.5, delta=0.4)

        request, = server.requests()
        parts = {name: base64.b64decode(data) for name, data in request["parts"].items()}
        self.assertEqual(parts["text"].decode(), "it hangs ")
        self.assertEqual(parts["app_module"].decode(), "Corvane Quillet – Hauptfenster")
        self.assertIn("=== Corvane Quillet Diagnose ===", parts["diagnose"].decode())
        width, height, colours = inside(parts["screenshot"])
        self.assertEqual(colours, {bytes(BLUE)})
        self.assertGreaterEqual((width, height), (900, 600))
        self.assertLess((width, height), (940, 660))

        self.open_form(program)
        self.assertEqual(self.desktop.accessibility.focused_text(program.pid).content(), "")
