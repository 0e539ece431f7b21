"""A private desktop with everything at hand: the user's hands and the witnesses' eyes."""

import wait
from keys import Hands
from pictures import Camera
from session import Session
from text import AccessibilityBus
from windows import Rect, Windows


class Desktop:
    """A session with what is needed to work in it and to look at it."""

    def __init__(self, **options):
        self.session = Session(**options)
        try:
            self.hands = Hands(self.session.display)
            self.windows = Windows(self.session.display)
            self.camera = Camera(self.session.display)
            self.accessibility = AccessibilityBus(self.session, self.windows)
        except BaseException:
            self.close()
            raise

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()

    def close(self):
        self.session.close()

    def focus(self, application):
        """Brings an application's window forward; its text widget that then has the focus."""
        self.windows.activate(application.window)
        wait.until(lambda: self.windows.focused_pid() == application.pid, 5.0,
                   f"process {application.pid} has the keyboard")
        return self.accessibility.focused_text(application.pid)

    def settled_picture(self, area=None, limit=3.0):
        """A picture of the screen, or of a part of it, once nothing moves on it any more."""
        last = self.camera.take(area)

        def settled():
            nonlocal last
            before, last = last, self.camera.take(area)
            return before == last

        try:
            wait.until(settled, limit, "nothing moves on the screen")
        except wait.Timeout:
            pass  # A picture of something that moves is better than none.
        return last

    def highlight_seen(self, told, limit=3.0):
        """The rectangle that a picture shows highlighted, where an application tells that a
        selection is. The bar above it is kept out of the picture."""
        around = Rect(told.x - 30, told.y - 4, told.width + 60, told.height + 20)

        def highlight():
            picture = self.camera.take(around)
            colour = picture.colour(told.x + 1, told.bottom - 2)
            if colour == picture.colour(told.x - 10, told.bottom - 2):
                return None  # Not drawn yet.
            return picture.bounds_of(colour)

        return wait.until(highlight, limit, f"something is highlighted at {told}")

    def put_caret(self, text, offset):
        """Moves the caret by keys alone; nothing is selected afterwards."""
        self.hands.press("Control+Home")
        self.hands.repeat("Right", offset)
        wait.until(lambda: text.caret() == offset and text.selection() is None, 5.0,
                   f"the caret is at {offset}")

    def select(self, text, words):
        """Selects words by keys alone, as a user would; gives their range."""
        start = text.offset_of(words)
        self.put_caret(text, start)
        self.hands.repeat("Shift+Right", len(words))
        wanted = (start, start + len(words))
        wait.until(lambda: text.selection() == wanted, 5.0, f"{words!r} is selected")
        return wanted

    def select_by_dragging(self, text, words):
        """Selects words with the pointer; gives their range."""
        start = text.offset_of(words)
        area = text.extents(start, start + len(words))
        middle = area.y + area.height / 2
        self.hands.drag((area.x + 1, middle), (area.right - 1, middle))
        wanted = (start, start + len(words))
        wait.until(lambda: text.selection() == wanted, 5.0, f"{words!r} is selected")
        return wanted

    def deselect(self, text):
        """Removes a selection without changing the text."""
        self.hands.press("Right")
        wait.until(lambda: text.selection() is None, 5.0, "nothing is selected")
