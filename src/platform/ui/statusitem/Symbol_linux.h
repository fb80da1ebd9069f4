#pragma once

#include "StatusItem.h"

#include <QColor>
#include <QIcon>
#include <QPalette>
#include <QPixmap>

namespace quillon {

/// The colour that a symbol has on the ground of the palette.
QColor symbolColor(const SymbolImage& symbol, const QPalette& palette);

/// The symbol as a square of `side` logical pixels; transparent where there is no symbol of that name.
QPixmap symbolPixmap(const QString& name, int side, qreal devicePixelRatio, const QColor& color);

/// The symbol in the sizes that trays and task bars ask for. Neither tells whether it is dark: the icon is light with a
/// dark rim, and so is seen on either ground. Progress fills it clockwise.
QIcon symbolIcon(const SymbolImage& symbol);

/// The symbol's icon or, without one, an empty icon that keeps the item's place.
QIcon trayIcon(const std::optional<SymbolImage>& symbol);

/// The symbol beside a line of text, in the text's colour or in one of the symbols' own; drawn once for all rows.
QIcon rowSymbol(const QString& name, std::optional<SymbolColor> own = {});

} // namespace quillon
