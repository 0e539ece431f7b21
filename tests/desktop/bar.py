"""The formatting bar as it must look: what stands where in its window."""

from windows import Rect

FIRST_WIDTH, WIDTH, HEIGHT = 590, 660, 44
GAP = 8  # Between the bar and the selection.
MARGIN = 8  # Between the bar and the edges of the screen.

_DIVIDER = None
_STRIP = [
    ("Bold", 30), ("Italic", 30), ("Underline", 30), ("Strikethrough", 30), (_DIVIDER, 9),
    ("Text Color", 32), (_DIVIDER, 9),
    ("Heading", 40), ("Monospaced", 30), ("Link", 30), (_DIVIDER, 9),
    ("Bullet List", 30), ("Dashed List", 30), ("Numbered List", 30), ("Checklist", 30),
    (_DIVIDER, 9),
    ("Decrease Indent", 30), ("Increase Indent", 30), (_DIVIDER, 9),
    ("Decrease Text Size", 30), ("Increase Text Size", 30), (_DIVIDER, 9),
    ("Remove Formatting", 30),
]
_STRIP_WIDTH, _PADDING, _SPACING, _BUTTON_HEIGHT = 640, 10, 2, 26

BUTTONS = [name for name, _ in _STRIP if name is not _DIVIDER]


def is_bar(frame, scale=1):
    """Whether a window of this size is the bar."""
    return (frame.height == HEIGHT * scale
            and frame.width in (FIRST_WIDTH * scale, WIDTH * scale))


def is_picker(frame, scale=1):
    """Whether a window of this size can be the heading picker: its 140 points of content and what
    is drawn around; tooltips are flatter."""
    return 140 * scale <= frame.width <= 190 * scale and frame.height >= 90 * scale


def button(name, window, scale=1):
    """The visible part of a button, in pixels of the screen. The strip is centred in the window
    and cut off evenly at both ends where it has no room."""
    left = (window.width / scale - _STRIP_WIDTH) / 2 + _PADDING
    for entry, width in _STRIP:
        if entry == name:
            break
        left += width + _SPACING
    else:
        raise ValueError(f"the bar has no button {name}")
    right = min(left + width, window.width / scale)
    left = max(left, 0)
    top = (HEIGHT - _BUTTON_HEIGHT) / 2
    return Rect(round(window.x + left * scale), round(window.y + top * scale),
                round((right - left) * scale), _BUTTON_HEIGHT * scale)


def expected_frame(selection, screen, first, scale=1):
    """Where the bar belongs for a selection on a screen without panels; all in pixels."""
    width, height = (FIRST_WIDTH if first else WIDTH) * scale, HEIGHT * scale
    gap, margin = GAP * scale, MARGIN * scale
    x = max(min(selection.x, screen.right - WIDTH * scale - margin), screen.x + margin)
    y = selection.y - gap - height
    if y < screen.y + margin:
        y = selection.bottom + gap
    return Rect(x, min(max(y, screen.y + margin), screen.bottom - height - margin), width, height)
