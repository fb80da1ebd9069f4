"""The package on a throw-away Debian: installed, used, upgraded while it works, removed and purged.

usage: lifecycle.py PACKAGE NEWER-PACKAGE ROOT, as root, with an X display; run by `./dev package --check`.
"""

import filecmp
import hashlib
import os
import plistlib
import random
import select
import shutil
import signal
import subprocess
import sys
import time
from pathlib import Path

PATIENCE = 120  # seconds
USER = "quill"
TMUTIL = "tmutil"
RUNNING, COMPLETED = "icon=2", "icon=3"  # what the menu-bar item shows


class Failed(Exception):
    """The package did not do what is expected of it; the text says what."""


def wait_until(condition, what):
    deadline = time.monotonic() + PATIENCE
    while not condition():
        if time.monotonic() > deadline:
            raise Failed(f"{what}: not within {PATIENCE} s")
        time.sleep(0.1)


class Machine:
    """The throw-away system, with one user who has a display, a home folder and a disk."""

    def __init__(self, root):
        self.root = root
        self._started = []
        self.home = root / "home" / USER
        self.disk = root / "media" / USER / "Backup Disk"
        self._as_root("useradd", "--create-home", USER)
        self.runtime = root / "run" / USER
        self.runtime.mkdir(mode=0o700)
        self.disk.mkdir(parents=True)
        # The X server is this machine's, reached by its socket's abstract name: what draws is all the package's own.
        shutil.copy(os.environ["XAUTHORITY"], self.home / ".Xauthority")
        for folder in (self.home, self.runtime, self.disk):
            self._as_root("chown", "--recursive", f"{USER}:{USER}", self.inside(folder))

    def apt_get(self, *arguments):
        self._as_root("apt-get", "--yes", "--quiet", "--no-install-recommends", *arguments)

    def bring(self, package):
        """Copies a package there; its path there."""
        shutil.copy(package, self.root / "root")
        return f"/root/{package.name}"

    def version(self):
        return self._as_root("dpkg-query", "--show", "--showformat=${Version}", "quillon")

    def run(self, *command):
        """Runs a program as the user; what it prints."""
        return self._checked(self._for_user(command))

    def start(self, *command):
        self._started.append(subprocess.Popen(self._for_user(command), stdout=subprocess.PIPE, text=True))
        return self._started[-1]

    def end_all(self):
        for process in self._started:
            process.kill()
            process.wait()

    def write(self, path, content):
        """A file of the user's, with its folders."""
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(content)
        self._as_root("chown", "--recursive", f"{USER}:{USER}", self.inside(self.home))

    def snapshot(self, *folders):
        """What lies there: for each path a file's digest, a link's target or nothing."""
        found = {}
        for path in (path for folder in folders for path in folder.rglob("*")):
            if path.is_symlink():
                found[path] = os.readlink(path)
            elif path.is_file():
                found[path] = hashlib.sha256(path.read_bytes()).hexdigest()
            else:
                found[path] = ""
        return found

    def inside(self, path):
        """How that file or folder is called on the machine itself."""
        return "/" + str(path.relative_to(self.root))

    def _for_user(self, command):
        return ["chroot", f"--userspec={USER}:{USER}", self.root, "env", "--ignore-environment", f"HOME=/home/{USER}",
                "PATH=/usr/bin:/bin", "LANG=C.UTF-8", "TZ=UTC", f"DISPLAY={os.environ['DISPLAY']}",
                f"XDG_RUNTIME_DIR={self.inside(self.runtime)}", *command]

    def _as_root(self, *command):
        return self._checked(["chroot", self.root, *command])

    @staticmethod
    def _checked(command):
        done = subprocess.run(command, stdin=subprocess.DEVNULL, capture_output=True, text=True)
        if done.returncode != 0:
            raise Failed(f"{' '.join(map(str, command))} ended with status {done.returncode}:\n"
                         f"{done.stdout}{done.stderr}")
        return done.stdout


def quit_in_order(process, name):
    process.send_signal(signal.SIGTERM)
    try:
        status = process.wait(PATIENCE)
    except subprocess.TimeoutExpired:
        raise Failed(f"{name} does not end") from None
    if status != 0:
        raise Failed(f"{name} ended with status {status}")


class Menubar:
    """A running quillon, and what it says of itself."""

    def __init__(self, machine):
        self._process = machine.start("quillon", "--menu-bar=bar", "--print-changes")
        self._said = ""
        wait_until(lambda: self._shows("icon="), "the first title")

    def wait_for(self, text):
        wait_until(lambda: self._shows(text), f"a title with {text}")

    def quit(self):
        quit_in_order(self._process, "quillon")

    def _shows(self, text):
        while select.select([self._process.stdout], [], [], 0)[0]:
            piece = os.read(self._process.stdout.fileno(), 1 << 16).decode()
            if not piece:
                raise Failed(f"quillon ended with status {self._process.wait()} after it said:\n{self._said}")
            self._said += piece
        return text in self._said


