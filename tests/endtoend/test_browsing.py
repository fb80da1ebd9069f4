"""An older version of a file, looked for in the window of the backups and restored beside the newer one, by keyboard.

usage: test_browsing.py BUILD
"""

import installation
from screen import Atspi

OLDER, NEWER = "As it was.\n", "As it is now, and longer.\n"


class Browsing(installation.InstalledProgramsTest):
    def test_an_older_version_comes_back_beside_the_newer_one(self):
        self.back_up_both()
        window = self.installation.start("quillon-browse")
        self.search_in_all_backups("letter")
        self.select_version_of(len(OLDER))
        self.press("ctrl+r", "push button", "Restore")
        self.press("Return", "push button", "Keep Both")
        self.press("Return", "push button", "Close")
        self.press("Return", "tree", "Files in the backup")
        window.terminate()
        self.see_end(window)

        beside, = self.letter.parent.glob("letter (restored *).txt")
        self.assertEqual((self.letter.read_text(), beside.read_text()), (NEWER, OLDER))

    def back_up_both(self):
        """Of an hour only the last backup is kept, unless one has a folder that the later ones lack."""
        disk = self.installation.disk
        attic = disk.folder / "Attic"
        attic.mkdir()
        (attic / "lamp").write_text("old")
        self.letter = disk.documents / "letter.txt"
        self.letter.write_text(OLDER)
        disk.tmutil("addsource", str(attic))
        disk.tmutil("startbackup", "--block")
        disk.tmutil("removesource", str(attic))
        self.letter.write_text(NEWER)
        disk.tmutil("startbackup", "--block")

    def search_in_all_backups(self, name):
        self.screen.see_focused("tree", "Files in the backup")
        self.press("ctrl+f", "text", "Search for names")
        everywhere = self.press("Tab", "check box", "In all backups")
        self.screen.press("space")
        self.screen.wait_for("not in all backups",
                             lambda: everywhere.get_state_set().contains(Atspi.StateType.CHECKED))
        self.press("shift+Tab", "text", "Search for names")
        self.screen.press(*name)
        self.screen.wait_for("not found in both backups",
                             lambda: len(list(self.screen.all("table cell", "letter.txt"))) == 2)
        self.press("Return", "tree", "Files in the backup")

    def select_version_of(self, size):
        if self.selected_size() != size:
            self.screen.press("Down")
            self.screen.wait_for("the older version is not selected", lambda: self.selected_size() == size)

    def selected_size(self):
        """In bytes; stands in the column behind the name."""
        name = self.screen.see_focused("table cell", "letter.txt")
        shown = name.get_parent().get_child_at_index(name.get_index_in_parent() + 1).get_name()
        return int(shown.removesuffix(" bytes"))

    def press(self, key, role, name):
        """Presses a key; the widget that it leads to."""
        self.screen.press(key)
        return self.screen.see_focused(role, name)


if __name__ == "__main__":
    installation.run()
