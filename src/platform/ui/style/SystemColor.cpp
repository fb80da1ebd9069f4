#include "SystemColor.h"

#include <algorithm>
#include <cmath>

namespace quillon {

namespace {

/// WCAG 2.1, "relative luminance".
double luminance(const QColor& color)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

} // namespace

double contrast(const QColor& one, const QColor& other)
{
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

bool isDark(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

QColor systemBlueColor(const QPalette& palette)
{
    return isDark(palette) ? QColor(0x5aaaff) : QColor(0x0058d0);
}

} // namespace quillon
