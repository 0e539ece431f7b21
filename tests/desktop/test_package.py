"""The Debian package: what is in it, and whether the program in it works where it was unpacked."""

import glob
import os
import shutil
import tempfile
from xml.etree import ElementTree

import package
import wait
from case import DesktopCase
from package import output

PICTURES = os.path.join(os.path.dirname(os.path.abspath(__file__)), "../../docs/pictures")
IDENTIFIER = "com.corvane.Quillet"


class PackageTest(DesktopCase):

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.folder = tempfile.mkdtemp(prefix="quillet package ")
        cls.addClassCleanup(shutil.rmtree, cls.folder)
        cls.package = package.make(cls.folder)
        cls.root = os.path.join(cls.folder, "root")
        output("dpkg-deb", "-x", cls.package, cls.root)

    def installed(self, path):
        return os.path.join(self.root, "usr", path)

    def test_the_checkers_of_the_distribution_find_no_fault(self):
        self.assertNotRegex(output("lintian", "--allow-root", self.package), "(?m)^E:")
        output("desktop-file-validate", self.installed(f"share/applications/{IDENTIFIER}.desktop"))
        output("appstreamcli", "validate", "--no-net",
               self.installed(f"share/metainfo/{IDENTIFIER}.metainfo.xml"))
        for image in ElementTree.parse(
                self.installed(f"share/metainfo/{IDENTIFIER}.metainfo.xml")).iter("image"):
            name = os.path.basename(image.text)
            self.assertIn(f"{image.get('width')} x {image.get('height')},",
                          output("file", os.path.join(PICTURES, name)), name)
        page = output("man", "--warnings", "-l", self.installed("share/man/man1/corvane-quillet.1.gz"))
        for words in ("--settings", "--feedback", "--quit", "SIGHUP", f"{IDENTIFIER}.desktop"):
            self.assertIn(words, page)
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

    def test_the_unpacked_program_makes_a_word_bold(self):
        note = self.open_note("A word in a package.")
        words = self.desktop.select(note.text, "word")
        program = self.start_program(self.installed("bin/corvane-quillet"))
        program.wait_for_bar()
        program.click("Bold")
        wait.until(lambda: note.text.is_bold(*words), 3.0, "the word is bold")
