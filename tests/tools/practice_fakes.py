#!/usr/bin/env python3
"""Plays quillon, quillonctl and tmutil for tests of the practice run, by the name under which it is called. A file
`fault` in a folder above them says what goes wrong."""

import datetime
import json
import os
import plistlib
import shutil
import signal
import subprocess
import sys
import time
from pathlib import Path

PROGRAM = Path(sys.argv[0])
FAULT = next(folder / "fault" for folder in PROGRAM.parents if (folder / "fault").exists()).read_text()
CONFIG = Path(os.environ["XDG_CONFIG_HOME"])
SETTINGS = CONFIG / "com.Orvane.Quillon.plist"


def tmutil(command, *operands):
    sources = CONFIG / "sources"
    destination = CONFIG / "destination"
    if command == "setdestination":
        destination.write_text(operands[0])
    elif command == "addsource":
        sources.write_text(operands[0])
    elif command == "listsources":
        print(sources.read_text() + ("\n/home/someone" if FAULT == "home" else ""))
    elif command == "startbackup":
        source = sources.read_text()
        shutil.copytree(source, destination.read_text() + "/snapshot" + source, symlinks=True)
    elif command == "latestbackup":
        print(destination.read_text() + "/snapshot")
    elif command == "restore":
        shutil.copytree(*operands, symlinks=True)
        if FAULT == "differs":
            with open(operands[1] + "/Films/film 1.bin", "r+b") as film:
                film.write(b"!")
    elif command == "status":
        print("LastFailure = \"the disk is full\"")


def quillonctl(command, _json):
    print(json.dumps({"destinations": [{"id": "ONE"}], "status": {"failed": False}}[command]))


def quillon(*options):
    settings = plistlib.loads(SETTINGS.read_bytes())
    [rule] = settings["userSettingsCalendarIntervals"]
    now = time.localtime()
    wait = (rule["time"] - now.tm_hour * 3600 - now.tm_min * 60 - now.tm_sec) % 86400
    assert rule["day"] == 0 and rule["time"] % 60 == 0 and 50 < wait <= 120, (rule, wait)
    assert settings["firstLaunch"] is False and options == ("--print-changes", "--bar"), options

    change(1, "Next", "in 2m")
    subprocess.Popen(["sleep", "1000"], start_new_session=True)  # a worker that outlives its caller
    change(2, "0.0%", "Starting")
    change(2, "20.0%", "3s", "Copying")
    if FAULT == "dies":
        sys.exit(3)
    if FAULT == "failed":
        change(5, "Failed", "")
    if FAULT == "hangs":
        signal.pause()
    subprocess.run([os.environ["QUILLON_TMUTIL"], "startbackup"], check=True)
    record = {"diskIdentifier": "TWO" if FAULT == "other disk" else "ONE", "diskName": "Practice Disk",
              "date": datetime.datetime.utcnow(), "totalBytes": 5}
    settings |= {"appSettingsLastBackupDate": record["date"],
                 "appSettingsLatestBackupInfo": [plistlib.dumps(record, fmt=plistlib.FMT_BINARY)]}
    if FAULT != "unrecorded":
        SETTINGS.write_bytes(plistlib.dumps(settings))
    change(1 if FAULT == "idle at once" else 3, "Next", "in 23h")
    signal.pause()


def change(icon, title, text, phase=""):
    print(f'12:00:00  icon={icon} title="{title}" text="{text}" phase="{phase}"', flush=True)


{"tmutil": tmutil, "quillonctl": quillonctl, "quillon": quillon}[PROGRAM.name](*sys.argv[1:])
