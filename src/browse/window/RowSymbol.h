#pragma once

#include "Symbol_linux.h"

#include <QApplication>
#include <QFontMetrics>
#include <QIcon>
#include <QPixmapCache>

namespace quillon {

/// A symbol of ours beside a line of text, in the text's colour or in one of the symbols' own; drawn once for all rows.
inline QIcon rowSymbol(const QString& name, std::optional<SymbolColor> own = {})
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
