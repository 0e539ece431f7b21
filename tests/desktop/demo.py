"""Plays the main job on a private desktop: demo.py EXECUTABLE FOLDER

A word selected in a real notes application turns bold by a click in the bar. Each step is printed
and leaves a picture in FOLDER. The exit status is 0 only if the word really became bold.
"""

import os
import signal
import sys
import time

import wait
from desktop import Desktop
from gnote import Gnote
from program import Program
from tray import Tray

LIMIT = 40  # Seconds for all of it.
WORD = "bold"
TITLE = "Corvane Quillet"
BODY = """Select a word, and a small bar appears above it.
One click makes the word bold, without leaving the text.
The bar goes when the selection goes."""


class Story:
    """Tells the steps and keeps their pictures."""

    def __init__(self, folder):
        self._folder = folder
        self._start = time.monotonic()
        self._steps = 0
        os.makedirs(folder, exist_ok=True)
        for name in os.listdir(folder):
            if name.endswith(".png"):
                os.remove(os.path.join(folder, name))

    def step(self, desktop, name, words):
        self._steps += 1
        path = os.path.join(self._folder, f"{self._steps}-{name}.png")
        desktop.settled_picture().save(path)
        print(f"{time.monotonic() - self._start:5.1f} s  {words}  [{path}]", flush=True)


def play(executable, story):
    with Desktop(width=1280, height=800) as desktop:
        tray = Tray(desktop.session)
        note = Gnote(desktop, TITLE, BODY)
        story.step(desktop, "note", "A notes application shows a note.")

        program = Program(desktop, executable)
        try:
            program.wait_for_icon(tray)
            start, end = desktop.select(note.text, WORD)
            if note.text.is_bold(start, end):
                raise AssertionError("the word is bold before anything was done")
            story.step(desktop, "selection", f"“{WORD}” is selected with the keyboard.")

            frame = program.wait_for_bar()
            above = note.text.extents(start, end).y - frame.bottom
            story.step(desktop, "bar", f"The bar is there, {above} points above the word.")

            program.click("Bold")
            wait.until(lambda: note.text.is_bold(start, end), 5.0, "the word becomes bold")
            if note.text.selection() != (start, end) or program.bar_frame() is None:
                raise AssertionError("the selection or the bar did not stay")
            story.step(desktop, "bold", "Bold was clicked, and the note says: the word is bold.")

            desktop.deselect(note.text)
            program.wait_until_hidden()
            story.step(desktop, "done", "The selection is gone, and so is the bar.")
        except BaseException:
            for line in program.output() + program.complaints():
                print(f"         the program said: {line}", flush=True)
            raise


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    signal.signal(signal.SIGALRM, lambda *_: sys.exit(f"Failed: not done within {LIMIT} s"))
    signal.alarm(LIMIT)
    try:
        play(sys.argv[1], Story(sys.argv[2]))
    except (Exception, KeyboardInterrupt) as failure:
        sys.exit(f"Failed: {failure or type(failure).__name__}")
    print("The word became bold.")


if __name__ == "__main__":
    main()
