"""Our tmutil over a real restic with folders of its own: nothing of the user's is read or written."""

import os
import signal
import subprocess
import time
from pathlib import Path

PATIENCE = 120  # seconds for a backup that takes a few


class Practice:
    """One backup disk and one source, `source`, both below `folder`, which stays until somebody removes it."""

    def __init__(self, programs, folder):
        self.folder, self.source = folder, folder / "source"
        self.state = folder / "state" / "quillon-timemachine"
        self._tmutil = f"{programs}/libexec/quillon/tmutil"
        self.environment = {f"XDG_{kind.upper()}_HOME": str(folder / kind) for kind in ("config", "state", "cache")}
        self._disk = folder / "disk"
        self.source.mkdir()
        self._disk.mkdir()
        self.call("addsource", self.source, check=True)
        self.call("setdestination", self._disk, check=True)

    def call(self, *words, check=False):
        return subprocess.run([self._tmutil, *words], env=self.environment, check=check, text=True,
                              capture_output=True)

    def start_backup(self):
        """`startbackup --block`: the worker is its child as long as it lasts."""
        return subprocess.Popen([self._tmutil, "startbackup", "--block"], env=self.environment, text=True,
                                stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)

    def end(self, backup):
        """Waits until a backup has ended; gives its exit status and what it complained of. That it waits for those who
        watch it is left out: they have seen it, and one that completed is asked to end."""
        latest = time.monotonic() + PATIENCE
        while backup.poll() is None:
            if "BackupPhase = Finishing" in self.call("status").stdout:
                for worker in children(backup.pid):
                    os.kill(worker, signal.SIGTERM)
            if time.monotonic() > latest:
                raise TimeoutError(f"a backup has not ended after {PATIENCE} s")
            time.sleep(0.02)
        return backup.returncode, backup.communicate()[1]

    def restic(self, *words):
        repository = next((self._disk / "Quillon.backups").iterdir())
        key = self.folder / "config" / "quillon-timemachine" / "keys" / f"{repository.name}.key"
        return subprocess.run(["restic", "--repo", repository, "--password-file", key, "--no-cache", *words],
                              text=True, capture_output=True)


def write_wrapper(file, programs, environment):
    """A tmutil that finds its folders where the environment says: Quillon gives its own none. Returns its path."""
    exports = "".join(f"export {name}='{value}'\n" for name, value in environment.items())
    file.write_text(f"#!/bin/sh\n{exports}export PATH=/usr/local/bin:/usr/bin:/bin\n"
                    f"exec '{programs}/libexec/quillon/tmutil' \"$@\"\n")
    file.chmod(0o755)
    return file


def children(pid):
    """proc(5); none where the process has ended."""
    try:
        return [int(child) for child in Path(f"/proc/{pid}/task/{pid}/children").read_text().split()]
    except OSError:
        return []
