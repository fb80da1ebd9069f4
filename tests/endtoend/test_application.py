"""Quillon as its users meet it: installed, started on a desktop with a tray, gone through, quit, started again.

usage: test_application.py BUILD
"""

import datetime
import json
import os
import plistlib
import subprocess
import sys

import installation
from first_backup import FirstBackup
from screen import Atspi, widgets

SETTLE = 30  # seconds that the typing may take before the rule falls due
UNTIL_BACKED_UP = 900  # seconds; the rule falls due within 90


class ReferenceServer:
    """The maker's service, on loopback."""

    def __init__(self):
        self._process = subprocess.Popen(
            [sys.executable, installation.SOURCE / "tests" / "support" / "reference_server" / "reference_server.py"],
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        self.address = self._process.stdout.readline().strip()

    def requests(self):
        print("{}", file=self._process.stdin, flush=True)
        return json.loads(self._process.stdout.readline())["requests"]


class Application(installation.InstalledProgramsTest):
    def setUp(self):
        super().setUp()
        self.server = ReferenceServer()

    def test_a_user_sets_it_up_and_finds_everything_again(self):
        self.first_launch()
        rule = self.change_settings()
        self.screen.wait_for("no backup", lambda: "appSettingsLatestBackupInfo" in self.settings(), UNTIL_BACKED_UP)
        self.backup.prove()
        self.screen.choose("Quit Quillon")
        self.see_end(self.quillon)
        self.second_start(rule)

    def first_launch(self):
        # The one thing that a test must set: where the service has moved to, in the cache that remembers it.
        (self.installation.disk.config / "com.Orvane.Quillon.plist").write_bytes(plistlib.dumps({
            "Cirrel_Config_ServerUrl": {"type": "String", "value": self.server.address},
            "Cirrel_Config_ServerUrl_lastDate": datetime.datetime.utcnow()}))
        self.backup = FirstBackup(self.installation.disk, self.installation.prefix / "bin" / "quillonctl", os.environ,
                                  take_picture=None, folder=None)
        self.quillon = self.installation.start("quillon")
        self.screen.see("alert", "Welcome to Quillon")
        self.screen.see_focused("push button", "Close")
        self.screen.press("Return")
        self.screen.wait_for("the alert is not noted",
                             lambda: self.settings().get("appSettingsDidShowAlertAtFirstLaunch"))
        self.screen.wait_for("no question for the latest version", self.server.requests)

    def change_settings(self):
        """Returns the time of day of the rule that falls due next."""
        self.screen.choose("Settings...")
        for role, name in (("check box", "Retry after a missed backup"), ("push button", "Add Rule")):
            self.screen.go_to(self.screen.see(role, name))
            self.screen.press("space")
        self.screen.wait_for("no second rule", lambda: len(list(self.screen.all("spin button", "at"))) == 2)
        due = datetime.datetime.min
        while due < datetime.datetime.now():  # again where the machine was so slow that the time has passed meanwhile
            due = datetime.datetime.now() + datetime.timedelta(minutes=1)
            if due.second > 60 - SETTLE:
                due += datetime.timedelta(minutes=1)
            due = due.replace(second=0, microsecond=0)
            self.screen.go_to(list(self.screen.all("combo box", "every day"))[1])
            self.screen.press("Tab")  # to the hours, wherever the keyboard was last in the time
            self.screen.see_focused("spin button", "at")
            self.screen.press(*due.strftime("%I%M%p").lower())
            rule = {"day": 0, "time": due.hour * 3600 + due.minute * 60}
            self.screen.wait_for(f"{rule} is not stored", lambda: rule in self.rules())
        self.screen.press("Escape")
        return rule

    def settings(self):
        return self.installation.disk.settings()

    def rules(self):
        return self.settings().get("userSettingsCalendarIntervals", [])

    def second_start(self, rule):
        self.installation.log_in()
        self.screen.wait_for("Quillon was not started at log-in", lambda: len(self.server.requests()) >= 2)
        self.assertTrue(list(widgets(self.screen.open_menu(), "menu item", "Latest Backup: Today")))
        self.screen.press("Escape")
        self.assertFalse(list(self.screen.all("alert", "Welcome to Quillon")))

        self.see_end(self.installation.start("quillon"))
        retry = self.screen.see("check box", "Retry after a missed backup")
        self.assertFalse(retry.get_state_set().contains(Atspi.StateType.CHECKED))
        self.assertEqual(len(list(self.screen.all("spin button", "at"))), 2)
        self.assertIn(rule, self.rules())


if __name__ == "__main__":
    installation.run()
