#include "SystemColor.h"

namespace quillon {

bool isDark(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

QColor systemBlueColor(const QPalette& palette)
{
    return isDark(palette) ? QColor(0x5aaaff) : QColor(0x0058d0);
}

} // namespace quillon
