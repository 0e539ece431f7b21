#!/usr/bin/env python3
"""Keeps the folders of src/ one-way and the operating system inside src/platform/.

check_architecture.py ROOT      reads ROOT/src and prints each breach as file:line: text
check_architecture.py --self-test
"""

import pathlib
import re
import sys
import tempfile

# A folder may include its own headers and those of the folders to its right.
MAY_INCLUDE = {
    "core": set(),
    "platform": {"core"},
    "ui": {"platform", "core"},
    "settings": {"ui", "platform", "core"},
    "monitor": {"settings", "platform", "core"},
    "bar": {"monitor", "ui", "platform", "core"},
    "slash": {"ui", "platform", "core"},
    "feedback": {"settings", "ui", "platform", "core"},
    "markdown": {"core"},
    "updates": {"ui", "platform", "core"},
    "app": {"bar", "slash", "feedback", "settings", "monitor", "markdown", "updates", "ui", "platform", "core"},
}
# The format catalogue is a leaf: the tables of keystroke automation are written in its terms.
EXCEPTIONS = {("monitor", "bar/TextFormat.h")}
# Bar knows keystroke automation only, neither the monitor nor the settings.
NARROW = {("bar", "monitor"): {"monitor/NotesAutomation.h"}}
# Models and services know neither views nor widgets.
WIDGET_FREE = {"core", "settings", "monitor", "feedback", "slash", "markdown", "updates"}
WIDGET_HEADERS = re.compile(
    r"<(QtWidgets/|QWidget|QLabel|QPushButton|QLayout|Q[HV]BoxLayout|QApplication|QDialog|QMenu)")
SYSTEM_CONDITION = re.compile(
    r"^\s*#\s*(el)?if.*(__APPLE__|__linux__|__unix__|_WIN32|Q_OS_|TARGET_OS)")
SYSTEM_HEADERS = re.compile(
    r"<(xcb/|X11/|xkbcommon/|QtDBus|QDBus|Cocoa/|AppKit/|Foundation/|ApplicationServices/|unistd\.h|sys/)")
INCLUDE = re.compile(r'^\s*#\s*include\s+(?:"([^"]+)"|(<[^>]+>))')


def breaches_of_file(source, path):
    relative = path.relative_to(source)
    folder = relative.parts[0]
    in_views = "views" in relative.parts
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        if folder != "platform" and SYSTEM_CONDITION.match(line):
            yield number, "asks for the operating system outside src/platform"
        included = INCLUDE.match(line)
        if not included:
            continue
        own, foreign = included.groups()
        if foreign:
            if folder != "platform" and SYSTEM_HEADERS.match(foreign):
                yield number, f"includes {foreign}, a header of the system"
            if folder in WIDGET_FREE and not in_views and WIDGET_HEADERS.match(foreign):
                yield number, f"includes {foreign}: models know no widgets"
            continue
        if (source / own).is_file():
            target = pathlib.PurePath(own).parts[0]
        else:
            yield number, f"includes {own}, which is not a path from src/"
            continue
        if (folder, own) in EXCEPTIONS or target == folder:
            if target == folder and "views" in pathlib.PurePath(own).parts and not in_views \
                    and not relative.name.endswith(("Controller.cpp", "Controller.h")):
                yield number, f"includes {own}: models know no views"
            continue
        if target not in MAY_INCLUDE.get(folder, set()):
            yield number, f"includes {own}: {folder} may not know {target}"
        elif (folder, target) in NARROW and own not in NARROW[folder, target]:
            yield number, f"includes {own}: of {target}, {folder} may know only keystroke automation"
        elif folder != "platform" and re.match(r"platform/(linux|macos)/", own):
            yield number, f"includes {own}: a system's own layer"


def breaches(root):
    source = root / "src"
    for path in sorted(source.rglob("*")):
        if path.suffix in {".h", ".cpp", ".mm"}:
            for number, text in breaches_of_file(source, path):
                yield f"{path.relative_to(root)}:{number}: {text}"


def self_test():
    """Each of these must be found, or the check is worth nothing."""
    wrong = {
        "core/A.h": '#include "platform/B.h"',
        "ui/A.h": '#include "bar/B.h"',
        "monitor/A.h": '#include "bar/B.h"',
        "bar/A.cpp": '#include "monitor/NotesMonitor.h"',
        "bar/C.cpp": "#if defined(__linux__)",
        "app/A.cpp": "#include <xcb/xcb.h>",
        "app/B.cpp": '#include "platform/linux/B.h"',
        "settings/A.cpp": "#include <QWidget>",
        "monitor/C.cpp": '#include "Sibling.h"',
        "slash/A.cpp": '#include "slash/views/B.h"',
    }
    right = {
        "bar/B.h": "", "bar/TextFormat.h": "", "platform/B.h": '#include "core/A.h"',
        "platform/linux/B.h": "#include <xcb/xcb.h>\n#ifdef __linux__",
        "monitor/B.h": '#include "bar/TextFormat.h"', "monitor/NotesMonitor.h": "",
        "monitor/NotesAutomation.h": "", "bar/D.h": '#include "monitor/NotesAutomation.h"',
        "slash/views/B.h": "#include <QWidget>", "slash/BController.cpp": '#include "slash/views/B.h"',
    }
    with tempfile.TemporaryDirectory() as folder:
        root = pathlib.Path(folder)
        for name, text in {**wrong, **right}.items():
            path = root / "src" / name
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text + "\n", encoding="utf-8")
        found = {line.split(":")[0].removeprefix("src/") for line in breaches(root)}
    missed, invented = set(wrong) - found, found - set(wrong)
    for name in sorted(missed):
        print(f"not found: {name}: {wrong[name]}")
    for name in sorted(invented):
        print(f"found where nothing is wrong: {name}")
    return 1 if missed or invented else 0


def main():
    if sys.argv[1:] == ["--self-test"]:
        return self_test()
    found = list(breaches(pathlib.Path(sys.argv[1])))
    print("\n".join(found))
    return 1 if found else 0


sys.exit(main())
