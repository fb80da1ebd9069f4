"""The table of figures that Quillon holds itself to.

Run by `./dev bench` on a virtual X display. Exit status 1 when a bar is broken, with the rows named.
"""

import argparse
import json
import os
import subprocess
import sys
import tempfile
from pathlib import Path

import browsing
import kills
import program
import unchanged

REPETITIONS = 3

# Row: unit, bar; a row without a bar is there to compare with.
ROWS = {
    "status poll, main thread, idle": ("ms", "at most", 1),
    "status poll, main thread, backup running": ("ms", "at most", 1),
    "opening the menu while the tool hangs": ("ms", "at most", 50),
    "reading one status text": ("us", "at most", 20),
    "next backup date, 5 rules, 4-week pause": ("us", "at most", 50),
    "property list, 16 MB string": ("MB/s", "at least", 200),
    "property list, 16 MB string with escapes": ("MB/s", "at least", 200),
    "property list, time a byte of 16 MB against 1 MB": ("times", "at most", 5),
    "property list, 16 MB of status texts": ("MB/s",),
    "making the values of these, nothing read": ("MB/s",),
    "16 MB file, own reader": ("ms",),
    "16 MB file, plparse": ("ms",),
    "start to first title, median": ("s", "at most", 0.3),
    "resident memory idle": ("MB", "at most", 45),
    "proportional set idle, another Qt program beside": ("MB", "at most", 25),
    "proportional set idle, none started beside": ("MB",),
    "processor while idle": ("% of a core", "at most", 0.1),
    "one tmutil status": ("ms", "at most", 10),
    "20,000 unchanged files, against restic alone": ("times", "at most", 1.15),
    "the same, old backups thinned": ("times",),
    "first folder of 100,000 files in a backup": ("s", "at most", 2),
    "opening it, the first time": ("s",),
    "reading all of them, for the search": ("s",),
    "search in them, once read": ("s", "at most", 0.5),
    "random kills that have cost nothing": ("%", "at least", 100),
}

SECONDS = {"ns": 1e-9, "us": 1e-6, "ms": 1e-3, "s": 1}
PROPERTY_LIST = "property list/"


def table(figures):
    """The lines of the table, and the names of the rows whose bar is broken."""
    lines, broken = [], []
    for row, (unit, *bar) in ROWS.items():
        figure, verdict = figures[row], ""
        if bar:
            sense, limit = bar
            held = figure <= limit if sense == "at most" else figure >= limit
            verdict = f"{sense} {limit}" + ("" if held else "  BROKEN")
            broken += [] if held else [row]
        lines.append(f"{row:<52}{figure:>10.3f} {unit:<13}{verdict}".rstrip())
    return lines, broken


def benchmarks(programs, which, **environment):
    """The library's record of each benchmark's best repetition: what disturbs only ever makes one slower."""
    with tempfile.TemporaryDirectory() as folder:
        out = Path(folder, "out.json")
        outcome = subprocess.run(
            [f"{programs}/bench/quillon_bench", f"--benchmark_filter={which}",
             f"--benchmark_repetitions={REPETITIONS}", f"--benchmark_out={out}"],
            env=os.environ | {"QT_QPA_PLATFORM": "offscreen"} | environment, text=True, capture_output=True)
        if outcome.returncode:
            sys.exit("bench: the benchmarks failed\n" + outcome.stderr)
        runs = json.loads(out.read_text())["benchmarks"]
    best = {}
    for run in runs:
        if run.get("error_occurred"):
            sys.exit(f"bench: {run['name']}: {run['error_message']}")
        if run["run_type"] == "iteration":
            best[run["run_name"]] = min(best.get(run["run_name"], run), run, key=lambda record: record["cpu_time"])
    return best


def seconds(run, clock):
    return run[clock] * SECONDS[run["time_unit"]]


def core_figures(runs):
    """Figures by the names of their rows."""
    def time(name, unit, clock="cpu_time"):
        return seconds(runs[name], clock) / SECONDS[unit]

    def rate(name):
        return runs[PROPERTY_LIST + name]["bytes_per_second"] / 1e6

    return {
        "status poll, main thread, idle": time("onePoll/whileIdle", "ms"),
        "status poll, main thread, backup running": time("onePoll/whileABackupRuns", "ms"),
        "opening the menu while the tool hangs": time("openingTheMenu", "ms", "real_time"),
        "reading one status text": time("readingOneStatusText", "us"),
        "next backup date, 5 rules, 4-week pause": time("nextBackupDateOfFiveRulesAfterAPauseOfFourWeeks", "us"),
        "property list, 16 MB string": rate("one string/16777216"),
        "property list, 16 MB string with escapes": rate("one escaped string/16777216"),
        "property list, time a byte of 16 MB against 1 MB":
            rate("one string/1048576") / rate("one string/16777216"),
        "property list, 16 MB of status texts": rate("status texts/16777216"),
        "making the values of these, nothing read": rate("values of status texts/16777216"),
        "16 MB file, own reader": time(PROPERTY_LIST + "16 MB file, own reader/real_time", "ms", "real_time"),
        "16 MB file, plparse": time(PROPERTY_LIST + "16 MB file, plparse/real_time", "ms", "real_time"),
    }


def browsing_figures(programs):
    """Figures by the names of their rows."""
    with browsing.tmutil_with_backup(programs) as tool:
        runs = benchmarks(programs, "^browsing/", QUILLON_TMUTIL=str(tool))
    return {row: seconds(runs[f"browsing/{name}/real_time"], "real_time") for row, name in browsing.ROWS.items()}


def main():
    parser = argparse.ArgumentParser(prog="bench", description=__doc__)
    parser.add_argument("programs", type=Path, help="the folder with what was built")
    parser.add_argument("--idle", type=float, default=60, help="seconds of idling (%(default)s)")
    kills.add_options(parser)
    wanted = parser.parse_args()
    programs = wanted.programs.resolve()
    lines, broken = table(core_figures(benchmarks(programs, "-^browsing/")) | program.measure(programs, wanted.idle)
                          | unchanged.measure(programs) | browsing_figures(programs)
                          | kills.measure(programs, wanted.kills, wanted.seed))
    print("\n".join(lines))
    if broken:
        sys.exit("bench: broken: " + "; ".join(broken))


if __name__ == "__main__":
    main()
