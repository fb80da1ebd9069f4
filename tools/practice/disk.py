"""The practice disk: sample files, a destination, settings and a tmutil that sees only these."""

import os
import plistlib
import random
import shlex
import shutil
import subprocess
import sys
import time
from pathlib import Path

from failure import PracticeFailed

MEGABYTE = 1 << 20
FILMS = 6


class PracticeDisk:
    """Lies in one folder, which holds nothing of the user's. All of it but the films is made anew for every run."""

    def __init__(self, folder, tmutil):
        self.folder = folder
        self.documents = folder / "Documents"
        self.destination = folder / "Practice Disk"
        self.restored = folder / "restored"
        self.config = folder / "config"
        self.wrapper = folder / "tmutil"
        self._tmutil = tmutil

    def environment(self):
        """Where programs of a practice run find settings, state and cache instead of the user's own."""
        return {f"XDG_{kind.upper()}_HOME": str(self.folder / kind) for kind in ("config", "state", "cache", "data")}

    def create(self, film_megabytes):
        """Empties what an earlier run left and fills the disk. Films are kept, since a backup of them is what takes
        long enough to watch."""
        for old in ("Practice Disk", "restored", "config", "state", "cache", "data"):
            shutil.rmtree(self.folder / old, ignore_errors=True)
        for new in (self.documents, self.destination, *map(Path, self.environment().values())):
            new.mkdir(parents=True, exist_ok=True)
        self._write_documents()
        self._write_films(film_megabytes)
        self._write_wrapper()

    def tmutil(self, *arguments):
        """Runs the practice tmutil as Quillon does and returns what it prints."""
        done = subprocess.run([self.wrapper, *arguments], env={"command": arguments[0]}, capture_output=True,
                              text=True)
        if done.returncode != 0:
            raise PracticeFailed(f"tmutil {arguments[0]} ended with status {done.returncode}: {done.stderr.strip()}")
        return done.stdout.strip()

    def configure_tmutil(self):
        """The one destination and the one source of the practice."""
        self.tmutil("setdestination", str(self.destination))
        self.tmutil("addsource", str(self.documents))
        sources = self.tmutil("listsources").splitlines()
        if sources != [str(self.documents)]:
            raise PracticeFailed(f"the practice would back up more than its own files: {', '.join(sources)}")

    def stop_backup(self):
        """Ends a running backup in order; one that a killed practice run left behind counts too."""
        if self.wrapper.exists():
            try:
                subprocess.run([self.wrapper, "stopbackup"], env={"command": "stopbackup"}, capture_output=True,
                               timeout=30)
            except (subprocess.TimeoutExpired, OSError) as failure:
                print(f"practice: the backup was not stopped: {failure}", file=sys.stderr)

    def write_settings(self, now):
        """A schedule that has one rule, every day at the next but one full minute after now (seconds since 1970)."""
        due = time.localtime((int(now) // 60 + 2) * 60)
        settings = {
            "firstLaunch": False,  # or Quillon would register the build folder's program to start at log-in
            "appSettingsDidShowAlertAtFirstLaunch": True,
            "userSettingsCalendarIntervals": [{"day": 0, "time": due.tm_hour * 3600 + due.tm_min * 60}],
        }
        (self.config / "com.Orvane.Quillon.plist").write_bytes(plistlib.dumps(settings))
        return due

    def settings(self):
        """What the settings file holds now."""
        return plistlib.loads((self.config / "com.Orvane.Quillon.plist").read_bytes())

    def _write_documents(self):
        notes = self.documents / "Notes"
        notes.mkdir(exist_ok=True)
        for month in range(1, 13):
            (notes / f"2024-{month:02}.txt").write_text("".join(
                f"Day {day}: nothing was lost.\n" for day in range(1, 29)))
        (self.documents / "Grüße aus Åre – 写真 📷.txt").write_text("Ünïcode in name and content: Ωμέγα, 日本語, 🎞\n")
        (self.documents / "empty").write_bytes(b"")
        (self.documents / "a name with 50% \"quotes\" & 'blanks'").write_text("odd names are names too\n")
        link = self.documents / "latest note"
        if not link.is_symlink():
            link.symlink_to("Notes/2024-12.txt")

    def _write_films(self, megabytes):
        """Files that can't be compressed, the same on every machine."""
        films = self.documents / "Films"
        films.mkdir(exist_ok=True)
        for number in range(FILMS):
            film, size = films / f"film {number + 1}.bin", megabytes // FILMS
            if film.exists() and film.stat().st_size == size * MEGABYTE:
                continue
            if shutil.disk_usage(films).free < 4 * megabytes * MEGABYTE:
                raise PracticeFailed(f"the practice disk needs {4 * megabytes} MB free below {self.folder}")
            noise = random.Random(number)
            with film.open("wb") as file:
                for _ in range(size):
                    file.write(noise.randbytes(MEGABYTE))

    def _write_wrapper(self):
        """Quillon gives its tmutil no environment but one variable, so a script says where everything lies."""
        exports = "".join(f"export {name}={shlex.quote(value)}\n" for name, value in self.environment().items())
        self.wrapper.write_text(f"#!/bin/sh\n{exports}export PATH=/usr/local/bin:/usr/bin:/bin\n"
                                f"exec {shlex.quote(os.fspath(self._tmutil))} \"$@\"\n")
        self.wrapper.chmod(0o755)
