#!/usr/bin/env python3
"""Compiles every source of the macOS build to a Mach-O object, on Linux, and looks whether they fit together.

usage: check_macos.py ROOT; exit status 1 when one does not compile, is not part of the build, or wants what is nowhere.

What is compiled, with which warnings, is what CMake says for macOS (preset `macos`); the compiler comes from the npm
package that tools/macos/package-lock.json pins. Linking needs Qt for macOS; in its place the objects' symbols are
compared: this project's own with each other, those of Qt, ICU and libplist with the libraries of the host.
"""

import hashlib
import json
import os
import platform
import re
import shlex
import shutil
import struct
import subprocess
import sys
from pathlib import Path

LINUX_ONLY_FOLDERS = ("tmutil", "disks", "browse")
# <mach-o/loader.h>: MH_MAGIC_64, CPU_TYPE_ARM64, any subtype, MH_OBJECT
MACH_O_OBJECT = struct.Struct("<IIxxxxI")
ARM64_OBJECT = (0xFEEDFACF, 0x0100000C, 1)
LC_SYMTAB = 2
NLIST = struct.Struct("<IBBHQ")  # <mach-o/nlist.h>: nlist_64
N_STAB, N_TYPE, N_EXT, N_UNDF = 0xE0, 0x0E, 0x01, 0x00

HOST_LIBRARIES = ("Qt6Core", "Qt6Gui", "Qt6Widgets", "Qt6Network", "Qt6Sql", "Qt6Svg", "libplist-2.0", "icu-i18n",
                  "icu-uc")
LIBRARY_FILES = {"libplist-2.0": "plist-2.0", "icu-i18n": "icui18n", "icu-uc": "icuuc"}
# C++ but for the standard library, whose names differ between libc++ and libstdc++; libplist; ICU with its version.
COMPARABLE = re.compile(r"__Z(?!.*St3__1)(?!(?:N|NK|T[ISV])?S[ta])(?!T[ISV]?N10__cxxabi)(?!n[aw]|d[al])"
                        r"|_plist_|_u\w+_\d+$")
UNITY_INCLUDE = re.compile(r'^#include "(.+)"$', re.MULTILINE)
BRIDGE = re.compile(r"\d(?:to|from)(?:CF|NS)[A-Z]")


def macos_sources(root):
    """The sources that have to be in the macOS build: all but those for Linux."""
    source = root / "src"
    return {path for ending in ("cpp", "mm") for path in source.rglob(f"*.{ending}")
            if not path.stem.endswith("_linux") and path.relative_to(source).parts[0] not in LINUX_ONLY_FOLDERS}


def objects(build):
    """Objects of the build by their sources, the ones that were generated among them. Several sources may be compiled
    as one, which CMake has written to include them."""
    commands = json.loads((build / "compile_commands.json").read_text(encoding="utf-8"))
    found = {}
    for entry in commands:
        words = shlex.split(entry["command"])
        if Path(entry["file"]).name.startswith("cmake_pch."):
            continue  # headers compiled ahead, which are no object
        source = Path(entry["file"])
        joined = UNITY_INCLUDE.findall(source.read_text()) if source.parent.name == "Unity" else [source]
        found |= dict.fromkeys(map(Path, joined), build / words[words.index("-o") + 1])
    return found


def is_macos_object(path):
    try:
        head = path.read_bytes()[:MACH_O_OBJECT.size]
    except FileNotFoundError:
        return False
    return len(head) == MACH_O_OBJECT.size and MACH_O_OBJECT.unpack(head) == ARM64_OBJECT


def symbols(path):
    """Names of an object's external symbols, and whether it wants them: <mach-o/loader.h>, <mach-o/nlist.h>."""
    data = path.read_bytes()
    commands, = struct.unpack_from("<I", data, 16)
    place = 32
    for _ in range(commands):
        command, size = struct.unpack_from("<II", data, place)
        if command == LC_SYMTAB:
            first, count, texts = struct.unpack_from("<III", data, place + 8)
            for index in range(count):
                text, kind, _section, _description, value = NLIST.unpack_from(data, first + NLIST.size * index)
                if kind & N_EXT and not kind & N_STAB:
                    name = data[texts + text:data.index(b"\0", texts + text)].decode()
                    yield name, kind & N_TYPE == N_UNDF and value == 0
        place += size


