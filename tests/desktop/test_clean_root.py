"""The package installed on a system that has nothing else, and the program used from there.

Takes minutes and the network: runs with QUILLET_CLEAN_ROOT=1, for root, where mmdebstrap is.
"""

import glob
import os
import shutil
import subprocess
import tempfile
import unittest

import bar
import package
import wait
from case import DesktopCase

WANTED = (os.environ.get("QUILLET_CLEAN_ROOT") == "1" and os.geteuid() == 0
          and shutil.which("mmdebstrap"))


def release():
    """The name of this machine's distribution release."""
    with open("/etc/os-release", encoding="utf-8") as lines:
        values = dict(line.strip().split("=", 1) for line in lines if "=" in line)
    return values["VERSION_CODENAME"]


def sources():
    """Where this machine's packages come from."""
    return [path for pattern in ("/etc/apt/sources.list", "/etc/apt/sources.list.d/*.list",
                                 "/etc/apt/sources.list.d/*.sources") for path in glob.glob(pattern)]


@unittest.skipUnless(WANTED, "asked for with QUILLET_CLEAN_ROOT=1, for root, with mmdebstrap")
class CleanRootTest(DesktopCase):

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.folder = tempfile.mkdtemp(prefix="quillet-root-")
        cls.addClassCleanup(shutil.rmtree, cls.folder)
        cls.root = os.path.join(cls.folder, "root")
        package.output(
            "mmdebstrap", "--variant=apt", f"--include={package.make(cls.folder)}",
            "--hook-dir=/usr/share/mmdebstrap/hooks/file-mirror-automount", release(), cls.root,
            *sources(), limit=900)

    def start_installed(self):
        """The program in its root, of which it leaves only the session's sockets and files."""
        script = ('mount --bind /tmp "$0/tmp" && mount -t proc proc "$0/proc" '
                  '&& exec chroot "$0" /usr/bin/corvane-quillet')
        process = self.desktop.session.start(["unshare", "--mount", "sh", "-c", script, self.root],
                                             stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        self.addCleanup(self.desktop.session.end, process)
        return process

    def bar_of(self, pid):
        return next((frame for _, frame in self.windows.floating_of(pid) if bar.is_bar(frame)), None)

    def test_the_installed_program_makes_a_word_bold_and_complains_of_nothing(self):
        note = self.open_note("A word in a clean root.")
        process = self.start_installed()
        icon = wait.until(lambda: self.tray.item_of(process.pid), 15.0, "the icon is there")
        words = self.desktop.select(note.text, "word")
        frame = wait.until(lambda: self.bar_of(process.pid), 5.0, "the bar is there")
        self.hands.click(*bar.button("Bold", frame).centre)
        wait.until(lambda: note.text.is_bold(*words), 3.0, "the word is bold")
        icon.choose("Quit Corvane Quillet")
        said = process.communicate(timeout=5.0)[0].decode().splitlines()
        self.assertEqual(process.returncode, 0)
        self.assertEqual([line for line in said if "start at login" not in line], [])
