"""Desktops under Wayland: GNOME Shell without a display, sway and weston in a window of Xvfb."""

import json
import os
from pathlib import Path

from session import SCREEN, ask, eventually, play_dark_portal, start
from x11 import Display

KEYS = {"Escape": 0xff1b, "Return": 0xff0d}


def _await_display(name):
    socket = Path(os.environ["XDG_RUNTIME_DIR"]) / name
    if not eventually(socket.exists):
        raise RuntimeError(f"no Wayland display {name}")
    os.environ |= {"WAYLAND_DISPLAY": name, "XDG_SESSION_TYPE": "wayland"}


class Gnome:
    tells_windows = True

    def __init__(self, home, extension=False):
        self.window_is_item = not extension
        self.shows_title = "label" if extension else "window"
        os.environ["XDG_CURRENT_DESKTOP"] = "GNOME"
        extensions = "['ubuntu-appindicators@ubuntu.com']" if extension else "[]"
        for key, value in (("enabled-extensions", extensions), ("welcome-dialog-last-shown-version", "999")):
            ask("gsettings", "set", "org.gnome.shell", key, value)
        ask("gsettings", "set", "org.gnome.desktop.interface", "enable-animations", "false")
        ask("gsettings", "set", "org.gnome.desktop.notifications", "show-banners", "false")
        bus = {"DBUS_SYSTEM_BUS_ADDRESS": os.environ["DBUS_SESSION_BUS_ADDRESS"]}
        start(["/usr/bin/python3", "-m", "dbusmock", "--template", "logind"], **bus)
        eventually(lambda: "true" in ask("gdbus", "call", "--session", "-d", "org.freedesktop.DBus", "-o", "/", "-m",
                                         "org.freedesktop.DBus.NameHasOwner", "org.freedesktop.login1"))
        start(["gnome-shell", "--headless", "--wayland", "--no-x11", "--unsafe-mode", "--virtual-monitor",
               "x".join(map(str, SCREEN)), "--wayland-display", "wayland-q"], **bus)
        _await_display("wayland-q")
        eventually(lambda: self._run("Main.layoutManager._startingUp") is False)
        self._run("Main.overview.hide()")
        eventually(lambda: self._run("Main.overview.visible") is False)
        for kind in ("POINTER", "KEYBOARD"):
            self._device(kind, "")  # a program's first chance to listen to it
        if extension:
            eventually(lambda: self._run("Main.extensionManager.lookup('ubuntu-appindicators@ubuntu.com').state") == 1)

    @staticmethod
    def _run(script):
        """What a line of JavaScript inside the shell gives."""
        answer = ask("gdbus", "call", "--session", "--dest", "org.gnome.Shell", "--object-path", "/org/gnome/Shell",
                     "--method", "org.gnome.Shell.Eval", script)
        done, _, text = answer.strip("()").partition(", ")
        if done != "true" or text == "''":
            return None
        return json.loads(text[1:-1].replace("\\'", "'").replace("\\\\", "\\"))

    def picture(self, file):
        ask("gdbus", "call", "--session", "--dest", "org.gnome.Shell", "--object-path", "/org/gnome/Shell/Screenshot",
            "--method", "org.gnome.Shell.Screenshot.Screenshot", "false", "false", file)

    def work_area(self):
        area = self._run("(() => { const a = Main.layoutManager.getWorkAreaForMonitor(0);"
                         " return [a.x, a.y, a.width, a.height]; })()")
        return tuple(area)

    def windows(self):
        return self._run(
            "global.get_window_actors().map(a => a.meta_window)"
            ".filter(w => /quillon/i.test(w.get_wm_class())).map(w => { const r = w.get_frame_rect();"
            " return {title: w.get_title(), box: [r.x, r.y, r.width, r.height], front: w.has_focus(),"
            " minimized: w.minimized}; })") or []

    def item_box(self):
        return self._run("(() => { for (const name in Main.panel.statusArea) if (name.startsWith('appindicator'))"
                         " { const i = Main.panel.statusArea[name]; return [...i.get_transformed_position(),"
                         " ...i.get_transformed_size()]; } return null; })()")

    def put_away(self, item):
        self._run("global.get_window_actors().map(a => a.meta_window)"
                  ".filter(w => w.get_title() === 'Quillon').forEach(w => w.minimize())")

    def click(self, x, y):
        self._device("POINTER", f"d.notify_absolute_motion(now, {x}, {y})")
        for state in ("PRESSED", "RELEASED"):
            self._device("POINTER", f"d.notify_button(now, Clutter.BUTTON_PRIMARY, Clutter.ButtonState.{state})")

    def key(self, name):
        self._device("KEYBOARD", f"d.notify_keyval(now, {KEYS[name]}, Clutter.KeyState.PRESSED);"
                                 f" d.notify_keyval(now, {KEYS[name]}, Clutter.KeyState.RELEASED)")

    def _device(self, kind, script):
        self._run("(() => { const { Clutter, GLib } = imports.gi; const now = GLib.get_monotonic_time();"
                  f" const d = global.quillon{kind} ??= Clutter.get_default_backend().get_default_seat()"
                  f".create_virtual_device(Clutter.InputDeviceType.{kind}_DEVICE); {script}; return true; }})()")

    def turn_dark(self):
        ask("gsettings", "set", "org.gnome.desktop.interface", "color-scheme", "prefer-dark")


