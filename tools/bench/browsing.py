"""A backup of many files, for the benchmarks of the window that looks through it."""

import sys
import tempfile
from contextlib import contextmanager
from pathlib import Path

from practice import Practice, write_wrapper

FILES, FILES_A_FOLDER = 100_000, 100  # as the benchmarks expect them

# The benchmark of each row.
ROWS = {
    "first folder of 100,000 files in a backup": "first folder",
    "opening it, the first time": "opening a folder",
    "reading all of them, for the search": "reading all",
    "search in them, once read": "search/iterations:20",
}


def fill(source):
    """The names of the files are their numbers."""
    for number in range(FILES):
        file = source / str(number // FILES_A_FOLDER) / str(number)
        if number % FILES_A_FOLDER == 0:
            file.parent.mkdir()
        file.write_text(str(number))


@contextmanager
def tmutil_with_backup(programs):
    """The path of a tmutil that has that backup, as long as the block lasts."""
    with tempfile.TemporaryDirectory() as folder:
        practice = Practice(programs, Path(folder))
        fill(practice.source)
        status, words = practice.end(practice.start_backup())
        if status:
            sys.exit(f"bench: the backup to look into failed: {words}")
        yield write_wrapper(Path(folder, "tmutil"), programs, practice.environment)
