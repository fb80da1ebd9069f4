#pragma once

#include "Popover.h"

#include <QObject>
#include <QString>

#include <memory>
#include <optional>

class QMenu;

namespace quillon {

/// Colours that a symbol may be drawn in.
enum class SymbolColor { SystemGreen, SystemOrange, SystemYellow };

/// A named symbol, drawn in its palette colour or, without one, in the colour of the text around it. The template mark
/// is the macOS menu bar's business and changes nothing elsewhere.
struct SymbolImage {
    QString name;
    std::optional<SymbolColor> paletteColor;
    bool isTemplate = true;
    QString description{};        ///< what it stands for, in a sentence; empty where it tells nothing
    bool needsAttention = false;  ///< for trays that make such items stand out
    std::optional<int> percent{}; ///< how far a run has come, which trays draw into the symbol

    bool operator==(const SymbolImage&) const = default;
};

/// A title with its drawing attributes; lines are aligned to the right.
struct AttributedTitle {
    QString text;                ///< one line, or two divided by a line feed
    double pointSize = 0;        ///< of the system font, greater than 0
    double paragraphSpacing = 0; ///< points between the lines; negative packs them, as far as the glyphs stay apart
    double baselineOffset = 0;   ///< points, negative lowers the text; only where the system does not centre it itself

    bool operator==(const AttributedTitle&) const = default;
};

/// The program's item in the menu bar: a title, an image to the right of it, and a menu.
class StatusItem : public QObject {
    Q_OBJECT

public:
    /// Font of plain titles, in points of the system font.
    virtual void setFontSize(double pointSize) = 0;
    /// A plain title on one line; the empty text leaves the image alone.
    virtual void setTitle(const QString& title) = 0;
    /// Replaces a plain title, as a plain title replaces this one.
    virtual void setAttributedTitle(const AttributedTitle& title) = 0;
    virtual void setImage(const std::optional<SymbolImage>& image) = 0;
    /// The menu stays the caller's.
    virtual void setMenu(QMenu* menu) = 0;
    /// Where popovers that belong to the item point.
    virtual PopoverAnchor anchor() const = 0;
};

/// Where Linux shows the item: in a tray while there is one and else in a bar of our own, or only in one of them. On
/// macOS the item is always in the menu bar.
enum class StatusItemPlacement { Automatic, Tray, Bar };

std::unique_ptr<StatusItem> makeStatusItem(StatusItemPlacement placement);

} // namespace quillon
