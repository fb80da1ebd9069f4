"""Measures the running application: start to first title, memory, processor time while idle.

Usage: bench_program.py FOLDER-OF-PROGRAMS SECONDS-OF-IDLING; run by `./dev bench` on a virtual X display.
"""

import os
import pathlib
import subprocess
import sys
import tempfile
import time

STARTS = 5


def start(programs, folder):
    """Starts quillon on settings of its own; gives the process and the seconds until its first title."""
    wrapper = folder / "tmutil"
    wrapper.write_text(
        "#!/bin/sh\n"
        f"export XDG_CONFIG_HOME='{folder}' XDG_STATE_HOME='{folder}' XDG_CACHE_HOME='{folder}'\n"
        f"exec '{programs}/libexec/quillon/tmutil' \"$@\"\n"
    )
    wrapper.chmod(0o755)
    environment = dict(os.environ, XDG_CONFIG_HOME=str(folder), QUILLON_TMUTIL=str(wrapper))
    begun = time.monotonic()
    process = subprocess.Popen(
        [f"{programs}/bin/quillon", "--menu-bar=bar", "--print-changes"],
        env=environment, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
    for line in process.stdout:
        if 'title=""' not in line:
            return process, time.monotonic() - begun
    sys.exit("bench_program: quillon ended before it showed a title")


def processor_seconds(pid):
    """User and system time of the process itself, proc(5)."""
    fields = pathlib.Path(f"/proc/{pid}/stat").read_text().rpartition(")")[2].split()
    return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


def memory(pid):
    """Resident and proportional set in MB, proc(5)."""
    rollup = pathlib.Path(f"/proc/{pid}/smaps_rollup").read_text().splitlines()
    kilobytes = {line.split(":")[0]: int(line.split()[1]) for line in rollup[1:]}
    return kilobytes["Rss"] / 1000, kilobytes["Pss"] / 1000


def main():
    programs, idle = pathlib.Path(sys.argv[1]).resolve(), float(sys.argv[2])
    times = []
    for number in range(STARTS):
        with tempfile.TemporaryDirectory() as folder:
            process, seconds = start(programs, pathlib.Path(folder))
            times.append(seconds)
            if number == STARTS - 1:
                time.sleep(2)
                before = processor_seconds(process.pid)
                time.sleep(idle)
                used = (processor_seconds(process.pid) - before) / idle
                resident, proportional = memory(process.pid)
            process.kill()
            process.wait()
    times.sort()
    print(f"start to first title      {times[0]:.3f} {times[STARTS // 2]:.3f} {times[-1]:.3f} s"
          "  (least, median, most; bar 0.3 s)")
    print(f"resident memory idle      {resident:.1f} MB  (bar 45 MB)")
    print(f"proportional set idle     {proportional:.1f} MB  (bar 25 MB)")
    print(f"processor while idle      {used * 100:.3f} % of one core over {idle:.0f} s  (bar 0.1 %)")


if __name__ == "__main__":
    main()
