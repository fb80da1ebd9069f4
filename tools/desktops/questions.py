"""What is asked of Quillon on every desktop, row by row, with a picture of each scene."""

import sys
import time

from accessibility import is_active, press, shows
from session import brightness, changed_box, eventually, stop

WELCOME, SETTINGS, HELP, DISKS = "Welcome to Quillon", "Add Rule", "Retry After a Missed Backup", "Time Machine"
STILL = 0.5  # seconds between two pictures that are the same once a scene is drawn
ARROW = 16  # pixels around a popover's body
SOON = 20  # seconds for what should come and may not


class Questions:
    def __init__(self, desktop, quillon, folder):
        self.desktop = desktop
        self.quillon = quillon
        self.folder = folder
        self.empty = self.picture("empty", still=3)  # panels come bit by bit

    def answer(self):
        said = {}
        for rows, question in ((("item visible", "new alert in front"), self.first_start),
                               (("second start, alert waiting",), self.alert_behind),
                               (("title",), self.title),
                               (("settings placed", "closing"), self.settings),
                               (("menu by mouse",), self.menu),
                               (("second start, item minimised",), self.minimised),
                               (("dark",), self.dark)):
            for row, answer in zip(rows, question(), strict=True):
                said[row] = answer
                print(f"{time.strftime('%T')} desktops: {row}: {answer}", file=sys.stderr, flush=True)
        self.quillon.end()
        return said

    def first_start(self):
        self.quillon.run()
        eventually(lambda: shows(self.quillon.process, WELCOME))
        front = self.comes(lambda: self.is_in_front(WELCOME))
        with_alert = self.picture("alert")
        item = self.item_box(with_alert)
        return yes(item), yes(front)

    def title(self):
        before = self.picture("idle")
        item = self.item_box(before)
        if self.desktop.shows_title != "tool tip":
            return (yes(item and item[2] > 1.5 * item[3]),)  # beside the icon
        if not item:
            return ("no",)
        self.desktop.point(*middle(item))
        told = self.comes(lambda: changed_box(before, self.picture("tooltip")))
        self.desktop.point(*self.free_place())
        return ("yes: tool tip" if told else "no",)

    def alert_behind(self):
        disks = self.quillon.run_disks()
        covered = self.comes(lambda: is_active(disks, DISKS) and not self.is_in_front(WELCOME))
        self.picture("alert-behind")
        ended = self.quillon.run_again()
        front = self.comes(lambda: self.is_in_front(WELCOME))
        self.picture("second-start-alert")
        stop(disks)
        press(self.quillon.process, "Close")
        eventually(lambda: not shows(self.quillon.process, WELCOME))
        return ("not here: nothing covers it" if not covered else yes(ended == 0 and front),)

    def settings(self):
        before = self.picture("before-settings")
        self.quillon.run_again("--settings")
        shown = self.comes(lambda: shows(self.quillon.process, SETTINGS))
        box = changed_box(before, self.picture("settings"))
        if self.desktop.tells_windows:
            box = self.window_box("Settings")
        placed = shown and box and is_inside(box, self.desktop.work_area())
        press(self.quillon.process, "Help")
        self.picture("help")
        press(self.quillon.process, "Close")
        self.comes(lambda: not shows(self.quillon.process, HELP))
        return "yes" if placed else f"no: {box}", self.closing()

    def closing(self):
        if self.desktop.key:
            self.desktop.key("Escape")
        else:
            self.desktop.click(*self.free_place())
        return yes(self.comes(lambda: not shows(self.quillon.process, SETTINGS)))

    def menu(self):
        before = self.picture("before-menu")
        item = self.item_box(before)
        if not item:
            return ("no",)
        self.desktop.click(*middle(item))
        opened = self.comes(lambda: is_large(changed_box(before, self.picture("menu"))))
        if self.desktop.key:
            self.desktop.key("Escape")
        else:
            self.desktop.click(*self.free_place())
        return (yes(opened),)

    def minimised(self):
        if not self.desktop.window_is_item:
            return ("not here: the item is in the tray",)
        self.desktop.put_away(self.item_box(self.picture("before-minimised")))
        before = self.picture("minimised")
        self.quillon.run_again("--settings")
        shown = self.comes(lambda: is_large(changed_box(before, self.picture("minimised-settings"))))
        self.closing()
        return (yes(shown),)

    def dark(self):
        self.quillon.end()
        self.desktop.turn_dark()
        before = self.picture("dark-empty")
        self.quillon.run()
        eventually(lambda: shows(self.quillon.process, "Quillon") or not self.desktop.window_is_item)
        self.quillon.run_again("--settings")
        self.comes(lambda: shows(self.quillon.process, SETTINGS))
        box = changed_box(before, self.picture("dark"))
        return (yes(box and brightness(self.folder / "dark.png", box) < 0.4),)

    def item_box(self, picture):
        """Where the item is."""
        if self.desktop.window_is_item:
            return self.window_box("Quillon") if self.desktop.tells_windows else changed_box(self.empty, picture)
        if hasattr(self.desktop, "item_box"):
            return self.desktop.item_box()
        box = changed_box(self.empty, picture, outside=self.desktop.work_area())
        if not box:
            return None
        x, y, width, height = box  # what stands to the left of the item has made room for it
        side = min(width, height)
        return x + width - side, y, side, height

    def window_box(self, title):
        return next((window["box"] for window in self.desktop.windows() if window["title"] == title), None)

    def is_in_front(self, text):
        return is_active(self.quillon.process, text)

    def free_place(self):
        x, y, _, height = self.desktop.work_area()
        return x + 20, y + height - 20

    def comes(self, question):
        return eventually(question, SOON)

    def picture(self, scene, still=STILL):
        """Of the whole screen, once nothing has changed any more."""
        file, before = self.folder / f"{scene}.png", self.folder.parent / "before.png"
        self.desktop.picture(file)
        for _ in range(int(SOON / still)):
            time.sleep(still)
            file.replace(before)
            self.desktop.picture(file)
            if not changed_box(before, file):
                break
        return file


def yes(truth):
    return "yes" if truth else "no"


def middle(box):
    x, y, width, height = box
    return round(x + width / 2), round(y + height / 2)


def is_inside(box, area):
    """Arrow and shadow may lie over the panel that the arrow points at."""
    return all(area[side] - ARROW <= box[side] and box[side] + box[side + 2] <= area[side] + area[side + 2] + ARROW
               for side in (0, 1))


def is_large(box):
    return bool(box and box[2] > 100 and box[3] > 100)
