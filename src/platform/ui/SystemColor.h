#pragma once

#include <QColor>
#include <QPalette>

namespace quillon {

/// Whether a palette shows light text on a dark ground.
bool isDark(const QPalette& palette);

/// Blue for headings, with at least 4.5:1 contrast to the ground of the palette (WCAG 2.1, 1.4.3).
QColor systemBlueColor(const QPalette& palette);

} // namespace quillon
