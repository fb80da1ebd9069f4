#!/usr/bin/env python3
"""Checks what no compiler sees: which layer includes which, where the clock is asked, where systems are told apart.

usage: lint.py ROOT; prints one line for each finding, exit status 1 when there is any.
"""

import re
import sys
from pathlib import Path

# The command line writes nothing, so it must not reach the object that does.
FORBIDDEN_HEADERS = {"quillonctl": {"DataManager.h"}}
# Modules that Debian's layout lets an include find although the layer does not link them.
QT_MODULES = {"QtGui": "Qt6::Widgets", "QtWidgets": "Qt6::Widgets", "QtNetwork": "Qt6::Network", "QtDBus": "Qt6::DBus",
              "QtSql": "Qt6::Sql", "QtSvg": "Qt6::Svg"}
# Who may ask a clock: the run loop, services of the platform beside it, and the commands, which wait.
WITH_CLOCK = {"platform/core", "platform/session", "platform/ui", "quillonctl", "tmutil"}
CLOCK = re.compile(r"\b(QDateTime::current\w*|QDate::currentDate|QTime::currentTime|(?:system|steady)_clock::now"
                   r"|QTimer|QElapsedTimer|QDeadlineTimer)\b")
SYSTEM_SWITCH = re.compile(r"^\s*#\s*(?:if|ifdef|ifndef|elif)\b.*\b(Q_OS_\w+|__APPLE__|__linux__)\b")
INCLUDE = re.compile(r'^\s*#\s*include\s*(?:"([^"]+)"|<([^>]+)>)')
COMMENTS_AND_TEXTS = re.compile(r'//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"', re.DOTALL)
CLASS = re.compile(r"^(?:class|struct|enum class) ([\w:]+)(?: final)?(?:\s*:[^;{]*)?(?:\s*\{|$)")
NAMESPACE = re.compile(r"^(?:inline )?namespace(?: ([\w:]+))? \{$")
LONG_FILE = 420


TARGET = re.compile(r"^ *quillon_(layer|program)\((\S+)\s+([^\s)]+)([^)]*)\)", re.MULTILINE)
MORE_LINKS = re.compile(r"target_link_libraries\((\S+)\s([^)]*)\)")
MAIN = "/main.cpp"


class Layers:
    """The folders that CMake makes a target of, each a layer, and what a target links, directly or by what it links. A
    program is a layer of one file."""

    def __init__(self, source):
        self._targets = {}
        self._links = {}
        for path in source.rglob("CMakeLists.txt"):
            text = path.read_text(encoding="utf-8")
            for kind, name, folder, links in TARGET.findall(text):
                layer = (path.parent / folder).relative_to(source).as_posix()
                self._targets[layer + MAIN if kind == "program" else layer] = name
                self._links.setdefault(name, set()).update(links.split())
            for name, links in MORE_LINKS.findall(text):
                self._links.setdefault(name, set()).update(links.split())
        self._layers = {target: layer for layer, target in self._targets.items()}

    def layer_of(self, file):
        """The layer that a file belongs to, by its path below the sources; None for none."""
        while file not in self._targets and "/" in file:
            file = file.rpartition("/")[0]
        return file if file in self._targets else None

    def linked(self, layer):
        """Names of all that a layer links."""
        reached, waiting = set(), [self._targets[layer]]
        while waiting:
            for link in self._links.get(waiting.pop(), ()):
                if link not in reached:
                    reached.add(link)
                    waiting.append(link)
        return reached

    def in_one_program(self, *layers):
        return any(set(layers) <= self.allowed(program) for program in self._targets)

    def allowed(self, layer):
        return {self._layers[link] for link in self.linked(layer) if link in self._layers} | {layer}


class Tree:
    def __init__(self, root):
        self._source = root / "src"
        self._layers = Layers(self._source)
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
                found.append(f"{self._name(path)}: its folder belongs to no target")
                continue
            found += [f"{self._name(path)}:{line}: {what}" for line, what in self._in_file(path, layer, text)]
        return found

    def classes_of_one_name(self):
        """Classes that one program may hold and that have one name: the linker takes functions of either for both."""
        known, found = {}, []
        for path in self._files:
            layer = self._layer(path)
            for name in classes(path.read_text(encoding="utf-8")) if layer else ():
                for other, there in known.setdefault(name, []):
                    if self._layers.in_one_program(layer, there):
                        found.append(f"{self._name(path)}: {name} is a class in {self._name(other)} as well")
                known[name].append((path, layer))
        return found

    def _in_file(self, path, layer, text):
        code = COMMENTS_AND_TEXTS.sub(lambda part: "\n" * part[0].count("\n"), text)
        for number, (line, bare) in enumerate(zip(text.split("\n"), code.split("\n")), 1):
            if include := INCLUDE.match(line):
                yield from ((number, what) for what in self._about_include(layer, *include.groups()))
            if (switch := SYSTEM_SWITCH.match(bare)) and not path.stem.endswith(("_linux", "_macos")):
                yield number, f"{switch[1]} belongs into a file named *_linux or *_macos"
            if (clock := CLOCK.search(bare)) and layer.removesuffix(MAIN) not in WITH_CLOCK:
                yield number, f"{clock[1]}: time comes from the run loop here"

    def _about_include(self, layer, own, foreign):
        if own:
            name = own.rpartition("/")[2]
            owners = self._headers.get(name, set())
            if owners and not owners & self._layers.allowed(layer):
                yield f"{layer} must not include {name} of {' or '.join(map(str, owners))}"
            if name in FORBIDDEN_HEADERS.get(layer.removesuffix(MAIN), ()):
                yield f"{layer} must not include {name}"
        elif (module := foreign.partition("/")[0]) in QT_MODULES:
            if QT_MODULES[module] not in self._layers.linked(layer):
                yield f"{layer} links no {module} and must not include <{foreign}>"

    def _layer(self, path):
        return self._layers.layer_of(path.relative_to(self._source).as_posix())

    def _name(self, path):
        return path.relative_to(self._source.parent).as_posix()


def classes(text):
    """Those that other files can see, by their whole names."""
    inside = []
    for line in text.split("\n"):
        if namespace := NAMESPACE.match(line):
            inside.append(namespace[1])
        elif line.startswith("} // namespace"):
            inside.pop()
        elif (found := CLASS.match(line)) and None not in inside:
            yield "::".join([*inside, found[1]])


def main():
    tree = Tree(Path(sys.argv[1]))
    found = tree.findings() + tree.classes_of_one_name()
    for warning in tree.warnings:
        print(f"warning: {warning}")
    for finding in found:
        print(finding)
    print(f"lint: {len(found)} findings")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
