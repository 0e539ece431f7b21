#!/usr/bin/python3
"""Prints what the program costs, with a bare Qt Widgets tray program beside it in the same run.

run.py FOLDER [--selections N] [--rest SECONDS] [--starts N]

FOLDER is a build folder that was configured with QUILLET_BENCH. Figures, not verdicts: nothing
here fails because the machine is slow.
"""

import argparse
import json
import pathlib
import subprocess
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "tests" / "desktop"))

import figures  # noqa: E402
from desktop import Desktop  # noqa: E402
from gnote import Gnote  # noqa: E402
from program import store_settings  # noqa: E402

BODY = "The quick brown fox jumps over the lazy dog. " * 12


def arguments():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("folder", type=pathlib.Path)
    parser.add_argument("--selections", type=int, default=1000)
    parser.add_argument("--rest", type=float, default=60.0, metavar="SECONDS")
    parser.add_argument("--starts", type=int, default=15)
    parser.add_argument("--shows", type=int, default=40, help="selections whose bar is timed")
    return parser.parse_args()


def main():
    wanted = arguments()
    program = str((wanted.folder / "corvane-quillet").resolve())
    peer = str((wanted.folder / "bare-tray").resolve())

    with Desktop() as desktop:
        store_settings(desktop.session, json.dumps({"appearanceDelay": 0}))
        tray = figures.TimingTray(desktop.session)
        row("", "program", "bare tray program")
        starts = figures.starts(desktop, tray, [program, peer], wanted.starts)
        row("start to tray item registered, median, ms", *map(figures.middle, starts))
        row("the same, fastest", *(f"{min(times):.0f}" for times in starts))

        note = Gnote(desktop, "Figures", BODY)
        with (figures.Running(desktop, tray, program) as ours,
              figures.Running(desktop, tray, peer) as bare):
            rest(desktop, note, ours, bare, wanted)
            shows = figures.shows(desktop, note, ours.process.pid, wanted.shows)
            row("selected to bar mapped, median, ms (a poll comes every 250)",
                figures.middle(shows), "—")
            row("the same, slowest of 20 in 19", figures.high(shows), "—")
            figures.select_repeatedly(desktop, note, wanted.selections)
            row(f"memory after {wanted.selections} selections, resident, kB",
                ours.memory("Rss"), bare.memory("Rss"))
            row("the same, private", ours.private(), bare.private())

        measure(desktop, wanted.folder / "show-bar")
        measure(desktop, wanted.folder / "app-list")
    with Desktop(width=3840, height=2160, window_manager=False, accessibility=False) as desktop:
        measure(desktop, wanted.folder / "capture-screen")


def measure(desktop, benchmark):
    """Runs a benchmark in a desktop and prints what it says."""
    result = subprocess.run([str(benchmark)], text=True, timeout=120,
                            env=desktop.session.environment, capture_output=True)
    print(result.stdout, end="")
    if result.returncode != 0:
        sys.exit(f"{benchmark.name} ended with status {result.returncode}: {result.stderr}")


def rest(desktop, note, ours, bare, wanted):
    """The costs of a desktop on which nothing happens, with a text focused."""
    desktop.put_caret(note.text, 3)
    for running in (ours, bare):
        running.settle()
    row("memory at rest, resident, kB", ours.memory("Rss"), bare.memory("Rss"))
    row("the same, private", ours.private(), bare.private())
    row("the same, its share of what is shared included", ours.memory("Pss"), bare.memory("Pss"))
    cost = figures.at_rest(desktop, [ours, bare], wanted.rest)
    row(f"processor time of {wanted.rest:.0f} s at rest, ms",
        *(f"{1000 * processor:.1f}" for processor, _ in cost))
    row("D-Bus messages meanwhile, sent", *(str(messages) for _, messages in cost))


def row(what, *values):
    print(f"{what:<66}" + "".join(f"{value:>20}" for value in values), flush=True)


main()
