"""Tries Quillon on one desktop, inside of a session bus of its own; writes the answers to a file."""

import json
import os
import sys
from pathlib import Path

from questions import Questions
from session import Quillon
from wayland import Gnome, Sway, Weston
from x11 import Tint2, Xfce4

DESKTOPS = {
    "gnome": Gnome,
    "gnome-appindicator": lambda home: Gnome(home, extension=True),
    "sway-waybar": Sway,
    "weston": Weston,
    "x11-tint2": Tint2,
    "x11-xfce4": Xfce4,
}


def main():
    name, programs = sys.argv[1], Path(sys.argv[2])
    home = Path.home()
    for folder in ("run", "pictures"):
        (home / folder).mkdir(mode=0o700)
    os.environ |= {
        "XDG_RUNTIME_DIR": str(home / "run"),
        "XDG_DATA_DIRS": f"{programs / 'share'}:/usr/local/share:/usr/share",
    }
    quillon = Quillon(programs, home)
    quillon.prepare()
    answers = Questions(DESKTOPS[name](home), quillon, home / "pictures").answer()
    (home / "answers.json").write_text(json.dumps(answers))


main()
