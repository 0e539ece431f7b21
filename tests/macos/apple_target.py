#!/usr/bin/env python3
"""Compiles the macOS layer for Apple's target where no Apple SDK is.

  apple_target.py compile SETTINGS            every source of the layer, with ARC and warnings as errors
  apple_target.py symbols SETTINGS [--write]  what the objects import, against the reviewed list
  apple_target.py mistakes SETTINGS           each seeded mistake must fail, the file without them must not

SETTINGS is the JSON file that CMake writes: source and build folder, compiler, include folders.
"""

import concurrent.futures
import json
import pathlib
import re
import subprocess
import sys

# The headers of this system's C and C++ libraries and of its Qt read as on Linux; only the language, the
# calling convention and the object format are Apple's.
TARGET = ["-fobjc-arc", "-fblocks", "-std=c++20", "-O1",
          "-U__APPLE__", "-U__MACH__", "-U__nonnull", "-U__nullable", "-D__linux__", "-D__ELF__",
          "-D_GNU_SOURCE", "-DQT_NO_VERSION_TAGGING", "-ferror-limit=5", "-nostdinc++", "-nostdlibinc",
          # Apple's targets have no numbers of 128 bits, which these headers expect of every clang.
          "-D_BITS_FLOATN_H", "-D__HAVE_FLOAT128=0", "-D__HAVE_DISTINCT_FLOAT128=0",
          "-D__HAVE_FLOAT64X=1", "-D__HAVE_FLOAT64X_LONG_DOUBLE=1", "-include", "bits/floatn-common.h"]
# To this system's headers every processor is their own; the one builtin of it that they call does nothing.
OTHER_PROCESSOR = ["-D__x86_64__", "-D__builtin_ia32_pause()=(void)0"]
WARNINGS = ["-Werror", "-Wall", "-Wextra", "-Wpedantic", "-Wshadow", "-Wconversion", "-Wold-style-cast",
            "-Wnon-virtual-dtor", "-Woverloaded-virtual", "-Wnullable-to-nonnull-conversion", "-Wnonnull",
            "-Wunguarded-availability", "-Wobjc-method-access", "-Wundeclared-selector", "-Wstrict-selector-match",
            # The declarations use names and extensions as the SDK does.
            "-Wno-nullability-extension", "-Wno-reserved-identifier", "-Wno-c99-extensions"]
DEFINITIONS = ["-DQT_NO_CAST_FROM_ASCII", "-DQT_NO_CAST_TO_ASCII", "-DQT_NO_KEYWORDS",
               '-DQUILLET_VERSION="0"', '-DQUILLET_BUILD_NUMBER="0"']
# C++ and its runtime, which every program brings along.
OWN_RUNTIME = re.compile(r"__Z|___cxa_|___dynamic_cast$|___gxx|__Unwind|___libc_single_threaded|___stack_chk|_pthread_|___once_proxy$|"
                         r"_(mem\w+|strlen|strcmp|abort|free|malloc)$|___assert_fail$|___errno_location$")


class Toolchain:
    def __init__(self, settings):
        self.settings = json.loads(pathlib.Path(settings).read_text(encoding="utf-8"))
        self.root = pathlib.Path(self.settings["source"])
        self.layer = self.root / "src/platform/macos"
        oldest = re.search(r"CMAKE_OSX_DEPLOYMENT_TARGET (\S+)", (self.root / "CMakeLists.txt").read_text())[1]
        self.target = f"apple-macos{oldest}"
        self.objects = pathlib.Path(self.settings["build"]) / "objects"

    def sources(self):
        return sorted(p for p in self.layer.rglob("*") if p.suffix in {".cpp", ".mm"})

    def headers(self):
        return sorted(self.layer.rglob("*.h*"))

    def command(self, source, *more, arm):
        language = "objective-c++" if source.suffix == ".mm" else "c++"
        own = ["-I" + str(self.root / "src"), "-I" + str(self.root / "tests/macos/declarations")]
        system = [part for folder in self.settings["includes"] for part in ("-isystem", folder)]
        processor = ["-target", "arm64-" + self.target, *OTHER_PROCESSOR] if arm else ["-target", "x86_64-" + self.target]
        return [self.settings["compiler"], *processor, *TARGET, *WARNINGS, *DEFINITIONS, *own, *system,
                "-x", language, *more, str(source)]

    def run(self, source, *more, arm=False):
        return subprocess.run(self.command(source, *more, arm=arm), capture_output=True, text=True, check=False)

    def object_of(self, source):
        return self.objects / (str(source.relative_to(self.layer)).replace("/", "_") + ".o")


def in_parallel(function, items):
    with concurrent.futures.ThreadPoolExecutor(2) as pool:
        return list(pool.map(function, items))


