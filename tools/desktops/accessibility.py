"""Windows and buttons as assistive technology is told of them: the same way on every desktop."""

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

BUTTONS = (Atspi.Role.PUSH_BUTTON, Atspi.Role.TOGGLE_BUTTON)


def shows(process, text):
    """Whether a window of the process is shown that bears the text or has something of that name."""
    return any(True for _ in _find(process, text))


def is_active(process, text):
    """Whether that window has the keyboard."""
    return any(window.get_state_set().contains(Atspi.StateType.ACTIVE) for window, _ in _find(process, text))


def press(process, name):
    """Presses the first button of that name; whether there is one."""
    button = next((node for _, node in _find(process, name) if node.get_role() in BUTTONS), None)
    return bool(button and button.do_action(0))


def _find(process, name):
    try:
        for window in _windows(process):
            for node in _walk(window):
                if node.get_name() == name and node.get_state_set().contains(Atspi.StateType.SHOWING):
                    yield window, node
    except GLib.Error:
        pass  # a window went while it was looked at


def _windows(process):
    desktop = Atspi.get_desktop(0)
    for application in filter(None, map(desktop.get_child_at_index, range(desktop.get_child_count()))):
        if application.get_process_id() == process.pid:
            application.set_cache_mask(Atspi.Cache.NONE)  # what is remembered may be over
            yield from filter(None, map(application.get_child_at_index, range(application.get_child_count())))


def _walk(node):
    yield node
    for child in filter(None, map(node.get_child_at_index, range(node.get_child_count()))):
        yield from _walk(child)
