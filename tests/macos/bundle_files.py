#!/usr/bin/env python3
"""Writes the bundle's files as the build does, and reads them as a Mac does.

bundle_files.py CMAKE PACKAGING VERSION BUILD IDENTIFIER OLDEST_SYSTEM
"""

import os
import pathlib
import plistlib
import subprocess
import sys
import tempfile
import unittest

CMAKE, PACKAGING, VERSION, BUILD, IDENTIFIER, OLDEST = sys.argv[1:7]
NAME = "Corvane Quillet"


class BundleFiles(unittest.TestCase):
    def setUp(self):
        self.temporary = tempfile.TemporaryDirectory()
        self.folder = pathlib.Path(self.temporary.name)
        self.addCleanup(self.temporary.cleanup)

    def run_cmake(self, script, **environment):
        path = self.folder / "script.cmake"
        path.write_text(script, encoding="utf-8")
        return subprocess.run([CMAKE, "-P", path], env={**os.environ, **environment}, check=False,
                              capture_output=True, text=True)

    def information(self, **settings):
        values = {"PROJECT_VERSION": VERSION, "QUILLET_BUILD_NUMBER": BUILD, "QUILLET_IDENTIFIER": IDENTIFIER,
                  "QUILLET_BUNDLE_NAME": NAME, "CMAKE_OSX_DEPLOYMENT_TARGET": OLDEST, **settings}
        lines = [f"set({key} [==[{value}]==])" for key, value in values.items()]
        done = self.run_cmake("\n".join([*lines, f"include({PACKAGING}/Information.cmake)",
                                         f"quillet_information_file({self.folder}/Info.plist)"]))
        self.assertEqual(done.returncode, 0, done.stderr)
        return plistlib.loads((self.folder / "Info.plist").read_bytes())

    def test_information_says_who_the_program_is(self):
        information = self.information()
        expected = {"CFBundleIdentifier": "com.corvane.Quillet", "CFBundleName": NAME, "CFBundleExecutable": NAME,
                    "CFBundlePackageType": "APPL", "CFBundleShortVersionString": VERSION,
                    "CFBundleVersion": BUILD, "LSMinimumSystemVersion": OLDEST, "LSUIElement": True,
                    "NSPrincipalClass": "NSApplication", "NSHighResolutionCapable": True}
        self.assertEqual({key: information.get(key) for key in expected}, expected)
        for permission in ("NSAccessibilityUsageDescription", "NSScreenCaptureUsageDescription"):
            self.assertIn(NAME, information[permission])
        self.assertFalse([key for key in information if key.startswith("SU")])
        self.assertNotIn("@", (self.folder / "Info.plist").read_text(encoding="utf-8"))

    def test_feed_and_key_reach_the_updater_as_they_are(self):
        feed = "https://example.org/feed?a=1&b=<2>"
        information = self.information(QUILLET_APPCAST_URL=feed, QUILLET_UPDATE_KEY="a+b/c=")
        self.assertEqual((information["SUFeedURL"], information["SUPublicEDKey"]), (feed, "a+b/c="))

    def test_entitlements_leave_the_sandbox(self):
        entitlements = plistlib.loads(pathlib.Path(PACKAGING, "entitlements.plist").read_bytes())
        self.assertEqual(entitlements, {"com.apple.security.app-sandbox": False})

    def deploy(self, identity, failing=""):
        """The calls of the Mac's tools, in order, with the bundle's path left out."""
        record = self.folder / "calls"
        record.write_text("", encoding="utf-8")
        tool = ('#!/bin/sh\necho "$(basename "$0") $*" >> "$RECORD"\n'
                '[ "$(basename "$0")" != "$FAILING" ]\n')
        for name in ("macdeployqt", "codesign"):
            (self.folder / name).write_text(tool, encoding="utf-8")
            (self.folder / name).chmod(0o755)
        contents = self.folder / "installed" / f"{NAME}.app/Contents"
        for part in ("Frameworks/QtCore.framework/QtCore", "PlugIns/platforms/libqcocoa.dylib"):
            (contents / part).parent.mkdir(parents=True, exist_ok=True)
            (contents / part).write_text("", encoding="utf-8")
        done = self.run_cmake("\n".join([
            f'set(QUILLET_BUNDLE_NAME "{NAME}")', f'set(QUILLET_SIGNING_IDENTITY "{identity}")',
            f'set(QUILLET_MACDEPLOYQT "{self.folder}/macdeployqt")', f"set(QUILLET_IDENTIFIER {IDENTIFIER})",
            f"set(resources {PACKAGING})",
            f"configure_file({PACKAGING}/deploy.cmake.in {self.folder}/deploy.cmake @ONLY)",
            f"set(CMAKE_INSTALL_PREFIX {self.folder}/installed)", f"include({self.folder}/deploy.cmake)"]),
            PATH=f"{self.folder}:{os.environ['PATH']}", RECORD=str(record), FAILING=failing)
        bundle = str(contents.parent)
        return done, record.read_text(encoding="utf-8").replace(bundle, "BUNDLE").splitlines()

    def test_everything_inside_is_signed_before_the_bundle_and_then_verified(self):
        for identity, hardened in (("-", ""), ("Developer ID Application: A B", " --options runtime --timestamp")):
            done, calls = self.deploy(identity)
            self.assertEqual(done.returncode, 0, done.stderr)
            part = f"codesign --force --deep{hardened} --sign {identity} BUNDLE/Contents"
            self.assertEqual(calls, [
                "macdeployqt BUNDLE -always-overwrite",
                f"{part}/PlugIns/platforms/libqcocoa.dylib", f"{part}/Frameworks/QtCore.framework",
                f"codesign --force{hardened} --sign {identity} --identifier {IDENTIFIER} "
                f"--entitlements {PACKAGING}/entitlements.plist BUNDLE",
                "codesign --verify --deep --strict BUNDLE"])

    def test_a_tool_that_fails_ends_the_packaging(self):
        for tool in ("macdeployqt", "codesign"):
            done, calls = self.deploy("-", failing=tool)
            self.assertNotEqual(done.returncode, 0)
            self.assertTrue(calls[-1].startswith(tool))


unittest.main(argv=sys.argv[:1])
