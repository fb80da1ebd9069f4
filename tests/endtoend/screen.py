"""A desktop with a tray, and a user who looks at it through the accessibility tree, clicks and types."""

import os
import re
import subprocess
import time

import gi

import desktop as desktops

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib

PATIENCE = 240  # seconds; the bound only ends a test that hangs


def wait_for(what, condition, seconds=PATIENCE):
    """The condition's first true value."""
    deadline = time.monotonic() + seconds
    while not (value := condition()):
        if time.monotonic() > deadline:
            raise AssertionError(what)
        GLib.MainContext.default().iteration(False)  # what has changed is told in events
        time.sleep(0.02)
    return value


class Screen:
    """`folder` is short-lived and private; `log` takes what the desktop's own programs say."""

    def __init__(self, folder, log):
        desktop = desktops.start_virtual(folder, log)
        # The accessibility bus and its registry are found by these, and started by the first who asks for them.
        os.environ.update(desktop.environment | {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"})
        Atspi.init()
        Atspi.get_desktop(0).get_child_count()
        self._focused = None
        self._listener = Atspi.EventListener.new(self._focus_has_moved)
        self._listener.register("object:state-changed:focused")
        subprocess.Popen(["tint2"], stdout=log, stderr=log, start_new_session=True)

    def see(self, role, name):
        """The first widget on the screen of that role and with a name that begins like this."""
        return wait_for(f"no {role} “{name}” on the screen", lambda: next(self.all(role, name), None))

    def all(self, role, name):
        """Those on the screen now."""
        screen = Atspi.get_desktop(0)
        for index in range(screen.get_child_count()):
            yield from widgets(screen.get_child_at_index(index), role, name)

    def open_menu(self):
        """The menu of the icon in the tray. It is found by what the keyboard is on: Qt does not list open menus."""
        self.click_at(*wait_for("no icon in the tray", self._tray_icon))
        self._focused = None
        self.press("Down")
        return wait_for("no open menu", self._focused_menu)

    def choose(self, name):
        """Clicks on an item of the tray icon's menu."""
        item = next(widgets(self.open_menu(), "menu item", name), None)
        if not item:
            raise AssertionError(f"no menu item “{name}”")
        self.click(item)

    def click(self, widget):
        self.click_begin(widget, widget.get_extents(Atspi.CoordType.SCREEN).width // 2)

    def click_begin(self, widget, right=10):
        place = widget.get_extents(Atspi.CoordType.SCREEN)
        self.click_at(place.x + right, place.y + place.height // 2)

    def click_at(self, x, y):
        subprocess.run(["xdotool", "mousemove", str(x), str(y), "click", "1"], check=True)

    def press(self, *keys):
        subprocess.run(["xdotool", "key", *keys], check=True)

    def _focus_has_moved(self, event):
        if event.detail1:
            self._focused = event.source

    def _focused_menu(self):
        try:
            return "menu item" in self._focused.get_role_name() and self._focused.get_parent()
        except (AttributeError, GLib.Error):  # nothing yet, or something that has gone
            return None

    def _tray_icon(self):
        """The middle of the icon that the application has put into the tray."""
        tree = subprocess.run(["xwininfo", "-root", "-tree"], capture_output=True, text=True, check=True).stdout
        largest_icon = 64
        for width, height, x, y in re.findall(r'"Quillon"\) +(\d+)x(\d+)\+\d+\+\d+ +\+(\d+)\+(\d+)', tree):
            if 1 < int(width) <= largest_icon:
                return int(x) + int(width) // 2, int(y) + int(height) // 2
        return None


def widgets(parent, role, name):
    """Those of that role, and with a name that begins like this, that are shown inside of the parent."""
    try:
        if (parent.get_role_name() == role and parent.get_name().startswith(name)
                and parent.get_state_set().contains(Atspi.StateType.SHOWING)):
            yield parent
        for index in range(parent.get_child_count()):
            if child := parent.get_child_at_index(index):
                yield from widgets(child, role, name)
    except GLib.Error:  # it has gone while it was looked at
        return
