"""A desktop with a tray, and a user who looks at it through the accessibility tree and types: a click on what moves just
then would be lost."""

import os
import re
import subprocess
import time
from pathlib import Path

import gi

import desktop as desktops

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib

PATIENCE = 240  # seconds; the bound only ends a test that hangs
CLICK_IS_LOST = 20  # seconds
LAST_LINES = 40  # of the log
LARGEST_ICON = 64


class Screen:
    """`folder` is short-lived and private; `log` takes what the desktop's own programs say."""

    def __init__(self, folder, log):
        desktop = desktops.start_virtual(folder, log)
        # The accessibility bus and its registry are found by these, and started by the first who asks for them.
        os.environ.update(desktop.environment | {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"})
        Atspi.init()
        Atspi.get_desktop(0).get_child_count()
        self._log = Path(log.name)
        self._focused = None
        self._listener = Atspi.EventListener.new(self._focus_has_moved)
        self._listener.register("object:state-changed:focused")
        subprocess.Popen(["tint2"], stdout=log, stderr=log, start_new_session=True)

    def wait_for(self, what, condition, seconds=PATIENCE):
        """The condition's first true value."""
        deadline = time.monotonic() + seconds
        while not (value := condition()):
            if time.monotonic() > deadline:
                raise AssertionError(f"{what}\n{self.report()}")
            GLib.MainContext.default().iteration(False)  # what has changed is told in events
            time.sleep(0.02)
        return value

    def see(self, role, name):
        """The first widget on the screen of that role and with a name that begins like this."""
        return self.wait_for(f"no {role} “{name}” on the screen", lambda: next(self.all(role, name), None))

    def see_focused(self, role, name):
        """The same of the one that the keyboard is on."""
        return self.wait_for(f"the keyboard is on no {role} “{name}”",
                             lambda: next(filter(is_focused, self.all(role, name)), None))

    def all(self, role, name):
        """Those on the screen now."""
        screen = Atspi.get_desktop(0)
        for index in range(screen.get_child_count()):
            yield from widgets(screen.get_child_at_index(index), role, name)

    def open_menu(self):
        """The menu of the icon in the tray. It is found by what the keyboard is on: Qt does not list open menus."""
        self._focused = None
        self.wait_for("the icon in the tray opens no menu", self._opens_menu)
        self.press("Down")
        return self.wait_for("no open menu", self._focused_menu)

    def choose(self, name):
        """Goes to an item of the tray icon's menu and presses it: while a menu changes, no place in it is certain."""
        menu = self.open_menu()
        for _ in range(menu.get_child_count()):
            if self._focused.get_name().startswith(name):
                self.press("Return")
                return self.wait_for("the menu stays open", lambda: not self._has_menu())
            self._focused = None
            self.press("Down")
            self.wait_for("the keyboard is on no item of the menu", self._focused_menu)
        raise AssertionError(f"no menu item “{name}”\n{self.report()}")

    def go_to(self, widget):
        """Brings the keyboard to a widget."""
        widget.get_component_iface().grab_focus()
        self.wait_for(f"the keyboard does not come to “{widget.get_name()}”", lambda: is_focused(widget))

    def press(self, *keys):
        subprocess.run(["xdotool", "key", *keys], check=True)

    def report(self):
        """What is seen, and what the desktop's programs have said."""
        seen = (f"{'  ' * depth}{widget.get_role_name()} “{widget.get_name()}”{' (keyboard)' * is_focused(widget)}"
                for depth, widget in showing(Atspi.get_desktop(0)))
        said = self._log.read_text(errors="replace").splitlines()[-LAST_LINES:]
        return "\n".join(["on the screen:", *seen, "log:", *said])

    def _focus_has_moved(self, event):
        if event.detail1:
            self._focused = event.source

    def _focused_menu(self):
        try:
            return "menu item" in self._focused.get_role_name() and self._focused.get_parent()
        except (AttributeError, GLib.Error):  # nothing yet, or something that has gone
            return None

    def _opens_menu(self):
        """Clicks on the icon. A tray that arranges its icons just then loses the click: then nothing comes of it."""
        x, y = self.wait_for("no icon in the tray", self._tray_icon)
        subprocess.run(["xdotool", "mousemove", str(x), str(y), "click", "1"], check=True)
        deadline = time.monotonic() + CLICK_IS_LOST
        while not (opened := self._has_menu()) and time.monotonic() < deadline:
            time.sleep(0.02)
        return opened

    def _has_menu(self):
        """Whether one is on the screen: from then on it has the keyboard. No window manager puts a frame around it."""
        return any(width > LARGEST_ICON and "IsViewable" in _told_by_x("-id", window)
                   for window, width, *_ in _windows_of_quillon("-children"))

    def _tray_icon(self):
        """The middle of the icon that the application has put into the tray."""
        for _, width, height, x, y in _windows_of_quillon("-tree"):
            if 1 < width <= LARGEST_ICON:
                return x + width // 2, y + height // 2
        return None


def _windows_of_quillon(which):
    """Identifier, size and place of each."""
    windows = re.findall(r'(0x\w+) .*"Quillon"\) +(\d+)x(\d+)\+-?\d+\+-?\d+ +\+(\d+)\+(\d+)',
                         _told_by_x("-root", which))
    return [(window, *map(int, numbers)) for window, *numbers in windows]


def _told_by_x(*arguments):
    """Nothing where a window goes while it looks."""
    return subprocess.run(["xwininfo", *arguments], capture_output=True, text=True).stdout


def is_focused(widget):
    try:
        return widget.get_state_set().contains(Atspi.StateType.FOCUSED)
    except GLib.Error:  # it has gone
        return False


def showing(widget, depth=0):
    """The widget and all inside of it that are shown, with their depths. The desktop itself counts as no widget."""
    try:
        if depth and widget.get_state_set().contains(Atspi.StateType.SHOWING):
            yield depth, widget
        for index in range(widget.get_child_count()):
            if child := widget.get_child_at_index(index):
                yield from showing(child, depth + 1)
    except GLib.Error:  # it has gone while it was looked at
        return


def widgets(parent, role, name):
    """Those of that role, and with a name that begins like this, that are shown inside of the parent."""
    for _, widget in showing(parent, 1):
        if widget.get_role_name() == role and widget.get_name().startswith(name):
            yield widget
