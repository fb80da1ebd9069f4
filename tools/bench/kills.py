"""Kills backups at random instants, and looks whether anything is lost by it.

Every fourth backup is the weekly one, which prunes. What a kill has broken is kept to be looked at.
"""

import contextlib
import hashlib
import os
import plistlib
import random
import shutil
import signal
import sys
import tempfile
import time
from datetime import datetime, timedelta, timezone
from pathlib import Path

from practice import PATIENCE, Practice, children

KILLS = 200
FILES, FILES_CHANGED, MOST_BYTES = 200, 40, 60_000
BACKUPS_A_WEEK = 4
SILENT_KILLS = 20  # they take minutes


class Broken(Exception):
    """What no kill may do."""


def require(holds, complaint):
    if not holds:
        raise Broken(complaint)


def change(source, chance):
    """Some files come or get other contents, some go."""
    for number in chance.sample(range(FILES), FILES_CHANGED):
        file = source / str(number % 7) / str(number)
        file.parent.mkdir(exist_ok=True)
        if file.exists() and chance.random() < 0.2:
            file.unlink()
        else:
            file.write_bytes(chance.randbytes(chance.randrange(MOST_BYTES)))


def contents(folder):
    """Names and bytes of all files below a folder, as one value."""
    whole = hashlib.sha256()
    for file in sorted(path for path in folder.rglob("*") if path.is_file()):
        for part in (str(file.relative_to(folder)).encode(), file.read_bytes()):
            whole.update(hashlib.sha256(part).digest())
    return whole.hexdigest()


def kill(pid):
    with contextlib.suppress(ProcessLookupError):  # it has just ended
        os.kill(pid, signal.SIGKILL)


def has_let_go(pid):
    """Whether a process holds nothing any more, be it that nobody has taken its exit status yet."""
    try:
        return Path(f"/proc/{pid}/stat").read_text().rpartition(")")[2].split()[0] in "ZX"
    except OSError:
        return True


def victims_of(backup, kind):
    """The processes to kill, waited for; none where the backup is over before they are there."""
    while backup.poll() is None:
        workers = children(backup.pid)
        restics = [child for worker in workers for child in children(worker)]
        if workers and (restics or kind == "worker"):
            return {"worker": workers, "restic": restics, "both": restics + workers}[kind]
        time.sleep(0.001)
    return []


class Trial:
    """One disk and one source, through any number of kills."""

    def __init__(self, programs, chance):
        self.folder = Path(tempfile.mkdtemp(prefix="quillon-kills-"))
        self._chance = chance
        self._practice = Practice(programs, self.folder)
        self._backups = 0
        self._contents = {}  # of each backup, by its name
        for _ in range(2):
            self._change()
            self._back_up()  # the second one is as long as those to come

    def kill_once(self):
        """Throws Broken where something does not hold."""
        while not self._kill_a_backup():
            pass
        self._back_up()
        check = self._practice.restic("check", "--read-data", "--no-lock")
        require(check.returncode == 0, f"the repository is damaged: {check.stdout}{check.stderr}")

    def _change(self):
        change(self._practice.source, self._chance)
        self._backups += 1
        if self._backups % BACKUPS_A_WEEK == 0:
            self._make_prune_due()

    def _make_prune_due(self):
        file = self._practice.state / "history.plist"
        history = plistlib.loads(file.read_bytes())
        for disk in history["Destinations"].values():
            disk["LastPrune"] = datetime.now(timezone.utc).replace(tzinfo=None) - timedelta(days=8)
        file.write_bytes(plistlib.dumps(history))

    def _kill_a_backup(self):
        """False where the backup was over by then."""
        self._change()
        kind = self._chance.choice(["worker", "restic", "both"])
        delay = self._chance.uniform(0, self._length)
        backup = self._practice.start_backup()
        time.sleep(delay)
        victims = victims_of(backup, kind)
        for victim in victims:
            kill(victim)
        if kind != "restic":
            self._expect_death_of(victims)
        told, _ = self._practice.end(backup)
        self._expect_none_runs()
        now = contents(self._practice.source)
        self._check_latest(now, *([] if told == 0 else [self._latest]))
        return bool(victims)

    def _expect_death_of(self, victims):
        latest = time.monotonic() + PATIENCE
        while not all(map(has_let_go, victims)):
            require(time.monotonic() < latest, "a killed process does not end")
            time.sleep(0.001)
        if victims:
            self._expect_none_runs()

    def _expect_none_runs(self):
        status = self._practice.call("status")
        require(status.returncode == 0 and "Running = 0;" in status.stdout, f"status: {status.stdout}{status.stderr}")

    def _back_up(self):
        begun = time.monotonic()
        status, words = self._practice.end(self._practice.start_backup())
        self._length = time.monotonic() - begun
        require(status == 0, f"a backup fails with {status}: {words}")
        require("LastFailure" not in self._practice.call("status").stdout, "a failure outlives the next backup")
        self._check_latest(contents(self._practice.source))

    def _check_latest(self, *allowed):
        """Each backup is restored once: what it holds stays as it is, or the check of all data finds damage."""
        name = self._practice.call("latestbackup").stdout.strip()
        if name not in self._contents:
            restored = self.folder / "restored"
            restore = self._practice.call("restore", f"{name}{self._practice.source}", restored)
            require(restore.returncode == 0, f"{name} cannot be restored: {restore.stderr}")
            self._contents[name] = contents(restored)
            shutil.rmtree(restored)
        self._latest = self._contents[name]
        require(self._latest in allowed, f"the latest backup, {name}, does not hold what was backed up")


def held(programs, kills, seed):
    """After how many of so many kills all was as it should be. One that breaks something leaves its disk behind; the
    next one gets another."""
    chance = random.Random(seed)
    print(f"bench: kills with --seed {seed}", file=sys.stderr)
    trial, whole = Trial(programs, chance), 0
    for number in range(1, kills + 1):
        try:
            trial.kill_once()
            whole += 1
        except (Broken, TimeoutError) as broken:
            print(f"bench: kill {number}: {broken}\nbench: look into {trial.folder}", file=sys.stderr)
            trial = Trial(programs, chance)
        if number % SILENT_KILLS == 0:
            print(f"bench: {whole} of {number} kills held so far", file=sys.stderr)
    shutil.rmtree(trial.folder)
    return whole


def measure(programs, kills, seed):
    """The figure by the name of its row."""
    whole = held(programs, kills, seed)
    print(f"bench: {whole} of {kills} kills held", file=sys.stderr)
    return {"random kills that have cost nothing": 100 * whole / kills}


def count(text):
    number = int(text)
    if number < 1:
        raise ValueError
    return number


def add_options(parser):
    parser.add_argument("--kills", type=count, default=KILLS, help="how many backups are killed (%(default)s)")
    parser.add_argument("--seed", type=int, default=random.SystemRandom().randrange(10**6),
                        help="of an earlier call, for the same choices")
