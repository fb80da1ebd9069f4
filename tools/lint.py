#!/usr/bin/env python3
"""Checks what no compiler sees: which layer includes which, where the clock is asked, where systems are told apart.

usage: lint.py ROOT; prints one line for each finding, exit status 1 when there is any.
"""

import re
import sys
from pathlib import Path

# Layers of the application: each may include those before it.
LAYERS = ["platform/core", "platform/session", "platform/net", "platform/tray", "platform/statusnotifier",
          "platform/ui", "common/core", "common/ui", "tmcontrol", "schedule", "run", "settings", "app", "menubar", "quillon"]
CORE = {"platform/core", "common/core", "tmcontrol", "schedule", "run"}
ALLOWED = {layer: {before for before in LAYERS[:index] if layer not in CORE or before in CORE}
           for index, layer in enumerate(LAYERS)}
# Programs that use a part of them.
ALLOWED["quillonctl"] = CORE | {"platform/tray"}
ALLOWED["helper"] = {"platform/core", "platform/session"}
ALLOWED["timemachine"] = {"platform/core"}
ALLOWED["disks"] = {"platform/core", "platform/session", "platform/tray", "platform/ui", "common/core", "tmcontrol"}

# The command line writes nothing, so it must not reach the object that does.
FORBIDDEN_HEADERS = {"quillonctl": {"DataManager.h"}}
# Core layers don't link these, but Debian's layout lets <QtGui/QImage> be found all the same.
QT_MODULES_BEYOND_CORE = ("QtGui", "QtWidgets", "QtNetwork", "QtDBus", "QtSvg")
CLOCKLESS = (set(LAYERS) | {"disks"}) - {"platform/core", "platform/session", "platform/ui", "quillon"}
CLOCK = re.compile(r"\b(QDateTime::current\w*|QDate::currentDate|QTime::currentTime|(?:system|steady)_clock::now"
                   r"|QTimer|QElapsedTimer|QDeadlineTimer)\b")
SYSTEM_SWITCH = re.compile(r"^\s*#\s*(?:if|ifdef|ifndef|elif)\b.*\b(Q_OS_\w+|__APPLE__|__linux__)\b")
INCLUDE = re.compile(r'^\s*#\s*include\s*(?:"([^"]+)"|<([^>]+)>)')
COMMENTS_AND_TEXTS = re.compile(r'//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"', re.DOTALL)
LONG_FILE = 420


class Tree:
    def __init__(self, root):
        self._source = root / "src"
        self._files = sorted(path for ending in ("cpp", "h", "mm") for path in self._source.rglob(f"*.{ending}"))
        self._headers = {}
        for path in self._files:
            if path.suffix == ".h":
                self._headers.setdefault(path.name, set()).add(self._layer(path))
        self.warnings = []

    def findings(self):
        found = []
        for path in self._files:
            text = path.read_text(encoding="utf-8")
            lines = text.count("\n")
            if lines > LONG_FILE:
                self.warnings.append(f"{self._name(path)}: {lines} lines; does the class do one job?")
            layer = self._layer(path)
            if layer is None:
                found.append(f"{self._name(path)}: its folder is no layer that tools/lint.py knows")
                continue
            found += [f"{self._name(path)}:{line}: {what}" for line, what in self._in_file(path, layer, text)]
        return found

    def _in_file(self, path, layer, text):
        code = COMMENTS_AND_TEXTS.sub(lambda part: "\n" * part[0].count("\n"), text)
        for number, (line, bare) in enumerate(zip(text.split("\n"), code.split("\n")), 1):
            if include := INCLUDE.match(line):
                yield from ((number, what) for what in self._about_include(layer, *include.groups()))
            if (switch := SYSTEM_SWITCH.match(bare)) and not path.stem.endswith(("_linux", "_macos")):
                yield number, f"{switch[1]} belongs into a file named *_linux or *_macos"
            if (clock := CLOCK.search(bare)) and layer in CLOCKLESS:
                yield number, f"{clock[1]}: time comes from the run loop here"

    def _about_include(self, layer, own, foreign):
        if own:
            name = own.rpartition("/")[2]
            owners = self._headers.get(name, set())
            if owners and not owners & (ALLOWED[layer] | {layer}):
                yield f"{layer} must not include {name} of {' or '.join(map(str, owners))}"
            if name in FORBIDDEN_HEADERS.get(layer, ()):
                yield f"{layer} must not include {name}"
        elif layer in CORE or layer in ("quillonctl", "timemachine"):
            if foreign.startswith(QT_MODULES_BEYOND_CORE):
                yield f"{layer} is a core layer and must not include <{foreign}>"

    def _layer(self, path):
        folder = path.parent.relative_to(self._source).as_posix()
        return next((layer for layer in ALLOWED if folder == layer or folder.startswith(layer + "/")), None)

    def _name(self, path):
        return path.relative_to(self._source.parent).as_posix()


def main():
    tree = Tree(Path(sys.argv[1]))
    found = tree.findings()
    for warning in tree.warnings:
        print(f"warning: {warning}")
    for finding in found:
        print(finding)
    print(f"lint: {len(found)} findings")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
