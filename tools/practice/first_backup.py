"""Follows the first scheduled backup by the changes of the menu-bar item, and proves it when it is complete."""

import datetime
import json
import plistlib
import re
import subprocess
import time

from failure import PracticeFailed

IDLE, RUNNING, COMPLETED, FAILED, MISSED = 1, 2, 3, 5, 6
CHANGE = re.compile(r'icon=(-?\d+).* phase="(.*)"')


class FirstBackup:
    """`take_picture(file)` is None where the desktop allows no pictures, `folder` where none are wanted."""

    def __init__(self, disk, quillonctl, environment, take_picture, folder):
        self._disk = disk
        self._quillonctl = quillonctl
        self._environment = environment
        self._take_picture = take_picture if folder else None
        self._folder = folder
        self.pictures = []
        self._began = datetime.datetime.now(datetime.timezone.utc).replace(tzinfo=None, microsecond=0)
        self._seen = set()

    def follow(self, line):
        """Takes in one line of `quillon --print-changes`; true as soon as the run that was seen running ended well. Its
        icon may show as idle at once, since beside a title the next idle text replaces it."""
        change = CHANGE.search(line)
        if not change:
            return False
        icon, phase = int(change[1]), change[2]
        if icon in (FAILED, MISSED):
            raise PracticeFailed("the scheduled backup was missed" if icon == MISSED else
                                 f"the scheduled backup failed:\n{self._disk.tmutil('status')}")
        if icon == RUNNING:
            self._picture_once("running", RUNNING)
            if phase == "Copying":
                self._picture_once("running", phase)
        elif icon in (IDLE, COMPLETED) and RUNNING in self._seen:
            self._picture_once("completed", COMPLETED)
            return True
        elif icon == IDLE:
            self._picture_once("idle", IDLE)
        return False

    def prove(self):
        """Checks that the completed backup is recorded and that what it restores equals the sample files."""
        print(self._recorded(), flush=True)
        print(self._restored(), flush=True)

    def _picture_once(self, name, key):
        if key in self._seen:
            return
        self._seen.add(key)
        if self._take_picture:
            time.sleep(0.5)  # a change is printed when it is made, and drawn a moment later
            file = self._folder / f"{name}.png"
            self._take_picture(file)
            if file not in self.pictures:
                self.pictures.append(file)

    def _recorded(self):
        deadline = time.monotonic() + 5
        while not (records := self._new_records()):
            if time.monotonic() > deadline:
                raise PracticeFailed("the completed backup was not recorded in the settings")
            time.sleep(0.2)
        record = records[0]
        destinations = self._quillonctl_answer("destinations")
        if [record["diskIdentifier"]] != [destination["id"] for destination in destinations]:
            raise PracticeFailed(f"recorded for {record['diskIdentifier']}, but the destinations are {destinations}")
        status = self._quillonctl_answer("status")
        if status["failed"]:
            raise PracticeFailed(f"the status can't be read: {status}")
        return (f"recorded: {record['diskName']}, {record['date']:%H:%M:%S} UTC, "
                f"{record['totalBytes'] / 1e6:.0f} MB")

    def _new_records(self):
        settings = self._disk.settings()
        date = settings.get("appSettingsLastBackupDate")
        if date is None or date < self._began:
            return []
        return [plistlib.loads(data) for data in settings.get("appSettingsLatestBackupInfo", [])]

    def _quillonctl_answer(self, command):
        done = subprocess.run([self._quillonctl, command, "--json"], env=self._environment, capture_output=True,
                              text=True)
        if done.returncode != 0:
            raise PracticeFailed(f"quillonctl {command} ended with status {done.returncode}: {done.stderr.strip()}")
        return json.loads(done.stdout)

    def _restored(self):
        """Asks as the window of the backups does."""
        documents, restored = self._disk.documents, self._disk.restored / self._disk.documents.name
        latest = plistlib.loads(self._disk.tmutil("listbackups", "-X").encode())[-1]["Name"]
        self._disk.restored.mkdir()
        events = self._disk.tmutil("restore", "--json", "--keep-both", latest + str(documents),
                                   str(self._disk.restored)).splitlines()
        if json.loads(events[-1]) != {"event": "done", "restored": 1, "skipped": 0, "failed": 0}:
            raise PracticeFailed("it was not restored:\n" + "\n".join(events))
        compared = subprocess.run(["diff", "-r", "--no-dereference", documents, restored], capture_output=True,
                                  text=True, errors="replace")
        if compared.returncode != 0:
            raise PracticeFailed(f"what was restored differs:\n{compared.stdout}{compared.stderr}".rstrip())
        files = [path for path in restored.rglob("*") if path.is_file() and not path.is_symlink()]
        size = sum(file.stat().st_size for file in files)
        return f"restored and compared byte for byte: {len(files)} files, {size / 1e6:.0f} MB, all equal"
