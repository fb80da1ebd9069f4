"""Quillon as its users meet it: installed, started on a desktop with a tray, clicked through, quit, started again.

usage: test_application.py BUILD
"""

import datetime
import json
import os
import plistlib
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

SOURCE = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(SOURCE / "tools" / "practice"))

import processes
from disk import PracticeDisk
from first_backup import FirstBackup
from gi.repository import Gio
from screen import PATIENCE, Atspi, Screen, wait_for, widgets

BUILD = Path(sys.argv.pop())
SETTLE = 30  # seconds that the clicks may take before the rule falls due
UNTIL_BACKED_UP = 900  # seconds; the rule falls due within 90


class ReferenceServer:
    """The maker's service, on loopback."""

    def __init__(self):
        self._process = subprocess.Popen(
            [sys.executable, SOURCE / "tests" / "support" / "reference_server" / "reference_server.py"],
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        self.address = self._process.stdout.readline().strip()

    def requests(self):
        print("{}", file=self._process.stdin, flush=True)
        return json.loads(self._process.stdout.readline())["requests"]


class Installation:
    """The programs, installed into a prefix, with a disk, documents and settings of their own."""

    def __init__(self, folder):
        self.prefix = folder / "prefix"
        subprocess.run(["cmake", "--install", BUILD, "--prefix", self.prefix], check=True, stdout=subprocess.DEVNULL)
        self.disk = PracticeDisk(folder, self.prefix / "libexec" / "quillon" / "tmutil")
        self.disk.create(film_megabytes=6)
        self.disk.configure_tmutil()
        os.environ.update(self.disk.environment(), QUILLON_TMUTIL=str(self.disk.wrapper), LC_ALL="C.UTF-8")
        os.environ.pop("LANGUAGE", None)

    def start(self):
        return subprocess.Popen([self.prefix / "bin" / "quillon"])

    def log_in(self):
        """What a desktop does for its user: starts the programs that have asked for it."""
        entry = self.disk.config / "autostart" / "com.Orvane.Quillon.desktop"
        Gio.DesktopAppInfo.new_from_filename(str(entry)).launch()


class Application(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="quillon-endtoend-")
        self.addCleanup(folder.cleanup)
        self.addCleanup(processes.end_all, 10)
        self.installation = Installation(Path(folder.name))
        runtime = Path(folder.name) / "runtime"
        runtime.mkdir(mode=0o700)
        log = open(Path(folder.name) / "log", "w")
        self.addCleanup(log.close)
        self.screen = Screen(runtime, log)
        self.server = ReferenceServer()

    def test_a_user_sets_it_up_and_finds_everything_again(self):
        self.first_launch()
        rule = self.change_settings()
        wait_for("no backup", lambda: "appSettingsLatestBackupInfo" in self.settings(), UNTIL_BACKED_UP)
        self.backup.prove()
        self.screen.choose("Quit Quillon")
        self.assertEqual(self.quillon.wait(PATIENCE), 0)
        self.second_start(rule)

    def first_launch(self):
        # The one thing that a test must set: where the service has moved to, in the cache that remembers it.
        (self.installation.disk.config / "com.Orvane.Quillon.plist").write_bytes(plistlib.dumps({
            "Cirrel_Config_ServerUrl": {"type": "String", "value": self.server.address},
            "Cirrel_Config_ServerUrl_lastDate": datetime.datetime.utcnow()}))
        self.backup = FirstBackup(self.installation.disk, self.installation.prefix / "bin" / "quillonctl", os.environ,
                                  take_picture=None, folder=None)
        self.quillon = self.installation.start()
        alert = self.screen.see("alert", "Welcome to Quillon")
        self.screen.click(next(widgets(alert, "push button", "Close")))
        wait_for("the alert is not noted", lambda: self.settings().get("appSettingsDidShowAlertAtFirstLaunch"))
        wait_for("no question for the latest version", self.server.requests)

    def change_settings(self):
        """Returns the time of day of the rule that falls due next."""
        self.screen.choose("Settings...")
        self.screen.click(self.screen.see("check box", "Retry after a missed backup"))
        self.screen.click(self.screen.see("push button", "Add Rule"))
        wait_for("no second rule", lambda: len(list(self.screen.all("spin button", "at"))) == 2)
        due = datetime.datetime.min
        while due < datetime.datetime.now():  # again where the machine was so slow that the time has passed meanwhile
            due = datetime.datetime.now() + datetime.timedelta(minutes=1)
            if due.second > 60 - SETTLE:
                due += datetime.timedelta(minutes=1)
            due = due.replace(second=0, microsecond=0)
            self.screen.click_begin(list(self.screen.all("spin button", "at"))[1])  # where the hours are
            self.screen.press(*due.strftime("%I%M%p").lower())
            rule = {"day": 0, "time": due.hour * 3600 + due.minute * 60}
            wait_for(f"{rule} is not stored", lambda: rule in self.rules())
        self.screen.press("Escape")
        return rule

    def settings(self):
        return self.installation.disk.settings()

    def rules(self):
        return self.settings().get("userSettingsCalendarIntervals", [])

    def second_start(self, rule):
        self.installation.log_in()
        wait_for("Quillon was not started at log-in", lambda: len(self.server.requests()) >= 2)
        self.assertTrue(list(widgets(self.screen.open_menu(), "menu item", "Latest Backup: Today")))
        self.screen.press("Escape")
        self.assertFalse(list(self.screen.all("alert", "Welcome to Quillon")))

        self.assertEqual(self.installation.start().wait(PATIENCE), 0)
        retry = self.screen.see("check box", "Retry after a missed backup")
        self.assertFalse(retry.get_state_set().contains(Atspi.StateType.CHECKED))
        self.assertEqual(len(list(self.screen.all("spin button", "at"))), 2)
        self.assertIn(rule, self.rules())


if __name__ == "__main__":
    processes.adopt_orphans()
    unittest.main(warnings="ignore")  # what the desktop runs is ended by processes.end_all
