"""Makes sure that nothing which a practice run started outlives it, workers in sessions of their own included."""

import ctypes
import os
import select
import signal
import time
from pathlib import Path

PR_SET_CHILD_SUBREAPER = 36  # <linux/prctl.h>


def adopt_orphans():
    """From here on, descendants whose parent ends become children of this process instead of init's."""
    if ctypes.CDLL(None, use_errno=True).prctl(PR_SET_CHILD_SUBREAPER, 1, 0, 0, 0) != 0:
        raise OSError(ctypes.get_errno(), "prctl(PR_SET_CHILD_SUBREAPER)")


def descendants():
    """Process ids of all running descendants of this process; zombies do not count."""
    children = {}
    for stat in Path("/proc").glob("[0-9]*/stat"):
        try:
            state, parent = stat.read_text(errors="replace").rpartition(")")[2].split()[:2]
        except OSError:
            continue  # ended meanwhile
        if state not in "ZX":
            children.setdefault(int(parent), []).append(int(stat.parent.name))
    found, open_ends = [], [os.getpid()]
    while open_ends:
        of_one = children.get(open_ends.pop(), [])
        found += of_one
        open_ends += of_one
    return found


def end_all(seconds):
    """Asks every descendant to end, and kills what is left after so many seconds."""
    for number, limit in ((signal.SIGTERM, seconds), (signal.SIGKILL, 5)):
        deadline = time.monotonic() + limit
        _signal_all(number)
        while descendants() and time.monotonic() < deadline:
            time.sleep(0.05)
    _reap()


def lines(process):
    """Lines that the process prints until it ends; a child of it may keep the pipe open for longer than that."""
    ended = os.pidfd_open(process.pid)
    try:
        rest = b""
        while process.stdout in select.select([process.stdout, ended], [], [])[0]:
            chunk = os.read(process.stdout.fileno(), 1 << 16)
            if not chunk:
                return
            *whole, rest = (rest + chunk).split(b"\n")
            yield from (line.decode(errors="replace") + "\n" for line in whole)
    finally:
        os.close(ended)


def _reap():
    """Takes the exit statuses of all that ended, since not every container's init does so for orphans."""
    try:
        while os.waitpid(-1, os.WNOHANG)[0]:
            pass
    except ChildProcessError:
        pass


def _signal_all(number):
    for pid in descendants():
        try:
            os.kill(pid, number)
        except ProcessLookupError:
            pass
