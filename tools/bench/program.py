"""Measures the running programs: start, memory and idling of quillon, a call of `tmutil status`.

Needs a display; each quillon has settings of its own, which go with it. Whatever can be switched on is on.
"""

import os
import plistlib
import resource
import subprocess
import sys
import tempfile
import time
from contextlib import contextmanager
from pathlib import Path

from practice import write_wrapper

EVERYTHING_ON = {f"userSettings{name}": number for name, number in {
    "OnlyOnMainsPower": 1, "ChargeThatSuffices": 50, "StayAwake": 1, "StartWhenDiskAppears": 1, "MinutesAfterWake": 10,
    "DaysWithoutBackup": 10, "TellBeforeStart": 1}.items()}
LONGEST_DELAY = 35  # seconds after the start until all of that has begun
STARTS = 5
STATUS_CALLS = 50


def folders(folder):
    """One for all that tmutil keeps."""
    return {name: folder for name in ("XDG_CONFIG_HOME", "XDG_STATE_HOME", "XDG_CACHE_HOME")}


@contextmanager
def running(programs):
    """Runs quillon as long as the block lasts; gives the process and the seconds until its first title."""
    with tempfile.TemporaryDirectory() as folder:
        Path(folder, "com.Orvane.Quillon.plist").write_bytes(plistlib.dumps(EVERYTHING_ON))
        wrapper = write_wrapper(Path(folder, "tmutil"), programs, folders(folder))
        begun = time.monotonic()
        process = subprocess.Popen(
            [f"{programs}/bin/quillon", "--menu-bar=bar", "--print-changes"],
            env=os.environ | {"XDG_CONFIG_HOME": folder, "XDG_STATE_HOME": folder, "QUILLON_TMUTIL": str(wrapper)},
            stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        try:
            if not any('title=""' not in line for line in process.stdout):
                sys.exit("bench: quillon ended before it showed a title")
            yield process, time.monotonic() - begun
        finally:
            process.kill()
            process.wait()


@contextmanager
def neighbour():
    """Another Qt program with windows, as every desktop that Quillon is for has one: it shares Qt's pages."""
    folder = subprocess.check_output(["qtpaths6", "--query", "QT_INSTALL_BINS"], text=True).strip()
    process = subprocess.Popen([f"{folder}/qdbusviewer"], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    try:
        time.sleep(3)
        if process.poll() is not None:
            sys.exit("bench: the program beside quillon has ended")
        yield
    finally:
        process.kill()
        process.wait()


def processor_seconds(pid):
    """User and system time of the process itself, proc(5)."""
    fields = Path(f"/proc/{pid}/stat").read_text().rpartition(")")[2].split()
    return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


def memory(pid):
    """Resident and proportional set in MB, proc(5)."""
    rollup = Path(f"/proc/{pid}/smaps_rollup").read_text().splitlines()
    kilobytes = {line.split(":")[0]: int(line.split()[1]) for line in rollup[1:]}
    return kilobytes["Rss"] / 1000, kilobytes["Pss"] / 1000


def idle_share(pid, seconds):
    """Share of one core that the process uses once all of it has begun."""
    time.sleep(LONGEST_DELAY)
    before = processor_seconds(pid)
    time.sleep(seconds)
    return (processor_seconds(pid) - before) / seconds


def status_seconds(programs):
    """Processor time of one `tmutil status`, the start of the process included."""
    def used():
        usage = resource.getrusage(resource.RUSAGE_CHILDREN)
        return usage.ru_utime + usage.ru_stime

    with tempfile.TemporaryDirectory() as folder:
        before = used()
        for _ in range(STATUS_CALLS):
            subprocess.run([f"{programs}/libexec/quillon/tmutil", "status"], env=folders(folder), check=True,
                           stdout=subprocess.DEVNULL)
        return (used() - before) / STATUS_CALLS


def measure(programs, idle_seconds):
    """Figures by the names of their rows."""
    starts = []
    for _ in range(STARTS - 1):
        with running(programs) as (_, seconds):
            starts.append(seconds)
    with running(programs) as (process, seconds):
        starts.append(seconds)
        share = idle_share(process.pid, idle_seconds)
        resident, alone = memory(process.pid)
        with neighbour():
            _, beside = memory(process.pid)
    return {
        "start to first title, median": sorted(starts)[STARTS // 2],
        "resident memory idle": resident,
        "proportional set idle, another Qt program beside": beside,
        "proportional set idle, none started beside": alone,
        "processor while idle": share * 100,
        "one tmutil status": status_seconds(programs) * 1000,
    }
