"""Starting processes that never outlive the test, and ending them by their own id."""

import ctypes
import os
import signal
import subprocess

import wait

_PR_SET_PDEATHSIG = 1
_libc = ctypes.CDLL(None)


def _end_with_parent():
    _libc.prctl(_PR_SET_PDEATHSIG, signal.SIGTERM)


def start(command, environment, **options):
    """A child that gets SIGTERM when this process goes, however it goes."""
    return subprocess.Popen(command, env=environment, stdin=subprocess.DEVNULL,
                            preexec_fn=_end_with_parent, **options)


def end(process, limit=3.0):
    """Asks a child to end, and makes it end when it does not; a stopped one is continued first."""
    if process.poll() is None:
        process.send_signal(signal.SIGCONT)
        process.terminate()
        try:
            process.wait(limit)
        except subprocess.TimeoutExpired:
            process.kill()
            process.wait(limit)


def with_environment(name, value):
    """The processes of this user whose environment says `name`=`value`: those of one session,
    also the ones that D-Bus started for it."""
    entry = f"{name}={value}".encode()
    found = []
    for folder in os.listdir("/proc"):
        if not folder.isdigit() or int(folder) == os.getpid():
            continue
        try:
            with open(f"/proc/{folder}/environ", "rb") as environ:
                if entry in environ.read().split(b"\0"):
                    found.append(int(folder))
        except OSError:
            continue  # Gone meanwhile, or another user's.
    return found


def command_line(pid):
    """A process's program and arguments; empty when it is gone."""
    try:
        with open(f"/proc/{pid}/cmdline", "rb") as line:
            return line.read().replace(b"\0", b" ").decode(errors="replace")
    except OSError:
        return ""


def executable(pid):
    """The file that a process runs; empty when it is gone."""
    try:
        return os.readlink(f"/proc/{pid}/exe")
    except OSError:
        return ""


def end_all_with_environment(name, value, limit=3.0):
    """Ends what is left of a session."""
    for number in (signal.SIGCONT, signal.SIGTERM):
        for pid in with_environment(name, value):
            _send(pid, number)
    try:
        wait.until(lambda: not with_environment(name, value), limit, "processes of the session end")
    except wait.Timeout:
        for pid in with_environment(name, value):
            _send(pid, signal.SIGKILL)


def _send(pid, number):
    try:
        os.kill(pid, number)
    except OSError:
        pass  # It ended between the look and the signal.