def compile_layer(tools):
    tools.objects.mkdir(parents=True, exist_ok=True)
    for stale in tools.objects.glob("*.o"):
        stale.unlink()
    failures = 0
    built = in_parallel(lambda s: (s, "x86_64", tools.run(s, "-c", "-o", str(tools.object_of(s)))), tools.sources())
    # What differs between the processors is Objective-C's: its BOOL, and how structures are returned.
    built += in_parallel(lambda s: (s, "arm64", tools.run(s, "-fsyntax-only", arm=True)),
                         [s for s in tools.sources() if s.suffix == ".mm"])
    for source, processor, done in built:
        if done.returncode != 0:
            failures += 1
            print(f"{source.relative_to(tools.root)} does not compile for Apple's {processor}:\n{done.stderr}")
    listed = (tools.layer / "CMakeLists.txt").read_text(encoding="utf-8")
    for path in tools.sources() + tools.headers():
        if not re.search(rf"(?<![\w/]){re.escape(str(path.relative_to(tools.layer)))}(?!\w)", listed):
            failures += 1
            print(f"{path.relative_to(tools.root)} is in no target of src/platform/macos/CMakeLists.txt")
    print(f"{len(tools.sources())} sources, {failures} failures")
    return failures or not tools.sources()


def imported(tools):
    """The undefined symbols of all objects together, each as llvm-nm describes it."""
    objects = [tools.object_of(source) for source in tools.sources()]
    listing = subprocess.run([tools.settings["nm"], "-m", "--undefined-only", *map(str, objects)],
                             capture_output=True, text=True, check=True).stdout
    found = {}
    for line in listing.splitlines():
        match = re.match(r"\s*\(undefined\) (weak external|external) (\S+)$", line)
        if match and not OWN_RUNTIME.match(match[2]):
            kind = "weak" if match[1].startswith("weak") else "strong"
            found.setdefault(match[2], set()).add(kind)
    return {name: "strong" if "strong" in kinds else "weak" for name, kinds in found.items()}


def compare_symbols(tools, write):
    reviewed_file = tools.root / "tests/macos/imported_symbols.txt"
    lines = reviewed_file.read_text(encoding="utf-8").splitlines()
    reviewed = {}
    for line in lines:
        if line and not line.startswith("#"):
            name, kind, framework = line.split()
            reviewed[name] = (kind, framework)
    found = imported(tools)
    if write:
        comments = [line for line in lines if line.startswith("#")]
        table = [f"{name:<52} {kind:<7} {reviewed.get(name, ('', 'UNREVIEWED'))[1]}"
                 for name, kind in sorted(found.items())]
        reviewed_file.write_text("\n".join([*comments, "", *table, ""]), encoding="utf-8")
        return 0
    wrong = [f"{name}: imported ({kind}), but not on the reviewed list"
             for name, kind in sorted(found.items()) if name not in reviewed]
    wrong += [f"{name}: on the reviewed list, but no longer imported" for name in sorted(set(reviewed) - set(found))]
    wrong += [f"{name}: reviewed as {reviewed[name][0]}, imported {kind}"
              for name, kind in sorted(found.items()) if name in reviewed and reviewed[name][0] != kind]
    linked = set(re.findall(r"-framework (\w+)", (tools.layer / "CMakeLists.txt").read_text(encoding="utf-8")))
    wrong += [f"{framework}: needed by the reviewed list, but not linked"
              for framework in sorted({f for _, f in reviewed.values()} - linked - {"runtime", "system"})]
    print("\n".join(wrong) if wrong else f"{len(found)} imported symbols, as reviewed")
    return bool(wrong)


def seeded_mistakes(tools):
    failures = 0
    files = sorted((tools.root / "tests/macos/mistakes").glob("*"))
    for path in files:
        text = path.read_text(encoding="utf-8")
        mistakes = re.findall(r"^#(?:el)?if MISTAKE == (\d+) // (.+?) => (.+)$", text, re.MULTILINE)
        right = tools.run(path, "-fsyntax-only", "-DMISTAKE=0")
        if right.returncode != 0 or not mistakes:
            failures += 1
            print(f"{path.name}: must compile when no mistake is chosen:\n{right.stderr}")
        for (number, what, expected), done in in_parallel(
                lambda m: (m, tools.run(path, "-fsyntax-only", f"-DMISTAKE={m[0]}")), mistakes):
            if done.returncode == 0 or expected not in done.stderr:
                failures += 1
                print(f"{path.name}: not caught as \"{expected}\": {what}\n{done.stderr}")
        print(f"{path.name}: {len(mistakes)} mistakes tried")
    return failures or not files


def main():
    command, settings, *options = sys.argv[1:]
    tools = Toolchain(settings)
    if command == "compile":
        return compile_layer(tools)
    if command == "symbols":
        return compare_symbols(tools, "--write" in options)
    if command == "mistakes":
        return seeded_mistakes(tools)
    print(__doc__)
    return 2


sys.exit(1 if main() else 0)
