"""Waiting for something to become true, always with a limit."""

import time

PAUSE = 0.01


class Timeout(AssertionError):
    """What was waited for did not come in time."""


def until(condition, limit, what):
    """The first true answer of `condition`, asked again and again for `limit` seconds at most."""
    deadline = time.monotonic() + limit
    while True:
        answer = condition()
        if answer:
            return answer
        if time.monotonic() >= deadline:
            raise Timeout(f"{what}: not within {limit} s")
        time.sleep(PAUSE)


def throughout(condition, seconds, what):
    """Fails as soon as `condition` stops being true; looks at it for `seconds`."""
    deadline = time.monotonic() + seconds
    while time.monotonic() < deadline:
        if not condition():
            raise AssertionError(f"{what}: no longer true")
        time.sleep(PAUSE)