def host_symbols():
    """What the host's libraries define, spelt as on macOS."""
    found = set()
    for name in HOST_LIBRARIES:
        folder = subprocess.run(["pkg-config", "--variable=libdir", name], capture_output=True, text=True, check=True)
        library = Path(folder.stdout.strip()) / f"lib{LIBRARY_FILES.get(name, name)}.so"
        listed = subprocess.run(["nm", "-D", "--defined-only", library], capture_output=True, text=True, check=True)
        # The tag of libstdc++'s texts is the host's own.
        found.update("_" + line.split()[-1].partition("@")[0].replace("B5cxx11", "")
                     for line in listed.stdout.splitlines())
    return found


def wanted_in_vain(paths):
    """Symbols that the objects want and nobody has, and how many can't be looked for: those of macOS itself, of its C
    and C++ libraries, and Qt's bridges to them are on no other system."""
    defined, wanted = set(), {}
    for path in paths:
        for name, is_wanted in symbols(path):
            if is_wanted:
                wanted.setdefault(name, path)
            else:
                defined.add(name)
    host = host_symbols()
    missing = {name: path for name, path in wanted.items() if name not in defined and name not in host}
    in_vain = {name: path for name, path in missing.items() if COMPARABLE.match(name) and not BRIDGE.search(name)}
    return in_vain, len(missing) - len(in_vain)


def install_compiler(root):
    folder = root / "build" / "tools" / "macos"
    folder.mkdir(parents=True, exist_ok=True)
    installed, lock = folder / "installed-lock.json", root / "tools" / "macos" / "package-lock.json"
    if installed.exists() and installed.read_bytes() == lock.read_bytes():
        return
    for name in ("package.json", "package-lock.json"):
        shutil.copy(root / "tools" / "macos" / name, folder)
    try:
        subprocess.run(["npm", "ci", "--ignore-scripts", "--no-audit", "--no-fund", "--loglevel=error"], cwd=folder,
                       check=True)
    except (OSError, subprocess.CalledProcessError) as error:
        sys.exit(f"macos: the compiler could not be installed from npm, so nothing was checked: {error}")
    shutil.copy(lock, installed)


def ccache_settings(root):
    tools = root / "tools" / "macos"
    compiler = b"".join((tools / name).read_bytes() for name in ("macos-clang++", "package-lock.json"))
    return {
        # Known by what it is, not by when npm wrote it: what one checkout has compiled serves the others.
        "CCACHE_COMPILERCHECK": f"string:{hashlib.sha256(compiler).hexdigest()}",
        # The compiler itself tells what it has included, so that no file is preprocessed twice.
        "CCACHE_DEPEND": "1",
    }


def main():
    if platform.machine() != "x86_64":
        print("macos: NOT CHECKED: the compiler for macOS is packaged for x86-64 machines only")
        return 0
    root = Path(sys.argv[1]).resolve()
    build = root / "build" / "macos"
    install_compiler(root)
    environment = os.environ | ccache_settings(root)
    if subprocess.run(["cmake", "--preset", "macos"], cwd=root, env=environment, stdout=subprocess.DEVNULL,
                      check=False).returncode:
        sys.exit("macos: CMake cannot configure the build for macOS")
    found = objects(build)
    forgotten = macos_sources(root) - found.keys()
    for path in sorted(forgotten):
        print(f"macos: {path.relative_to(root)} is not part of the build for macOS")
    wanted = sorted(set(found.values()))
    names = [str(path.relative_to(build)) for path in wanted]
    compiled = subprocess.run(["ninja", "-C", str(build), "-k", "0", *names], env=environment, check=False)
    missing = [path for path in wanted if not is_macos_object(path)]
    for path in missing if not compiled.returncode else ():  # else the compiler has said what is wrong
        print(f"macos: {path.relative_to(root)} is no Mach-O object for arm64")
    print(f"macos: {len(wanted) - len(missing)} of {len(wanted)} objects compiled, of {len(found)} sources")
    if forgotten or missing or compiled.returncode:
        return 1
    in_vain, foreign = wanted_in_vain(wanted)
    for name, path in sorted(in_vain.items()):
        print(f"macos: {path.relative_to(build)} wants {name}, which is nowhere")
    print(f"macos: {len(in_vain)} symbols are wanted in vain; {foreign} of macOS itself can't be looked for here")
    return 1 if in_vain else 0


if __name__ == "__main__":
    sys.exit(main())
