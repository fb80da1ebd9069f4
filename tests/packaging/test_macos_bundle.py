"""The bundles for macOS: their property lists, and the icon file.

usage: test_macos_bundle.py LISTS MAKE_ICNS [TEST...]; LISTS is the folder with the written lists, MAKE_ICNS the program
that makes the icon.
"""

import plistlib
import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
LISTS, MAKE_ICNS = Path(sys.argv[1]), sys.argv[2]
PIXELS_OF_PNG = {"ic11": 32, "ic12": 64, "ic07": 128, "ic13": 256, "ic08": 256, "ic14": 512, "ic09": 512, "ic10": 1024}


def read(name):
    return plistlib.loads((LISTS / name).read_bytes())


class PropertyListsTest(unittest.TestCase):
    def test_the_code_knows_the_bundles_by_their_identifiers(self):
        code = (ROOT / "src/common/core/ApplicationIdentity.h").read_text()
        for name, constant in (("Info.plist", "identifier"), ("HelperInfo.plist", "companionIdentifier")):
            self.assertIn(f' {constant}("{read(name)["CFBundleIdentifier"]}")', code)


class IconTest(unittest.TestCase):
    def test_every_size_is_there(self):
        with tempfile.TemporaryDirectory() as folder:
            drawing, icon = Path(folder, "corner.svg"), Path(folder, "Quillon.icns")
            drawing.write_text('<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16">'
                               '<rect width="8" height="8" fill="#ff8000"/></svg>')
            subprocess.run([MAKE_ICNS, drawing, icon], check=True)
            header = rb"(ic\d\d)....\x89PNG\r\n\x1a\n....IHDR(....)(....)"  # PNG specification, "IHDR Image header"
            self.assertEqual(PIXELS_OF_PNG, {kind.decode(): int.from_bytes(width) for kind, width, height in
                                             re.findall(header, icon.read_bytes(), re.DOTALL) if width == height})


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0], *sys.argv[3:]])
