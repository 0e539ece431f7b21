"""The keys that the program posts: they reach the text that they are meant for, and nothing else."""

import os
import signal

import wait
from case import NoteCase
from keys import Hands
from sheet import Sheet
from windows import Rect


class KeysTest(NoteCase):

    body = "Bold with Dvorak, never with Shift held down."

    def select_and_wait(self, words):
        program = self.start_at_once()
        chosen = self.desktop.select(self.text, words)
        program.wait_for_bar()
        return program, chosen

    def test_a_modifier_that_stays_down_prevents_the_shortcut(self):
        program, words = self.select_and_wait("Shift")
        log = self.key_log()
        refusals = []
        for held in ("Shift_L", "Control_R", "Alt_L", "Super_L"):
            refusals.append("Quillet: shortcut not posted — modifier keys are held")
            self.hands.hold(held)
            try:
                program.click("Bold")
                program.wait_until(lambda: program.output() == refusals, 5.0, f"{held} prevents it")
            finally:
                self.hands.release(held)
        self.assertEqual(log.chords(), [])
        self.assertFalse(self.text.is_bold(*words))

    def test_a_modifier_that_is_soon_let_go_only_delays_it(self):
        program, words = self.select_and_wait("never")
        log = self.key_log()
        self.hands.hold("Shift_L")
        try:
            program.click("Bold")
            wait.throughout(lambda: log.chords() == [], 0.25, "nothing is posted")
        finally:
            self.hands.release("Shift_L")
        log.wait_for(["Control+b"])
        wait.until(lambda: self.text.is_bold(*words), 3.0, "the word is bold")

    def test_letters_follow_the_layout(self):
        content = self.text.content()
        self.addCleanup(self.desktop.session.run, ["setxkbmap", "us"])
        program, words = self.select_and_wait("Dvorak")
        for bold, layout in ((True, ["us", "-variant", "dvorak"]), (False, ["fr"])):
            self.desktop.session.run(["setxkbmap", *layout])
            program.click("Bold")
            wait.until(lambda: self.text.is_bold(*words) == bold, 3.0, f"{layout} switches bold")
        self.assertEqual(self.text.content(), content)

    def test_what_an_earlier_program_left_down_is_released_at_the_start(self):
        earlier = Hands(self.desktop.session.display)
        earlier.hold("Control_L")
        earlier.hold("b")
        self.start_at_once()
        wait.until(lambda: self.hands.down() == [], 3.0, "no key is down")

    def test_no_key_leaves_while_another_application_has_the_keyboard(self):
        """The window manager is busy: it brings nothing to the front in time."""
        program, words = self.select_and_wait("with Dvorak")
        sheet = Sheet(self.desktop, (90, 90, 90), Rect(20, 500, 300, 200))
        self.addCleanup(sheet.close)
        wait.until(lambda: self.windows.active_pid() == os.getpid(), 3.0, "the sheet is in front")
        manager, = self.desktop.session.processes_of("openbox")
        log = self.key_log()
        os.kill(manager, signal.SIGSTOP)
        try:
            program.click("Bold")
            program.wait_for_line("Quillet: shortcut not posted — the application is not in front")
        finally:
            os.kill(manager, signal.SIGCONT)
        self.assertEqual(log.chords(), [])
        self.assertFalse(self.text.is_bold(*words))
