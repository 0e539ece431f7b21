"""The Debian package of the build under test."""

import glob
import os
import shlex
import subprocess

BUILD = os.environ.get("QUILLET_BUILD", "build/release")


def output(*command, limit=120):
    """What a command says; a failure says all of it."""
    result = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                            stdin=subprocess.DEVNULL, timeout=limit)
    if result.returncode:
        raise AssertionError(f"{shlex.join(command)}: {result.returncode}\n{result.stdout}")
    return result.stdout


def make(folder):
    """Packs the build into a folder; the path of the package."""
    output("cpack", "-G", "DEB", "-B", folder, "--config", os.path.join(BUILD, "CPackConfig.cmake"))
    package, = glob.glob(os.path.join(folder, "*.deb"))
    return package
