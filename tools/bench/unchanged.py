"""Measures what tmutil adds to restic's own time where nothing has changed."""

import random
import subprocess
import sys
import tempfile
import time
from pathlib import Path
from statistics import median

from practice import Practice, children

FILES, FILES_A_FOLDER, MOST_BYTES = 20_000, 100, 4000
ROUNDS = 9
GLANCE = 0.002  # seconds


def fill(source):
    content = random.Random(1)
    for number in range(FILES):
        file = source / str(number // FILES_A_FOLDER) / str(number)
        file.parent.mkdir(exist_ok=True)
        file.write_bytes(content.randbytes(content.randrange(MOST_BYTES)))


def copying_restic(backup):
    """Command, environment and working folder of the restic that copies for this backup."""
    while backup.poll() is None:
        for restic in [child for worker in children(backup.pid) for child in children(worker)]:
            process = Path(f"/proc/{restic}")
            words = process.joinpath("cmdline").read_text().split("\0")[:-1]
            if "backup" in words:
                settings = process.joinpath("environ").read_text().split("\0")[:-1]
                return words, dict(setting.split("=", 1) for setting in settings), process.joinpath("cwd").resolve()
    sys.exit("bench: a backup ended before it ran restic")


def alone(command):
    """Seconds of the same restic without us, at the worker's priority and, like the worker, in a session of its own: a
    busy machine shares out its processor by both, and the difference would be taken for work."""
    words, environment, folder = command
    begun = time.monotonic()
    subprocess.run(["nice", "ionice", "-c", "2", "-n", "7", *words], env=environment, cwd=folder, check=True,
                   stdout=subprocess.DEVNULL, start_new_session=True)
    return time.monotonic() - begun


def phase(practice):
    """What the run has shown last, read without a process, which would take its share of the time."""
    try:
        state = practice.state.joinpath("run.plist").read_text()
    except FileNotFoundError:
        return None
    return next((name for name in ("ThinningPostBackup", "Finishing") if f">{name}<" in state), None)


def ours(practice):
    """Seconds until the backup counts, and until all is done.

    The first ends when the snapshot is written and remembered, no source was lost, and whoever watches takes the backup
    for complete. restic alone has come as far when it ends, so the bar is on this. Thinning old backups, a further
    command for those who use restic alone, is in the second. That the run then stays until it was seen is in neither,
    for no work is done and the next reader of `status` learns what there is to know.
    """
    begun, counts = time.monotonic(), None
    backup = practice.start_backup()
    while (now := phase(practice)) != "Finishing" and backup.poll() is None:
        if counts is None and now == "ThinningPostBackup":
            counts = time.monotonic() - begun
        time.sleep(GLANCE)
    done = time.monotonic() - begun
    status, words = practice.end(backup)
    if status != 0 or counts is None:
        sys.exit(f"bench: a backup failed or was not seen: {words}")
    return counts, done


def measure(programs):
    """Figures by the names of their rows."""
    with tempfile.TemporaryDirectory() as folder:
        practice = Practice(programs, Path(folder))
        fill(practice.source)
        practice.end(practice.start_backup())
        backup = practice.start_backup()
        command = copying_restic(backup)
        practice.end(backup)
        # In turns, so that what disturbs the one disturbs the other as much.
        rounds = [(alone(command), *ours(practice)) for _ in range(ROUNDS)]
    by_itself, counts, done = (median(seconds) for seconds in zip(*rounds))
    return {
        "20,000 unchanged files, against restic alone": counts / by_itself,
        "the same, old backups thinned": done / by_itself,
    }
