"""The practice run: proves a backup, names what went wrong, touches only its own folder and leaves no process."""

import os
import signal
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

HERE = Path(__file__).resolve().parent
PRACTICE = HERE.parents[1] / "tools" / "practice"


class PracticeTest(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.folder = Path(scratch.name)
        self.programs = self.folder / "programs"
        for program in ("bin/quillon", "bin/quillonctl", "libexec/quillon/tmutil"):
            (self.programs / program).parent.mkdir(parents=True, exist_ok=True)
            (self.programs / program).symlink_to(HERE / "practice_fakes.py")

    def start(self, fault=""):
        (self.programs / "fault").write_text(fault)
        headless = {name: value for name, value in os.environ.items() if name not in ("DISPLAY", "WAYLAND_DISPLAY")}
        return subprocess.Popen(
            [sys.executable, "-B", PRACTICE, "--once", "--shots", self.folder / "50% of shots", "--megabytes", "6",
             "--folder", self.folder / "practice 'disk'", "--programs", self.programs, "--", "--bar"],
            env=headless | {"TMPDIR": str(self.folder)}, text=True, stdout=subprocess.PIPE,
            stderr=subprocess.PIPE)

    def assert_nothing_runs(self):
        """All that a practice run starts has the test's folder in its environment."""
        mark, left = str(self.folder).encode(), []
        for process in Path("/proc").glob("[0-9]*"):
            try:
                if mark in (process / "environ").read_bytes():
                    left.append((process / "cmdline").read_bytes())
            except OSError:
                continue
        self.assertEqual(left, [])

    def test_a_completed_backup_is_proved_and_pictured(self):
        for variant in ("", "idle at once"):  # the second one over what the first one left
            practice = self.start(variant)
            output, errors = practice.communicate()
            self.assertEqual(practice.returncode, 0, output + errors)
            self.assertIn("all equal", output)
            self.assertIn('icon=2 title="20.0%" text="3s" phase="Copying"', output)
            for name in ("idle", "running", "completed"):
                header = (self.folder / "50% of shots" / f"{name}.png").read_bytes()[:24]
                self.assertEqual((header[1:4], header[16:24]), (b"PNG", (1280).to_bytes(4) + (800).to_bytes(4)))
            self.assert_nothing_runs()
        samples = {path.name for path in (self.folder / "practice 'disk'" / "Documents").rglob("*")}
        self.assertLessEqual({"empty", "latest note", "film 6.bin"}, samples)

    def test_what_went_wrong_is_named(self):
        for fault, reason in [("failed", 'failed:\nLastFailure = "the disk is full"'),
                              ("dies", "ended by itself, with status 3"), ("differs", "film 1.bin differ"),
                              ("home", "more than its own files"), ("unrecorded", "was not recorded"),
                              ("other disk", "recorded for TWO")]:
            with self.subTest(fault):
                practice = self.start(fault)
                output, errors = practice.communicate()
                self.assertEqual(practice.returncode, 1, output + errors)
                self.assertIn(reason, errors)
                self.assert_nothing_runs()

    def test_an_interrupt_ends_everything_and_a_second_run_waits_its_turn(self):
        practice = self.start("hangs")
        while "icon=2" not in practice.stdout.readline():
            self.assertIsNone(practice.poll())
        second = self.start("hangs")
        self.assertIn("another practice run", second.communicate()[1])
        self.assertEqual(second.returncode, 1)
        practice.send_signal(signal.SIGINT)
        practice.communicate()
        self.assertEqual(practice.returncode, 130)
        self.assert_nothing_runs()


if __name__ == "__main__":
    unittest.main()
