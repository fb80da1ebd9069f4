"""A virtual X11 display: with openbox and a panel it is a desktop, and other desktops can run in a window of it."""

import os
import re
import subprocess

from session import SCREEN, ask, eventually, play_dark_portal, start


class Display:
    """Xvfb, with pointer and keyboard through XTEST."""

    def __init__(self):
        reader, writer = os.pipe()
        subprocess.Popen(["Xvfb", "-displayfd", str(writer), "-screen", "0", "x".join(map(str, (*SCREEN, 24))),
                          "-nolisten", "tcp", "-noreset"], pass_fds=[writer], stdin=subprocess.DEVNULL,
                         stderr=subprocess.DEVNULL)
        os.close(writer)
        with open(reader, encoding="utf-8") as answer:
            os.environ["DISPLAY"] = f":{answer.readline().strip()}"

    def picture(self, file):
        ask("import", "-window", "root", file)

    def click(self, x, y):
        ask("xdotool", "mousemove", x, y, "click", "1")

    def point(self, x, y):
        ask("xdotool", "mousemove", x, y)

    def key(self, name):
        ask("xdotool", "key", name)


class X11(Display):
    tells_windows = True
    window_is_item = False

    def __init__(self, panel):
        super().__init__()
        os.environ["XDG_SESSION_TYPE"] = "x11"
        ask("display", "-size", "x".join(map(str, SCREEN)), "-window", "root", "xc:#445566")
        start(["openbox"])
        eventually(lambda: "window id" in ask("xprop", "-root", "-notype", "_NET_SUPPORTING_WM_CHECK"))
        start(panel)
        eventually(lambda: self.work_area() != (0, 0, *SCREEN))

    def work_area(self):
        numbers = re.findall(r"\d+", ask("xprop", "-root", "-notype", "_NET_WORKAREA").partition("=")[2])
        return tuple(map(int, numbers[:4])) if len(numbers) >= 4 else (0, 0, *SCREEN)

    def windows(self):
        """Quillon's, as title, box, whether it is in front and whether it is put away."""
        found = []
        front = ask("xdotool", "getactivewindow")
        for window in ask("xdotool", "search", "--onlyvisible", "--class", "quillon").split():
            place = dict(line.split("=") for line in ask("xdotool", "getwindowgeometry", "--shell", window).splitlines())
            if place:
                box = tuple(int(place[key]) for key in ("X", "Y", "WIDTH", "HEIGHT"))
                found.append({"title": ask("xdotool", "getwindowname", window), "box": box, "front": window == front})
        return found

    def turn_dark(self):
        play_dark_portal()


class Tint2(X11):
    shows_title = "tool tip"

    def __init__(self, home):
        config = home / "tint2rc"
        config.write_text("panel_items = TSC\npanel_size = 100% 32\npanel_position = bottom center horizontal\n"
                          "rounded = 0\nbackground_color = #222222 100\ntime1_format = %H:%M\ntime1_font = Sans 10\n"
                          "systray_padding = 4 2 4\nstrut_policy = follow_size\n")
        super().__init__(["tint2", "-c", config])


class Xfce4(X11):
    shows_title = "tool tip"

    def __init__(self, home):
        super().__init__(["xfce4-panel", "--disable-wm-check"])
