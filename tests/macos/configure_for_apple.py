#!/usr/bin/env python3
"""Configures the project as on a Mac, as far as that goes without one.

configure_for_apple.py SETTINGS

CMake is told that it builds for Darwin with this system's clang and libraries. What it decides there for
itself (which folders, sources, flags and frameworks) is then as on a Mac; nothing is built.
"""

import json
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile


def main():
    settings = json.loads(pathlib.Path(sys.argv[1]).read_text(encoding="utf-8"))
    root = pathlib.Path(settings["source"])
    libraries = pathlib.Path(settings["qt"]).parent.parent
    gl = libraries / "libGL.so"
    with tempfile.TemporaryDirectory() as scratch:
        build = pathlib.Path(scratch) / "build"
        tools = pathlib.Path(scratch) / "tools"
        tools.mkdir()
        brew = tools / "brew"
        brew.write_text('#!/bin/sh\n[ "$*" = "--prefix icu4c" ] && echo /kept/apart/icu4c\n', encoding="utf-8")
        (tools / "macdeployqt").write_text("#!/bin/sh\n", encoding="utf-8")
        for tool in tools.iterdir():
            tool.chmod(0o755)
        variables = {
            "CMAKE_BUILD_TYPE": "Release", "QUILLET_TESTS": "ON",
            "CMAKE_SYSTEM_NAME": "Darwin", "CMAKE_SYSTEM_PROCESSOR": "x86_64", "CMAKE_OSX_SYSROOT": "",
            "CMAKE_CXX_COMPILER": settings["compiler"], "CMAKE_OBJCXX_COMPILER": settings["compiler"],
            "CMAKE_CXX_COMPILER_WORKS": "1", "CMAKE_OBJCXX_COMPILER_WORKS": "1",
            "CMAKE_INSTALL_NAME_TOOL": shutil.which("true"),
            # This system's libraries stand for Homebrew's.
            "Qt6_DIR": settings["qt"], "CMAKE_PREFIX_PATH": f"{libraries}/cmake;{libraries}",
            "CMAKE_LIBRARY_ARCHITECTURE": libraries.name, "CMAKE_INCLUDE_PATH": "/usr/include",
            "CMAKE_LIBRARY_PATH": str(libraries), "CMAKE_FIND_LIBRARY_SUFFIXES": ".so;.a",
            "OPENGL_INCLUDE_DIR": "/usr/include", "OPENGL_gl_LIBRARY": gl, "OPENGL_glu_LIBRARY": gl,
            "WrapOpenGL_AGL": gl,
        }
        done = subprocess.run(
            ["cmake", "-S", str(root), "-B", str(build), "-G", "Ninja", "-Wno-dev",
             *(f"-D{name}={value}" for name, value in variables.items())],
            capture_output=True, text=True, check=False,
            env={**os.environ, "PATH": f"{tools}:{os.environ['PATH']}"})
        if done.returncode != 0:
            print(done.stderr)
            return 1
        plan = (build / "build.ninja").read_text(encoding="utf-8")
    layer = root / "src/platform/macos"
    wrong = [f"not built on a Mac: {source.relative_to(root)}"
             for source in layer.rglob("*") if source.suffix in {".cpp", ".mm"} and str(source) not in plan]
    wrong += [f"built on a Mac: {folder}" for folder in ("src/platform/linux/", "tests/desktop/", "tests/macos/")
              if f"{root}/{folder}" in plan]
    wrong += [f"the plan has no {step}" for step in
              ("Corvane Quillet.app/Contents/Resources/corvane-quillet.icns", "iconutil --convert icns",
               "codesign --force --sign - --identifier com.corvane.Quillet --entitlements")
              if step not in plan.replace("$ ", " ")]
    link = re.search(r"^build Corvane Quillet.app/Contents/MacOS/Corvane Quillet: .*$", plan.replace("$ ", " "),
                     re.MULTILINE)
    wrong += [f"a change of {part} does not lead to a new signature"
              for part in ("Info.plist", "entitlements.plist", "corvane-quillet.icns")
              if not link or not re.search(rf" \S*/{re.escape(part)}( |$)", link[0])]
    if "-fobjc-arc" not in plan:
        wrong.append("Objective-C++ is built without reference counting")
    print("\n".join(wrong) if wrong else "configured as on a Mac")
    return 1 if wrong else 0


sys.exit(main())
