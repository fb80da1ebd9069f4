"""The installed programs, each test with a prefix, a disk, settings and a screen of its own."""

import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

SOURCE = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(SOURCE / "tools" / "practice"))

import processes
from disk import PracticeDisk
from gi.repository import Gio
from screen import PATIENCE, Screen

BUILD = Path(sys.argv.pop())


class Installation:
    """The programs, installed into a prefix, with a disk, documents and settings of their own."""

    def __init__(self, folder, log):
        self._log = log
        self.prefix = folder / "prefix"
        subprocess.run(["cmake", "--install", BUILD, "--prefix", self.prefix], check=True, stdout=subprocess.DEVNULL)
        self.disk = PracticeDisk(folder, self.prefix / "libexec" / "quillon" / "tmutil")
        self.disk.create(film_megabytes=6)
        self.disk.configure_tmutil()
        os.environ.update(self.disk.environment(), QUILLON_TMUTIL=str(self.disk.wrapper), LC_ALL="C.UTF-8")
        os.environ.pop("LANGUAGE", None)

    def start(self, program):
        return subprocess.Popen([self.prefix / "bin" / program], stderr=self._log)

    def log_in(self):
        """What a desktop does for its user: starts the programs that have asked for it."""
        entry = self.disk.config / "autostart" / "com.Orvane.Quillon.desktop"
        Gio.DesktopAppInfo.new_from_filename(str(entry)).launch()


class InstalledProgramsTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="quillon-endtoend-")
        self.addCleanup(folder.cleanup)
        self.addCleanup(processes.end_all, 10)
        log = open(Path(folder.name) / "log", "w")
        self.addCleanup(log.close)
        self.installation = Installation(Path(folder.name), log)
        runtime = Path(folder.name) / "runtime"
        runtime.mkdir(mode=0o700)
        self.screen = Screen(runtime, log)

    def see_end(self, program):
        if status := program.wait(PATIENCE):
            self.fail(f"the program has ended with {status}\n{self.screen.report()}")


def run():
    processes.adopt_orphans()
    unittest.main(warnings="ignore")  # what the desktop runs is ended by processes.end_all
