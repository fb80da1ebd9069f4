#pragma once

#include "StatusItem.h"

namespace quillon {

/// What the item says, whichever way it is shown.
struct StatusItemContent {
    AttributedTitle title;
    std::optional<SymbolImage> image;
};

/// One way of showing the status item. Main thread only.
class StatusItemFace {
public:
    StatusItemFace() = default;
    StatusItemFace(const StatusItemFace&) = delete;
    StatusItemFace& operator=(const StatusItemFace&) = delete;
    virtual ~StatusItemFace() = default;

    virtual void setContent(const StatusItemContent& content) = 0;
    /// The menu stays the caller's.
    virtual void setMenu(QMenu* menu) = 0;
    virtual PopoverAnchor anchor() const = 0;
};

} // namespace quillon
