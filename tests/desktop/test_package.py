"""The Debian package: what is in it, and whether the program in it works where it was unpacked."""

import glob
import os
import shlex
import shutil
import subprocess
import tempfile
import unittest

import wait
from case import DesktopCase
from gnote import Gnote
from program import Program

BUILD = os.environ.get("QUILLET_BUILD", "build/release")
IDENTIFIER = "com.corvane.Quillet"


def output(*command):
    """What a command says; a failure says all of it."""
    result = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
    if result.returncode:
        raise AssertionError(f"{shlex.join(command)}: {result.returncode}\n{result.stdout}")
    return result.stdout


class PackageTest(DesktopCase):

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.folder = tempfile.mkdtemp(prefix="quillet package ")
        cls.addClassCleanup(shutil.rmtree, cls.folder)
        output("cpack", "-G", "DEB", "-B", cls.folder, "--config",
               os.path.join(BUILD, "CPackConfig.cmake"))
        cls.package, = glob.glob(os.path.join(cls.folder, "*.deb"))
        cls.root = os.path.join(cls.folder, "root")
        output("dpkg-deb", "-x", cls.package, cls.root)

    def installed(self, path):
        return os.path.join(self.root, "usr", path)

    def test_the_checkers_of_the_distribution_find_no_fault(self):
        self.assertNotRegex(output("lintian", "--allow-root", self.package), "(?m)^E:")
        output("desktop-file-validate", self.installed(f"share/applications/{IDENTIFIER}.desktop"))
        output("appstreamcli", "validate", "--no-net",
               self.installed(f"share/metainfo/{IDENTIFIER}.metainfo.xml"))
        page = output("man", "--warnings", "-l", self.installed("share/man/man1/corvane-quillet.1.gz"))
        self.assertIn("--settings", page)
        for picture in glob.glob(self.installed("share/icons/hicolor/*x*/apps/*.png")):
            size = picture.split("/hicolor/")[1].split("/")[0].replace("x", " x ")
            self.assertIn(f"{size},", output("file", picture))

    def test_it_depends_on_every_library_that_it_is_linked_with(self):
        told = output("dpkg-deb", "-f", self.package, "Depends")
        depends = {part.split()[0] for part in told.split(", ")}
        dynamic = output("objdump", "-p", self.installed("bin/corvane-quillet"))
        needed = [line.split()[1] for line in dynamic.splitlines() if "NEEDED" in line]
        self.assertGreater(len(needed), 5)
        for library in needed:
            owners = output("dpkg-query", "-S", f"*/{library}").splitlines()
            packages = {owner.split(":")[0] for owner in owners}
            self.assertTrue(packages & depends, f"{library} of {packages}")

    def exec_line(self, action=None):
        """The command of the desktop file, or of one of its actions."""
        entry = self.installed(f"share/applications/{IDENTIFIER}.desktop")
        with open(entry, encoding="utf-8") as lines:
            groups = lines.read().split("\n[")
        wanted = f"Desktop Action {action}]" if action else "Desktop Entry]"
        group, = (group for group in groups if group.lstrip("[").startswith(wanted))
        line, = (line for line in group.splitlines() if line.startswith("Exec="))
        program, *arguments = shlex.split(line.removeprefix("Exec="))
        return [self.installed(os.path.join("bin", program)), *arguments]

    def test_the_unpacked_program_makes_a_word_bold_and_obeys_its_desktop_actions(self):
        note = Gnote(self.desktop, "Packed", "A word in a package.")
        words = self.desktop.select(note.text, "word")
        command, = self.exec_line()
        program = Program(self.desktop, command)
        self.programs.append(program)
        self.addCleanup(program.end)
        program.wait_for_icon(self.tray)
        program.wait_for_bar()
        program.click("Bold")
        wait.until(lambda: note.text.is_bold(*words), 3.0, "the word is bold")

        self.assertEqual(self.desktop.session.start(self.exec_line("quit")).wait(10.0), 0)
        self.assertEqual(program.wait_for_end(), 0)

    def test_asking_a_program_that_does_not_run_to_quit_starts_none(self):
        self.assertEqual(self.desktop.session.start(self.exec_line("quit")).wait(10.0), 0)


if __name__ == "__main__":
    unittest.main()
