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
    def test_the_versions_are_those_that_the_program_shows(self):
        version = re.search(r"project\(Quillon VERSION (\S+)", (ROOT / "CMakeLists.txt").read_text())[1]
        for name in ("Info.plist", "HelperInfo.plist"):
            bundle = read(name)
            self.assertEqual(bundle["CFBundleShortVersionString"], version)
            self.assertRegex(bundle["CFBundleVersion"], r"^\d+(\.\d+)*$")
            self.assertRegex(bundle["LSMinimumSystemVersion"], r"^\d+\.\d+$")

    def test_the_code_knows_the_bundles_by_their_identifiers(self):
        for name, source in (("Info.plist", "platform/core/defaults/UserDefaultsStore_macos.cpp"),
                             ("HelperInfo.plist", "platform/session/LoginItem_macos.cpp")):
            self.assertIn(f'CFSTR("{read(name)["CFBundleIdentifier"]}")', (ROOT / "src" / source).read_text())

    def test_no_bundle_shows_itself_in_the_dock_and_one_may_run_the_settings_script(self):
        self.assertIs(read("Info.plist")["LSUIElement"], True)
        self.assertIs(read("HelperInfo.plist")["LSBackgroundOnly"], True)
        rights = plistlib.loads((ROOT / "resources" / "macos" / "Quillon.entitlements").read_bytes())
        self.assertEqual(rights, {"com.apple.security.automation.apple-events": True})

    def test_every_string_table_is_a_localization(self):
        codes = {path.stem.removeprefix("quillon_") for path in (ROOT / "resources" / "strings").glob("*.ts")}
        named = {"pt_BR": "pt-BR", "zh_CN": "zh-Hans"}
        self.assertEqual(set(read("Info.plist")["CFBundleLocalizations"]), {named.get(code, code) for code in codes})


class IconTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.icon = Path(folder.name, "Quillon.icns")

    def make(self, drawing):
        return subprocess.run([MAKE_ICNS, drawing, self.icon], stderr=subprocess.DEVNULL, check=False).returncode

    def test_every_size_is_there_and_drawn_as_another_reader_finds_it(self):
        drawing = self.icon.with_name("corner.svg")
        drawing.write_text('<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16">'
                           '<rect width="8" height="8" fill="#ff8000"/></svg>')
        self.assertEqual(self.make(drawing), 0)
        header = rb"(ic\d\d)....\x89PNG\r\n\x1a\n....IHDR(....)(....)"  # PNG specification, "IHDR Image header"
        self.assertEqual(PIXELS_OF_PNG, {kind.decode(): int.from_bytes(width) for kind, width, height in
                                         re.findall(header, self.icon.read_bytes(), re.DOTALL) if width == height})
        subprocess.run(["icns2png", "-x", "-o", self.icon.parent, self.icon], check=True, capture_output=True)
        for side in (16, 32, 256, 512, 1024):
            picture = self.icon.with_name(f"Quillon_{side}x{side}x32.png")
            for at, color in ((side // 4, "#FF8000FF"), (side * 3 // 4, "#00000000")):
                pixel = subprocess.run(["convert", picture, "-depth", "8", "-crop", f"1x1+{at}+{at}", "txt:-"],
                                       check=True, capture_output=True, text=True).stdout
                self.assertIn(color, pixel, picture.name)

    def test_what_is_no_drawing_is_refused_and_nothing_written(self):
        self.assertEqual(self.make(self.icon.with_name("absent.svg")), 1)
        self.assertFalse(self.icon.exists())


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0], *sys.argv[3:]])
