"""Tries Quillon on each desktop, without a display; see ./dev help. Ends everything it started."""

import argparse
import json
import os
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

HERE = Path(__file__).resolve().parent
ROOT = HERE.parents[1]
sys.path.append(str(HERE.parent / "practice"))

import processes  # noqa: E402

DESKTOPS = ("gnome", "gnome-appindicator", "sway-waybar", "weston", "x11-tint2", "x11-xfce4")
ROWS = ("item visible", "title", "menu by mouse", "settings placed", "closing", "new alert in front",
        "second start, alert waiting", "second start, item minimised", "dark")
ORDINARY_USER = 65534
PATIENCE = 300  # seconds for one desktop


def arguments():
    parser = argparse.ArgumentParser(prog="./dev desktops", description="Tries Quillon on each desktop.")
    parser.add_argument("--pictures", type=Path, default=ROOT / "build" / "desktops", help="where the pictures go")
    parser.add_argument("desktop", nargs="*", metavar="DESKTOP", help=f"only these of {', '.join(DESKTOPS)}")
    chosen = parser.parse_args()
    unknown = [name for name in chosen.desktop if name not in DESKTOPS]
    if unknown:
        parser.error(f"no desktop {unknown[0]!r}; there are {', '.join(DESKTOPS)}")
    return chosen


def main():
    chosen = arguments()
    names = chosen.desktop or DESKTOPS
    chosen.pictures.mkdir(parents=True, exist_ok=True)
    processes.adopt_orphans()
    with tempfile.TemporaryDirectory(prefix="quillon-desktops-") as folder:
        stage = Path(folder)
        stage.chmod(0o755)
        programs = install(stage)
        tools = shutil.copytree(HERE, stage / "tools")  # the checkout may lie where only its owner looks
        answers = {name: try_desktop(name, stage, tools, programs, chosen.pictures) for name in names}
    print(table(answers))
    print(f"\npictures: {chosen.pictures}")
    return 0 if all("no" != said.split(":")[0] for answer in answers.values() for said in answer.values()) else 1


def install(stage):
    """The prefix of the programs: of $QUILLON, or of what was built, installed where every user reads it."""
    given = os.environ.get("QUILLON")
    if given:
        return Path(given).resolve().parents[1]
    prefix = stage / "usr"
    subprocess.run(["cmake", "--install", ROOT / "build" / "release", "--prefix", prefix], check=True,
                   stdout=subprocess.DEVNULL)
    return prefix


def try_desktop(name, stage, tools, programs, pictures):
    """What inside.py says of one desktop, started as an ordinary user with nothing of the caller's."""
    print(f"desktops: {name}", file=sys.stderr, flush=True)
    home, log = stage / name, pictures / f"{name}.log"
    home.mkdir(mode=0o700)
    as_user = []
    if os.geteuid() == 0:
        os.chown(home, ORDINARY_USER, ORDINARY_USER)
        as_user = ["setpriv", f"--reuid={ORDINARY_USER}", f"--regid={ORDINARY_USER}", "--clear-groups"]
    command = [*as_user, "env", "-i", "PATH=/usr/bin:/bin", "LANG=C.UTF-8", f"HOME={home}", "dbus-run-session", "--",
               "/usr/bin/python3", "-B", tools / "inside.py", name, programs]
    with open(log, "w") as file:
        try:
            subprocess.run(command, stdout=file, stderr=file, cwd=home, timeout=PATIENCE)
            answer = json.loads((home / "answers.json").read_text())
        except (subprocess.TimeoutExpired, OSError):
            answer = dict.fromkeys(ROWS, f"no: the try broke off, see {log}")
        finally:
            processes.end_all(seconds=5)
            for picture in home.glob("pictures/*.png"):
                shutil.copyfile(picture, pictures / f"{name}-{picture.name}")
    return answer


def table(answers):
    lines = [["", *answers], ["---"] * (len(answers) + 1)]
    lines += [[row, *(answer.get(row, "not here: not asked") for answer in answers.values())] for row in ROWS]
    return "\n".join(f"| {' | '.join(line)} |" for line in lines)


sys.exit(main())
