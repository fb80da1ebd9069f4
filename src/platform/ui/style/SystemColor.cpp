#include "SystemColor.h"

#include <QFontInfo>
#include <QPainter>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace quillon {

using namespace Qt::StringLiterals;

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

namespace {

constexpr int space = 6; // above and below the line, in logical pixels
constexpr int line = 1;

} // namespace

Divider::Divider(QWidget* parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize Divider::sizeHint() const
{
    return {0, 2 * space + line};
}

void Divider::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    QColor faint = palette().color(QPalette::WindowText);
    faint.setAlphaF(0.15F);
    painter.fillRect(QRect(0, space, width(), line), faint);
}

QFont withColorEmoji(QFont font)
{
    font.setFamilies(
        QStringList{QFontInfo(font).family(), u"Noto Color Emoji"_s}); // what a system does not have is passed over
    return font;
}

} // namespace quillon
