"""Runs Quillon on a practice disk; see ./dev help. Ends everything it started, however it ends itself."""

import argparse
import fcntl
import os
import signal
import subprocess
import sys
import tempfile
import time
from pathlib import Path

import desktop as desktops
import processes
from disk import PracticeDisk
from failure import PracticeFailed
from first_backup import FirstBackup

BUILD = Path(__file__).resolve().parents[2] / "build"
LIMIT = 6 * 60  # seconds until the first backup has completed, and again until it has been proved


def arguments():
    parser = argparse.ArgumentParser(prog="./dev run", description="Starts Quillon on a practice disk.")
    parser.add_argument("--once", action="store_true", help="end after the first scheduled backup, proved by a restore")
    parser.add_argument("--shots", type=Path, metavar="DIR", help="folder for pictures of the screen")
    parser.add_argument("--megabytes", type=int, default=900, help="size of the large sample files (%(default)s)")
    parser.add_argument("--folder", type=Path, default=BUILD / "practice", help="where the practice disk lies")
    parser.add_argument("--programs", type=Path, default=BUILD / "release", help="where the programs lie")
    parser.add_argument("quillon", nargs="*", metavar="-- OPTION", help="options for quillon itself")
    chosen = parser.parse_args()
    if chosen.once and not chosen.shots:
        chosen.shots = chosen.folder / "pictures"
    return chosen


def main():
    chosen = arguments()
    chosen.folder = chosen.folder.absolute()
    chosen.folder.mkdir(parents=True, exist_ok=True)
    signal.signal(signal.SIGTERM, interrupt)
    signal.signal(signal.SIGHUP, interrupt)
    signal.signal(signal.SIGALRM, give_up)
    disk = PracticeDisk(chosen.folder, chosen.programs / "libexec" / "quillon" / "tmutil")
    processes.adopt_orphans()
    with open(chosen.folder / "lock", "w") as lock, tempfile.TemporaryDirectory(prefix="quillon-practice-") as runtime:
        try:
            fcntl.flock(lock, fcntl.LOCK_EX | fcntl.LOCK_NB)
        except BlockingIOError:
            return complain(f"another practice run is using {chosen.folder}")
        try:
            return run(chosen, disk, Path(runtime))
        except (PracticeFailed, OSError) as failure:
            return complain(failure)
        except KeyboardInterrupt:
            return 128 + signal.SIGINT
        finally:
            end(disk)


def run(chosen, disk, runtime):
    say("preparing the practice disk")
    disk.stop_backup()
    disk.create(chosen.megabytes)
    disk.configure_tmutil()
    desktop = desktops.find()
    if not desktop:
        with open(chosen.folder / "desktop.log", "w") as log:
            desktop = desktops.start_virtual(runtime, log)
    environment = os.environ | desktop.environment | disk.environment() | {"QUILLON_TMUTIL": str(disk.wrapper)}
    if chosen.shots and not desktop.pictures:
        say("no pictures: Wayland keeps programs from taking any")

    backup = FirstBackup(disk, chosen.programs / "bin" / "quillonctl", environment,
                         desktop.take_picture if desktop.pictures else None, chosen.shots)
    due = disk.write_settings(time.time())
    say(f"{desktop.name}; the first backup is due at {time.strftime('%H:%M', due)}; Ctrl-C ends the practice")
    quillon = subprocess.Popen(
        [chosen.programs / "bin" / "quillon", "--print-changes", *chosen.quillon],
        env=environment, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, start_new_session=True)
    try:
        if chosen.once:
            return prove_first(backup, quillon)
        return watch(backup, quillon, lambda: subprocess.Popen(
            [chosen.programs / "bin" / "quillon-browse", disk.documents],
            env=environment, stdin=subprocess.DEVNULL, start_new_session=True))
    finally:
        quillon.terminate()
        if backup.pictures:
            say(f"pictures: {', '.join(map(str, backup.pictures))}")


def prove_first(backup, quillon):
    signal.alarm(LIMIT)
    for line in processes.lines(quillon):
        print(line, end="", flush=True)
        if backup.follow(line):
            signal.alarm(LIMIT)
            backup.prove()
            return 0
    raise PracticeFailed(f"Quillon ended by itself, with status {quillon.wait()}, before the backup completed")


def watch(backup, quillon, browse):
    """Until Quillon is quit. Once there is a backup, a window to look into it comes up besides."""
    for line in processes.lines(quillon):
        print(line, end="", flush=True)
        try:
            if backup and backup.follow(line):
                backup = None
                browse()
        except PracticeFailed as failure:  # by what was tried out with it, maybe: a later one may complete
            say(failure)
    return quillon.wait()


def end(disk):
    """A backup still running is stopped first, so that its repository stays clean."""
    signal.alarm(0)
    for number in (signal.SIGINT, signal.SIGTERM, signal.SIGHUP):
        signal.signal(number, signal.SIG_IGN)
    disk.stop_backup()
    processes.end_all(seconds=15)


def interrupt(*_):
    raise KeyboardInterrupt


def give_up(*_):
    raise PracticeFailed(f"nothing came of it within {LIMIT // 60} minutes")


def say(text):
    print(f"practice: {text}", flush=True)


def complain(reason):
    print(f"practice: {reason}", file=sys.stderr)
    return 1


sys.exit(main())
