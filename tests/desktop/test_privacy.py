"""What must never bring the bar: passwords, and applications that the user has not allowed."""

import wait
from case import DesktopCase
from entries import WORDS, Entries

LONG_ENOUGH = 1.0  # Four polls.


class PrivacyTest(DesktopCase):

    def open(self, field):
        entries = Entries(self.desktop, field)
        self.addCleanup(self.desktop.session.end, entries.process)
        return entries

    def select_all(self, text):
        self.hands.press("Control+a")
        wait.until(lambda: text.selection() == (0, len(WORDS)), 3.0, "all of it is selected")

    def test_a_selection_in_a_password_field_never_brings_the_bar(self):
        program = self.start_at_once()
        plain = self.open("plain")
        self.select_all(plain.text)
        program.wait_for_bar()
        hidden = self.open("password")
        self.select_all(hidden.text)
        program.wait_until_hidden()
        wait.throughout(lambda: program.bar_frame() is None, LONG_ENOUGH, "the bar is hidden")

    def test_nothing_of_what_is_selected_is_written_anywhere(self):
        program = self.start_at_once()
        plain = self.open("plain")
        self.select_all(plain.text)
        program.wait_for_bar()
        program.end()
        said = "\n".join(program.output() + program.complaints())
        self.assertNotIn(WORDS, said)
        for path in self.desktop.session.files_of_home():
            with open(path, "rb") as file:
                self.assertNotIn(WORDS.encode(), file.read(), path)

    def test_only_chosen_applications_bring_the_bar_when_the_user_says_so(self):
        note = self.open_note("A few words.")
        program = self.start_program(settings={
            "appearanceDelay": 0, "useAllApps": False, "allowedApps": ["org.gnome.Gnote"]})
        self.desktop.select(note.text, "few")
        program.wait_for_bar()
        plain = self.open("plain")
        self.select_all(plain.text)
        program.wait_until_hidden()
        wait.throughout(lambda: program.bar_frame() is None, LONG_ENOUGH, "the bar is hidden")