def install(machine, package):
    machine.apt_get("install", machine.bring(package))
    version = machine.run("quillon", "--version").split()[1]
    for answer in (machine.version().split("-")[0], machine.run("quillonctl", "--version").split()[1],
                   machine.run("quillon-disks", "--version").split()[1],
                   machine.run("quillon-browse", "--version").split()[1]):
        if answer != version:
            raise Failed(f"quillon {version} came with {answer}")


def back_up_and_restore(machine):
    documents = machine.home / "Documents"
    machine.write(documents / "Grüße, 50%.txt", b"nowhere else\n")
    machine.write(documents / "film", random.Random(1).randbytes(40 << 20))
    machine.run(TMUTIL, "setdestination", machine.inside(machine.disk))
    machine.run(TMUTIL, "addsource", machine.inside(documents))
    machine.run(TMUTIL, "startbackup", "--block")
    latest = machine.run(TMUTIL, "latestbackup").strip()
    restored = machine.home / "restored"
    machine.run(TMUTIL, "restore", latest + machine.inside(documents), machine.inside(restored))
    equal, *others = filecmp.cmpfiles(documents, restored, [path.name for path in documents.iterdir()], shallow=False)
    if len(equal) != 2 or any(others):
        raise Failed(f"the restored files are not those that were backed up: {others}")


def write_rule(machine, time_of_day):
    """Every day at so many seconds after midnight. The alert of the first launch has been answered: nobody is there."""
    settings = {"appSettingsDidShowAlertAtFirstLaunch": True,
                "userSettingsCalendarIntervals": [{"day": 0, "time": time_of_day}]}
    machine.write(machine.home / ".config" / "com.Orvane.Quillon.plist", plistlib.dumps(settings))


def tell_the_schedule(machine):
    write_rule(machine, 3 * 3600)
    coming = machine.run("quillonctl", "next", "--count", "3").split()
    if len(coming) != 3 or any("T03:00:00+00:00" not in date for date in coming):
        raise Failed(f"quillonctl tells another schedule: {coming}")
    if "Backup Disk" not in machine.run("quillonctl", "destinations"):
        raise Failed("quillonctl does not find the backup disk")


def open_window(machine, name):
    program = machine.start(name)

    def is_shown():
        if program.poll() is not None:
            raise Failed(f"{name} ended with status {program.returncode}")
        windows = subprocess.run(["xwininfo", "-root", "-tree"], capture_output=True, text=True)
        return f'"{name}"' in windows.stdout

    wait_until(is_shown, f"the window of {name}")
    quit_in_order(program, name)


def upgrade_under_way(machine, newer):
    """The running program, and a backup that it started, go on; the next start is the newer program's."""
    old = machine.version()
    latest = machine.run(TMUTIL, "latestbackup")
    machine.write(machine.home / "Documents" / "film", random.Random(2).randbytes(200 << 20))
    due = int(time.time() + 10) // 60 * 60 + 60
    write_rule(machine, due % 86400)
    menubar = Menubar(machine)
    menubar.wait_for(RUNNING)
    machine.apt_get("install", machine.bring(newer))
    if machine.version() == old:
        raise Failed(f"{newer.name} was not installed")
    menubar.wait_for(COMPLETED)
    if machine.run(TMUTIL, "latestbackup") == latest:
        raise Failed("the backup during the upgrade is missing")
    machine.run("quillon")  # finds the running one, and ends
    menubar.quit()
    Menubar(machine).quit()


def remove(machine, package):
    """What is the user's stays to the byte; what is the package's goes."""
    belongings = machine.snapshot(machine.home, machine.disk)
    for step in ("remove", "purge"):
        install(machine, package)
        listed = [machine.root / path[1:] for path in machine.run("dpkg", "--listfiles", "quillon").splitlines()]
        machine.apt_get(step, "quillon")
        left = [path for path in listed if os.path.lexists(path) and not path.is_dir()]
        for folder in ("etc", "opt", "usr", "var/lib"):
            left += [path for path in (machine.root / folder).rglob("*") if "quillon" in path.name.lower()]
        if left:
            raise Failed(f"{step} left behind: {', '.join(map(str, left))}")
        if machine.snapshot(machine.home, machine.disk) != belongings:
            raise Failed(f"{step} touched the user's files")


def main():
    package, newer, root = map(Path, sys.argv[1:])
    machine = Machine(root)
    steps = {
        "installs with nothing but what it depends on": lambda: install(machine, package),
        "backs up and restores": lambda: back_up_and_restore(machine),
        "tells the schedule": lambda: tell_the_schedule(machine),
        "shows the window of the disks": lambda: open_window(machine, "quillon-disks"),
        "shows the window of the backups": lambda: open_window(machine, "quillon-browse"),
        "is upgraded while it runs and backs up": lambda: upgrade_under_way(machine, newer),
        "is removed and purged without a trace, and the user's files stay": lambda: remove(machine, newer),
    }
    try:
        for what, step in steps.items():
            step()
            print(f"package: {what}: yes", flush=True)
    except Failed as failure:
        print(f"package: {what}: FAILED\n{failure}")
        return 1
    finally:
        machine.end_all()
    return 0


if __name__ == "__main__":
    sys.exit(main())
