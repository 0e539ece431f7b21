"""Pictures of the screen: colours of pixels, areas of a colour, PNG files."""

import gi
from Xlib import X, display

from windows import Rect

gi.require_version("GdkPixbuf", "2.0")
from gi.repository import GdkPixbuf, GLib  # After the version.


class Picture:
    """A copy of a part of the screen; pixels are counted from the screen's top left corner."""

    def __init__(self, area, pixels):
        self.area = area
        self._pixels = pixels  # Blue, green, red, unused.

    def __eq__(self, other):
        return self.area == other.area and self._pixels == other._pixels

    def colour(self, x, y):
        """(red, green, blue) of a pixel of the screen."""
        offset = 4 * ((round(y) - self.area.y) * self.area.width + round(x) - self.area.x)
        blue, green, red = self._pixels[offset:offset + 3]
        return red, green, blue

    def bounds_of(self, colour, tolerance=2):
        """The smallest rectangle around the pixels of a colour, or None."""
        def is_wanted(offset):
            return all(abs(self._pixels[offset + 2 - channel] - colour[channel]) <= tolerance
                       for channel in range(3))
        return self._bounds(is_wanted)

    def part(self, area):
        """A part of the picture; `area` must lie inside."""
        first = area.x - self.area.x
        lines = [4 * (row * self.area.width + first)
                 for row in range(area.y - self.area.y, area.bottom - self.area.y)]
        return Picture(area, b"".join(self._pixels[start:start + 4 * area.width]
                                      for start in lines))

    def changes_since(self, before):
        """The smallest rectangle around the pixels that differ from an earlier picture of the same
        area, or None."""
        return self._bounds(lambda offset: self._pixels[offset:offset + 3]
                            != before._pixels[offset:offset + 3])

    def _bounds(self, is_wanted):
        rows, left, right = [], self.area.width, -1
        for row in range(self.area.height):
            start = 4 * row * self.area.width
            columns = [column for column in range(self.area.width)
                       if is_wanted(start + 4 * column)]
            if columns:
                rows.append(row)
                left, right = min(left, columns[0]), max(right, columns[-1])
        if not rows:
            return None
        return Rect(self.area.x + left, self.area.y + rows[0], right - left + 1,
                    rows[-1] - rows[0] + 1)

    def save(self, path):
        width, height = self.area.width, self.area.height
        colours = bytearray(3 * width * height)
        for channel in range(3):
            colours[channel::3] = self._pixels[2 - channel::4]
        GdkPixbuf.Pixbuf.new_from_bytes(GLib.Bytes.new(bytes(colours)), GdkPixbuf.Colorspace.RGB,
                                        False, 8, width, height, 3 * width).savev(path, "png")


class Camera:
    """Takes pictures of a screen."""

    def __init__(self, display_name):
        self._display = display.Display(display_name)

    def take(self, area=None):
        """A picture of `area`, cut to the screen; of the whole screen without one."""
        screen = self._display.screen()
        area = area or Rect(0, 0, screen.width_in_pixels, screen.height_in_pixels)
        x, y = max(area.x, 0), max(area.y, 0)
        area = Rect(x, y, min(area.right, screen.width_in_pixels) - x,
                    min(area.bottom, screen.height_in_pixels) - y)
        image = screen.root.get_image(area.x, area.y, area.width, area.height, X.ZPixmap,
                                      0xffffffff)
        return Picture(area, image.data)
