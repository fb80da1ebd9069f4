#pragma once

#include "StatusItem.h"

#include <QStringList>

namespace quillon {

/// What the item says, whichever way it is shown.
struct StatusItemContent {
    AttributedTitle title;
    std::optional<SymbolImage> image;

    QString description() const { return image ? image->description : QString(); }
    /// The title's lines, and what the image stands for below them.
    QString text() const
    {
        const QStringList lines{title.text, description()};
        return lines.join(u'\n').trimmed();
    }
};

/// One way of showing the status item.
class ShownStatusItem {
public:
    ShownStatusItem() = default;
    ShownStatusItem(const ShownStatusItem&) = delete;
    ShownStatusItem& operator=(const ShownStatusItem&) = delete;
    virtual ~ShownStatusItem() = default;

    virtual void setContent(const StatusItemContent& content) = 0;
    /// The menu stays the caller's.
    virtual void setMenu(QMenu* menu) = 0;
    virtual PopoverAnchor anchor() const = 0;
};

} // namespace quillon
