#pragma once

#include <QWidget>

class QScreen;

namespace quillon {

/// Asks the X11 window manager to keep other windows off the part of the screen above the lower edge of `bar`, for as
/// long as the window lives. Does nothing on other platforms, and where another monitor lies above.
/// @param bar geometry of the window in logical pixels, at the top of the screen
void reserveTopStrip(WId window, const QScreen& screen, const QRect& bar);

} // namespace quillon
