"""What can be told of a package by reading it; run by `./dev package --check`.

usage: package PACKAGE; prints every finding, exit status 1 when there is any.
"""

import os
import subprocess
import sys
import tempfile
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]

# The first version of a package in Debian closes the bug that asked for it; this one is not in Debian.
NOT_OURS = "initial-upload-closes-no-bugs"


def complaints(*command, **environment):
    """What a checking tool says when it is not content."""
    told = subprocess.run(command, text=True, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                          env=os.environ | environment)
    return told.stdout if told.returncode else ""


def page_warnings(page):
    """man(1) ends well whatever it warns of."""
    told = subprocess.run(["man", "--warnings", "--local-file", page], stdout=subprocess.DEVNULL,
                          stderr=subprocess.PIPE, text=True,
                          env=os.environ | {"LC_ALL": "C.UTF-8", "MANROFFSEQ": "", "MANWIDTH": "80"})
    return told.stderr


def holds(text, file):
    return text.encode() in file.read_bytes()


def findings(package, tree):
    files = [path for path in tree.rglob("*") if path.is_file()]
    share = tree / "usr" / "share"
    yield complaints("lintian", "--fail-on", "error,warning", "--suppress-tags", NOT_OURS, "--tag-display-limit", "0",
                     "--allow-root", package)
    for entry in sorted(share.glob("applications/*.desktop")):
        yield complaints("desktop-file-validate", entry)
    yield complaints("appstreamcli", "validate-tree", "--no-net", tree)
    for page in sorted(share.glob("man/**/*.gz")):
        yield page_warnings(page)
    for file in files:
        if holds(str(ROOT), file):
            yield f"{file.relative_to(tree)} names the folder that it was built in"


def main():
    package = Path(sys.argv[1])
    with tempfile.TemporaryDirectory() as folder:
        subprocess.run(["dpkg-deb", "--extract", package, folder], check=True)
        tree = Path(folder)
        found = [finding for finding in findings(package, tree) if finding]
        installed = sum(path.stat().st_size for path in tree.rglob("*") if path.is_file())
    for finding in found:
        print(finding)
    print(f"package: {package.name}, {package.stat().st_size // 1024} KiB, {installed // 1024} KiB installed, "
          f"{len(found)} findings")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
