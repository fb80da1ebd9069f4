"""The desktop that a practice run shows itself on: the one found, else a virtual one."""

import os
import socket
import struct
import subprocess
import time

from failure import PracticeFailed

PATIENCE = 600  # seconds; the bound only ends a run whose desktop never comes up, however busy the machine is
SCREEN = "1280x800x24"
BACKGROUND = "gradient:#6d8fb3-#2c3e57"


class Desktop:
    """`environment` is what programs need to be seen there; `name` is for people."""

    def __init__(self, name, environment, pictures):
        self.name = name
        self.environment = environment
        self.pictures = pictures

    def take_picture(self, file):
        """Writes a picture of the whole screen as PNG."""
        taken = subprocess.run(["import", "-window", "root", "png:-"], env=os.environ | self.environment,
                               capture_output=True)
        if taken.returncode != 0:
            raise PracticeFailed(f"no picture of the screen: {taken.stderr.decode(errors='replace').strip()}")
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_bytes(taken.stdout)


def find():
    """The desktop of the caller's session, or None. Wayland lets no program take pictures of the screen."""
    if _wayland_answers():
        return Desktop(f"Wayland display {os.environ['WAYLAND_DISPLAY']}", {}, pictures=False)
    if os.environ.get("DISPLAY") and _succeeds(["xdpyinfo"], os.environ):
        return Desktop(f"X display {os.environ['DISPLAY']}", {}, pictures=True)
    return None


def start_virtual(folder, log):
    """Xvfb, a session bus and a window manager, as children of this process; `folder` is short-lived and private."""
    authority = folder / "Xauthority"
    authority.write_bytes(_any_display_cookie())
    # Without -noreset the server starts anew when its last client goes, and shuts out who connects at that moment.
    display = _start(["Xvfb", "-displayfd", "{fd}", "-screen", "0", SCREEN, "-nolisten", "tcp", "-noreset", "-auth",
                      str(authority)], os.environ, log)
    bus = _start(["dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address={fd}"], os.environ, log)
    environment = {
        "DISPLAY": f":{display}",
        "XAUTHORITY": str(authority),
        "QT_QPA_PLATFORM": "xcb",
        "XDG_RUNTIME_DIR": str(folder),
        "DBUS_SESSION_BUS_ADDRESS": bus,
    }
    everything = os.environ | environment
    manager = subprocess.Popen(["openbox"], env=everything, stdout=log, stderr=log, start_new_session=True)
    _wait_for_window_manager(manager, everything)
    subprocess.run(["display", "-size", SCREEN.rpartition("x")[0], "-window", "root", BACKGROUND], env=everything,
                   stdout=log, stderr=log)
    return Desktop(f"virtual X display :{display}", environment, pictures=True)


def _wayland_answers():
    name = os.environ.get("WAYLAND_DISPLAY")
    if not name:
        return False
    with socket.socket(socket.AF_UNIX) as connection:
        try:
            connection.connect(os.path.join(os.environ.get("XDG_RUNTIME_DIR", ""), name))
            return True
        except OSError:
            return False


def _start(command, environment, log):
    """Starts a server and returns the line that it writes to the descriptor put for "{fd}" once it is ready."""
    reader, writer = os.pipe()
    subprocess.Popen([part.replace("{fd}", str(writer)) for part in command], env=environment, pass_fds=[writer],
                     stdin=subprocess.DEVNULL, stdout=log, stderr=log, start_new_session=True)
    os.close(writer)
    with open(reader, encoding="utf-8") as answer:
        line = answer.readline().strip()
    if not line:
        raise PracticeFailed(f"{command[0]} did not start; see {log.name}")
    return line


def _wait_for_window_manager(manager, environment):
    deadline = time.monotonic() + PATIENCE
    while not _succeeds(["xprop", "-root", "-notype", "_NET_SUPPORTING_WM_CHECK"], environment, "window id"):
        if manager.poll() is not None or time.monotonic() > deadline:
            raise PracticeFailed("the window manager did not start")
        time.sleep(0.1)


def _succeeds(command, environment, text=""):
    result = subprocess.run(command, env=environment, capture_output=True, text=True)
    return result.returncode == 0 and text in result.stdout


def _any_display_cookie():
    """An authority file (format: Xauth(3)) with one cookie, valid for every address and display number."""
    family_wild, address, number = 0xFFFF, b"", b""
    fields = (address, number, b"MIT-MAGIC-COOKIE-1", os.urandom(16))
    return struct.pack(">H", family_wild) + b"".join(struct.pack(">H", len(field)) + field for field in fields)
