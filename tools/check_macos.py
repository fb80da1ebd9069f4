#!/usr/bin/env python3
"""Compiles every source of the macOS build to a Mach-O object, on Linux.

usage: check_macos.py ROOT; exit status 1 when one does not compile or is not part of the build.

What is compiled, with which warnings, is what CMake says for macOS (preset `macos`); the compiler comes from the npm
package that tools/macos/package-lock.json pins. Linking needs Qt for macOS and is not tried.
"""

import hashlib
import json
import os
import platform
import shlex
import shutil
import struct
import subprocess
import sys
from pathlib import Path

LINUX_ONLY_FOLDERS = ("timemachine", "disks")
# <mach-o/loader.h>: MH_MAGIC_64, CPU_TYPE_ARM64, any subtype, MH_OBJECT
MACH_O_OBJECT = struct.Struct("<IIxxxxI")
ARM64_OBJECT = (0xFEEDFACF, 0x0100000C, 1)


def macos_sources(root):
    """The sources that have to be in the macOS build: all but those for Linux."""
    source = root / "src"
    return {path for ending in ("cpp", "mm") for path in source.rglob(f"*.{ending}")
            if not path.stem.endswith("_linux") and path.relative_to(source).parts[0] not in LINUX_ONLY_FOLDERS}


def objects(build):
    """Objects of the build by their sources, the ones that were generated among them."""
    commands = json.loads((build / "compile_commands.json").read_text(encoding="utf-8"))
    found = {}
    for entry in commands:
        words = shlex.split(entry["command"])
        found[Path(entry["file"])] = build / words[words.index("-o") + 1]
    return found


def is_macos_object(path):
    try:
        head = path.read_bytes()[:MACH_O_OBJECT.size]
    except FileNotFoundError:
        return False
    return len(head) == MACH_O_OBJECT.size and MACH_O_OBJECT.unpack(head) == ARM64_OBJECT


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
    names = [str(path.relative_to(build)) for path in found.values()]
    compiled = subprocess.run(["ninja", "-C", str(build), "-k", "0", *names], env=environment, check=False)
    missing = [path for path in found.values() if not is_macos_object(path)]
    for path in sorted(missing) if not compiled.returncode else ():  # else the compiler has said what is wrong
        print(f"macos: {path.relative_to(root)} is no Mach-O object for arm64")
    print(f"macos: {len(found) - len(missing)} of {len(found)} objects compiled")
    return 1 if forgotten or missing or compiled.returncode else 0


if __name__ == "__main__":
    sys.exit(main())
