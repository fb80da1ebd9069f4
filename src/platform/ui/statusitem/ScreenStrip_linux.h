#pragma once

#include <QWidget>

class QScreen;

namespace quillon {

/// Makes a window that has not been shown yet a panel of the desktop, for the X11 window manager: it is on every
/// desktop, stays when the desktop is shown, and is no window among others. Does nothing on other platforms.
void makeDock(WId window);

/// Asks the X11 window manager to keep other windows off the part of the screen above the lower edge of `bar`, for as
/// long as the window lives. Does nothing on other platforms, and where another monitor lies above.
/// @param bar geometry of the window in logical pixels, at the top of the screen
void reserveTopStrip(WId window, const QScreen& screen, const QRect& bar);

} // namespace quillon