class Sway(Display):
    tells_windows = True
    window_is_item = False
    shows_title = "tool tip"

    def __init__(self, home):
        super().__init__()  # without it there is no pointer for clients to listen to
        os.environ |= {"XDG_CURRENT_DESKTOP": "sway", "QT_QPA_PLATFORM": "wayland"}
        size = "x".join(map(str, SCREEN))
        (home / "sway").write_text(f"output X11-1 resolution {size} bg #445566 solid_color\n")
        (home / "waybar").write_text(json.dumps({"layer": "top", "position": "top", "height": 30,
                                                 "modules-left": ["sway/workspaces"], "modules-right": ["tray"]}))
        start(["sway", "-c", home / "sway"], WLR_BACKENDS="x11", WLR_RENDERER="pixman")
        _await_display("wayland-1")
        os.environ["SWAYSOCK"] = str(eventually(lambda: next(Path(os.environ["XDG_RUNTIME_DIR"]).glob("sway-ipc.*"),
                                                             None)))
        start(["waybar", "-c", home / "waybar"])
        eventually(lambda: self.work_area()[1] > 0)

    @staticmethod
    def _tree():
        return json.loads(ask("swaymsg", "-t", "get_tree") or "{}")

    def work_area(self):
        areas = [tuple(node["rect"][key] for key in ("x", "y", "width", "height"))
                 for node in _nodes(self._tree()) if node.get("type") == "workspace" and node["name"] != "__i3_scratch"]
        return areas[0] if areas else (0, 0, *SCREEN)

    def windows(self):
        return [{"title": node["name"], "box": [node["rect"][key] for key in ("x", "y", "width", "height")],
                 "front": node["focused"]}
                for node in _nodes(self._tree()) if "illon" in (node.get("app_id") or "")]

    turn_dark = staticmethod(play_dark_portal)


def _nodes(node):
    yield node
    for child in node.get("nodes", []) + node.get("floating_nodes", []):
        yield from _nodes(child)


class Weston(Display):
    tells_windows = False
    window_is_item = True
    shows_title = "window"

    def __init__(self, home):
        super().__init__()
        config = home / "weston.ini"
        config.write_text("[shell]\nclock-format=none\n")  # a picture would differ after every minute
        start(["weston", f"--config={config}", "--backend=x11-backend.so", "--use-pixman", "--idle-time=0",
               f"--width={SCREEN[0]}", f"--height={SCREEN[1]}", "--socket=wayland-w"])
        _await_display("wayland-w")
        os.environ["QT_QPA_PLATFORM"] = "wayland"  # the display of X11 is there as well

    def put_away(self, item):
        x, y, width, _ = item
        self.click(x + width - 13, y + 15)  # the frame's button for closing

    @staticmethod
    def work_area():
        return (0, 32, SCREEN[0], SCREEN[1] - 32)  # below its panel

    turn_dark = staticmethod(play_dark_portal)
