#include "Symbol_linux.h"

#include "SystemColor.h"

#include <QPainter>
#include <QSvgRenderer>

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

// A faint rim, so that the symbol is seen on a panel that is dark in a light theme too, or light in a dark one.
void paintHalo(QPainter& painter, const QPixmap& shape)
{
    constexpr qreal strength = 0.6;
    painter.setOpacity(strength);
    for (const QPoint offset : {QPoint(-1, 0), QPoint(1, 0), QPoint(0, -1), QPoint(0, 1)})
        painter.drawPixmap(offset, shape);
    painter.setOpacity(1);
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

QIcon symbolIcon(const SymbolImage& symbol, const QPalette& palette)
{
    QIcon icon;
    for (const int side : {16, 22, 24, 32, 48, 64}) {
        QPixmap pixmap(side, side);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paintHalo(painter, symbolPixmap(symbol.name, side, 1, palette.color(QPalette::Window)));
        painter.drawPixmap(0, 0, symbolPixmap(symbol.name, side, 1, symbolColor(symbol, palette)));
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

} // namespace quillon
