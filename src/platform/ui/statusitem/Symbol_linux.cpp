#include "Symbol_linux.h"

#include "Accessibility.h"

#include <QApplication>
#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>
#include <QPixmapCache>
#include <QSvgRenderer>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

// Each pair keeps a contrast of at least 3:1 to the ground it is made for (WCAG 2.1, 1.4.11 for graphics).
QColor paletteColor(SymbolColor color, bool dark)
{
    switch (color) {
    case SymbolColor::SystemGreen:
        return dark ? QColor(0x4cd471) : QColor(0x1a7f37);
    case SymbolColor::SystemOrange:
        return dark ? QColor(0xff9f2e) : QColor(0xc2530a);
    case SymbolColor::SystemYellow:
        return dark ? QColor(0xffd83d) : QColor(0x8f6a00);
    }
    Q_UNREACHABLE();
}

// Light, with a dark rim: the one is seen on dark panels, the other on light ones.
constexpr QRgb iconColor = 0xfff7f7f7;
constexpr QRgb iconRim = 0xff1d1d1f;

/// As thick as a pixel of the smallest icon, whatever the size.
void paintRim(QPainter& painter, const QPixmap& shape)
{
    constexpr qreal share = 1.0 / 20;
    const qreal reach = std::max(1.0, shape.width() * share);
    constexpr int directions = 16;
    for (int direction = 0; direction < directions; ++direction) {
        const qreal turn = direction * 2 * std::numbers::pi / directions;
        painter.drawPixmap(QPointF(std::cos(turn), std::sin(turn)) * reach, shape);
    }
}

constexpr int allPercent = 100;

/// The part that is still to come stays faint.
void paintFilled(QPainter& painter, const QPixmap& shape, int percent)
{
    constexpr qreal faint = 0.4;
    constexpr qreal top = 90; // degrees from the right, against the clock
    constexpr qreal fullTurn = -360;
    const QRectF area(QPointF(), shape.deviceIndependentSize());
    QPainterPath done(area.center());
    done.arcTo(area + QMarginsF(area.width(), area.width(), area.width(), area.width()), top,
               fullTurn * percent / allPercent);
    if (percent < allPercent) {
        painter.setOpacity(faint);
        painter.drawPixmap(0, 0, shape);
        painter.setOpacity(1);
        painter.setClipPath(done);
    }
    painter.drawPixmap(0, 0, shape);
}

} // namespace

QColor symbolColor(const SymbolImage& symbol, const QPalette& palette)
{
    return symbol.paletteColor ? paletteColor(*symbol.paletteColor, isDark(palette))
                               : palette.color(QPalette::WindowText);
}

QPixmap symbolPixmap(const QString& name, int side, qreal devicePixelRatio, const QColor& color)
{
    const int pixels = qRound(side * devicePixelRatio);
    QPixmap pixmap(pixels, pixels);
    pixmap.fill(Qt::transparent);
    QSvgRenderer renderer(u":/symbols/%1.svg"_s.arg(name));
    if (renderer.isValid()) {
        QPainter painter(&pixmap);
        renderer.render(&painter, pixmap.rect());
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(pixmap.rect(), color);
    }
    pixmap.setDevicePixelRatio(devicePixelRatio);
    return pixmap;
}

QIcon trayIcon(const std::optional<SymbolImage>& symbol)
{
    if (symbol)
        return symbolIcon(*symbol);
    constexpr int side = 22;
    QPixmap nothing(side, side);
    nothing.fill(Qt::transparent);
    return nothing;
}

QIcon symbolIcon(const SymbolImage& symbol)
{
    QIcon icon;
    const QColor color = symbol.paletteColor ? paletteColor(*symbol.paletteColor, true) : QColor::fromRgb(iconColor);
    for (const int side : {16, 22, 24, 32, 48, 64}) {
        QPixmap pixmap(side, side);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        paintRim(painter, symbolPixmap(symbol.name, side, 1, QColor::fromRgb(iconRim)));
        paintFilled(painter, symbolPixmap(symbol.name, side, 1, color), symbol.percent.value_or(allPercent));
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

QIcon rowSymbol(const QString& name, std::optional<SymbolColor> own)
{
    const QPalette palette = QApplication::palette();
    const auto drawn = [&name](const QColor& color) {
        const int side = QFontMetrics(QApplication::font()).height() + 2;
        const qreal ratio = qApp->devicePixelRatio();
        const QString key = name + color.name() + QString::number(side * ratio);
        QPixmap pixmap;
        if (!QPixmapCache::find(key, &pixmap)) {
            pixmap = symbolPixmap(name, side, ratio, color);
            QPixmapCache::insert(key, pixmap);
        }
        return pixmap;
    };
    QIcon icon(drawn(own ? symbolColor({.name = name, .paletteColor = own}, palette) : palette.color(QPalette::Text)));
    icon.addPixmap(drawn(palette.color(QPalette::HighlightedText)), QIcon::Selected);
    return icon;
}

} // namespace quillon
