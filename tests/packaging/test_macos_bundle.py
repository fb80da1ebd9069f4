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

    def test_every_string_table_is_a_localization(self):
        codes = {path.stem.removeprefix("quillon_") for path in (ROOT / "resources" / "strings").glob("*.ts")}
        named = {"pt_BR": "pt-BR", "zh_CN": "zh-Hans"}
        self.assertEqual(set(read("Info.plist")["CFBundleLocalizations"]), {named.get(code, code) for code in codes})


class IconTest(unittest.TestCase):
    def test_every_size_is_there_and_drawn_as_another_reader_finds_it(self):
        with tempfile.TemporaryDirectory() as folder:
            drawing, icon = Path(folder, "corner.svg"), Path(folder, "Quillon.icns")
            drawing.write_text('<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16">'
                               '<rect width="8" height="8" fill="#ff8000"/></svg>')
            subprocess.run([MAKE_ICNS, drawing, icon], check=True)
            header = rb"(ic\d\d)....\x89PNG\r\n\x1a\n....IHDR(....)(....)"  # PNG specification, "IHDR Image header"
            self.assertEqual(PIXELS_OF_PNG, {kind.decode(): int.from_bytes(width) for kind, width, height in
                                             re.findall(header, icon.read_bytes(), re.DOTALL) if width == height})
            subprocess.run(["icns2png", "-x", "-o", folder, icon], check=True, capture_output=True)
            for side in (16, 32, 256, 512, 1024):
                picture = icon.with_name(f"Quillon_{side}x{side}x32.png")
                for at, color in ((side // 4, "#FF8000FF"), (side * 3 // 4, "#00000000")):
                    pixel = subprocess.run(["convert", picture, "-depth", "8", "-crop", f"1x1+{at}+{at}", "txt:-"],
                                           check=True, capture_output=True, text=True).stdout
                    self.assertIn(color, pixel, picture.name)


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0], *sys.argv[3:]])
