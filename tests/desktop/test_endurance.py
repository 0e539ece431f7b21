"""Long use, stopped applications, and a violent end."""

import signal

import bar
import wait
from case import NoteCase, SCREEN

WORDS = ["one", "two", "three", "four", "five", "six", "seven", "eight", "nine", "ten"]
SELECTIONS = 50
ANSWER = 0.3  # Seconds within which the menu answers, whatever an application does.


class EnduranceTest(NoteCase):

    body = ", ".join(WORDS) + "."

    def test_fifty_selections_bring_fifty_bars(self):
        program = self.start_at_once()
        for turn in range(SELECTIONS):
            words = self.desktop.select(self.text, WORDS[turn % len(WORDS)])
            program.wait_for_bar_at(bar.expected_frame(
                self.text.extents(*words), SCREEN, first=turn == 0))
        self.assertEqual(program.output(), [])

    def test_killed_in_the_middle_of_a_shortcut_it_leaves_no_key_down(self):
        # The shortcut is posted 0.1 s after the click: the kills come around that moment.
        for after in (0.08, 0.095, 0.1, 0.102, 0.105, 0.11):
            program = self.start_at_once()
            self.desktop.select(self.text, "seven")
            program.wait_for_bar()
            program.click("Strikethrough")
            try:
                wait.throughout(lambda: program.process.poll() is None, after, "it runs")
            finally:
                program.kill()
            self.assertEqual(self.hands.down(), [], f"killed after {after} s")
            self.assertEqual(self.hands.modifiers(), 0, f"killed after {after} s")
            self.desktop.put_caret(self.text, 0)

    def test_a_stopped_application_delays_neither_the_menu_nor_anybody_else(self):
        program = self.start_at_once()
        item = program.wait_for_icon(self.tray)
        self.desktop.select(self.text, "three")
        frame = program.wait_for_bar()
        self.note.process.send_signal(signal.SIGSTOP)
        try:
            # Something to read again, so that the program does ask the stopped application.
            self.hands.press("Shift+Right")
            slowest = 0.0

            def answers():
                nonlocal slowest
                slowest = max(slowest, item.time_to_answer())
                return slowest < ANSWER and program.bar_frame() == frame

            wait.throughout(answers, 4.0, "the menu answers quickly and the bar stays")
        finally:
            self.note.process.send_signal(signal.SIGCONT)
        wait.until(lambda: self.text.selected_text() == "three,", 5.0, "the application is back")
        program.wait_for_bar_at(bar.expected_frame(
            self.text.extents(*self.text.selection()), SCREEN, first=False), 8.0)
