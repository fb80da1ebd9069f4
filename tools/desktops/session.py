"""What every desktop needs: processes with a common log, waiting, pictures, and Quillon itself."""

import os
import plistlib
import shlex
import subprocess
import sys
import time

PATIENCE = 60  # seconds; the bound only ends a wait for what never comes, however busy the machine is
SCREEN = (1366, 768)


def eventually(question, seconds=PATIENCE):
    """The first answer that is true, or the last one."""
    deadline = time.monotonic() + seconds
    while True:
        answer = question()
        if answer or time.monotonic() > deadline:
            return answer
        time.sleep(0.1)


def start(command, **environment):
    return subprocess.Popen([str(word) for word in command], env=os.environ | environment, stdin=subprocess.DEVNULL,
                            stdout=sys.stderr, stderr=sys.stderr)


def ask(*command):
    """What a command prints; empty when it fails."""
    done = subprocess.run([str(word) for word in command], capture_output=True, text=True)
    return done.stdout.strip() if done.returncode == 0 else ""


def stop(process):
    process.terminate()
    try:
        process.wait(10)
    except subprocess.TimeoutExpired:
        process.kill()
        process.wait()


def changed_box(before, after, outside=None):
    """What differs between two pictures, as x, y, width and height; None when nothing does.
    @param outside a part of the screen that does not count"""
    blank = []
    if outside:
        x, y, width, height = outside
        blank = ["-fill", "black", "-draw", f"rectangle {x},{y} {x + width - 1},{y + height - 1}"]
    counted = ask("convert", before, after, "-compose", "difference", "-composite", "-colorspace", "Gray", "-threshold",
                  "4%", *blank, "-format", "%@ %[fx:maxima]", "info:").split()
    if len(counted) < 2 or counted[1] == "0":
        return None
    size, x, y = counted[0].split("+")
    width, height = size.split("x")
    return tuple(map(int, (x, y, width, height)))


def brightness(picture, box):
    """Of a part of a picture, from 0 to 1."""
    x, y, width, height = box
    return float(ask("convert", picture, "-crop", f"{width}x{height}+{x}+{y}", "-colorspace", "Gray", "-format",
                     "%[fx:mean]", "info:") or 0)


class Quillon:
    """The installed program with settings, a tmutil and a backup disk of its own below the home folder."""

    def __init__(self, programs, home):
        self.programs = programs
        self.home = home
        self.process = None
        self.environment = {}

    def prepare(self):
        folders = {f"XDG_{kind.upper()}_HOME": self.home / f".{kind}" for kind in ("config", "state", "cache", "data")}
        for folder in [*folders.values(), self.home / "Backups", self.home / "Documents"]:
            folder.mkdir(exist_ok=True)
        tmutil = self.home / "tmutil"  # Quillon gives its tmutil no environment but one variable
        exports = "".join(f"export {name}={shlex.quote(str(value))}\n" for name, value in folders.items())
        tmutil.write_text(f"#!/bin/sh\n{exports}export PATH=/usr/bin:/bin\n"
                          f"exec {shlex.quote(str(self.programs / 'libexec/quillon/tmutil'))} \"$@\"\n")
        tmutil.chmod(0o755)
        (self.home / "Documents" / "note.txt").write_text("nothing was lost\n")
        for words in (["setdestination", self.home / "Backups"], ["addsource", self.home / "Documents"]):
            subprocess.run([tmutil, *words], check=True, stdout=sys.stderr, stderr=sys.stderr)
        (self.home / ".config" / "com.Orvane.Quillon.plist").write_bytes(plistlib.dumps({
            "firstLaunch": False,  # or it would start at log-in
            "userSettingsCalendarIntervals": [{"day": 0, "time": 12 * 3600}]}))
        self.environment = {name: str(value) for name, value in folders.items()} | {
            "QUILLON_TMUTIL": str(tmutil), "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}

    def run(self):
        """Waits until it answers: of two starts at once the second might be the one that stays."""
        self.process = start([self.programs / "bin" / "quillon"], **self.environment)
        rules = [self.programs / "bin" / "quillonctl", "rules"]
        eventually(lambda: start(rules, **self.environment).wait() == 0)

    def run_again(self, *options):
        """A second start; its exit status."""
        return start([self.programs / "bin" / "quillon", *options], **self.environment).wait()

    def run_disks(self):
        """The window of disks, as something that covers others."""
        return start([self.programs / "bin" / "quillon-disks"], **self.environment)

    def end(self):
        stop(self.process)


def play_dark_portal():
    """The settings portal of a desktop whose user has asked for dark colours."""
    name, path, interface = "org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop", \
        "org.freedesktop.portal.Settings"
    start(["/usr/bin/python3", "-m", "dbusmock", "--session", name, path, interface])
    eventually(lambda: ask("gdbus", "call", "--session", "-d", name, "-o", path, "-m",
                           "org.freedesktop.DBus.Mock.AddMethod", interface, "ReadOne", "ss", "v",
                           "ret = dbus.UInt32(1)"))
    ask("gdbus", "call", "--session", "-d", name, "-o", path, "-m", "org.freedesktop.DBus.Mock.EmitSignal", interface,
        "SettingChanged", "ssv", "[<'org.freedesktop.appearance'>, <'color-scheme'>, <uint32 1>]")
