"""The bundles for macOS: their property lists, and the icon file.

usage: test_macos_bundle.py LISTS MAKE_ICNS [TEST...]; LISTS is the folder with the written lists, MAKE_ICNS the program
that makes the icon.
"""

import plistlib
import re
import struct
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

    def test_no_bundle_shows_itself_in_the_dock(self):
        self.assertIs(read("Info.plist")["LSUIElement"], True)
        self.assertIs(read("HelperInfo.plist")["LSBackgroundOnly"], True)

    def test_every_string_table_is_a_localization(self):
        codes = {path.stem.removeprefix("quillon_") for path in (ROOT / "resources" / "strings").glob("*.ts")}
        named = {"pt_BR": "pt-BR", "zh_CN": "zh-Hans"}
        self.assertEqual(set(read("Info.plist")["CFBundleLocalizations"]), {named.get(code, code) for code in codes})

    def test_the_entitlements_can_be_read(self):
        rights = plistlib.loads((ROOT / "resources" / "macos" / "Quillon.entitlements").read_bytes())
        self.assertEqual(rights, {"com.apple.security.automation.apple-events": True})


class IconTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.icon = Path(folder.name, "Quillon.icns")

    def make(self, drawing):
        return subprocess.run([MAKE_ICNS, drawing, self.icon], capture_output=True, text=True, check=False)

    def elements(self):
        family = self.icon.read_bytes()
        self.assertEqual(struct.unpack(">4sI", family[:8]), (b"icns", len(family)))
        found, at = {}, 8
        while at < len(family):
            kind, size = struct.unpack(">4sI", family[at:at + 8])
            found[kind.decode()] = family[at + 8:at + size]
            at += size
        self.assertEqual(at, len(family))
        return found

    def test_the_application_s_icon_is_there_in_every_size(self):
        self.assertEqual(self.make(ROOT / "resources/icon/com.Orvane.Quillon.svg").returncode, 0)
        elements = self.elements()
        for kind, side in PIXELS_OF_PNG.items():
            png = elements[kind]
            self.assertEqual(png[:8], b"\x89PNG\r\n\x1a\n")
            self.assertEqual(struct.unpack(">II", png[16:24]), (side, side), kind)
        self.assertEqual(set(elements), PIXELS_OF_PNG.keys() | {"is32", "s8mk", "il32", "l8mk"})

    def test_another_reader_finds_the_small_sizes_as_they_were_drawn(self):
        drawing = self.icon.with_name("corner.svg")
        drawing.write_text('<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16">'
                           '<rect width="8" height="8" fill="#ff8000"/><rect x="8" y="8" width="8" height="8"'
                           ' fill="#0040c0"/></svg>')
        self.assertEqual(self.make(drawing).returncode, 0)
        subprocess.run(["icns2png", "-x", "-o", self.icon.parent, self.icon], check=True, capture_output=True)
        for side in (16, 32):
            picture = self.icon.with_name(f"Quillon_{side}x{side}x32.png")
            quarter, far = side // 4, side * 3 // 4
            text = subprocess.run(["convert", picture, "-depth", "8", "-crop", f"{far + 1}x{far + 1}+0+0", "txt:-"],
                                  check=True, capture_output=True, text=True).stdout
            colors = dict(re.findall(r"^(\d+,\d+): \S+ +(#\w+)", text, re.MULTILINE))
            self.assertEqual([colors[f"{x},{y}"] for x, y in ((quarter, quarter), (far, far), (quarter, far))],
                             ["#FF8000FF", "#0040C0FF", "#00000000"])

    def test_what_is_no_drawing_is_refused_and_nothing_written(self):
        made = self.make(self.icon.with_name("absent.svg"))
        self.assertEqual(made.returncode, 1)
        self.assertIn("cannot be made of", made.stderr)
        self.assertFalse(self.icon.exists())


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0], *sys.argv[3:]])
