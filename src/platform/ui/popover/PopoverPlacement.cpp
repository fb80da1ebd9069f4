#include "PopoverPlacement.h"

#include <algorithm>
#include <array>

namespace quillon {

namespace {

bool isVertical(RectEdge edge)
{
    return edge == RectEdge::MinY || edge == RectEdge::MaxY;
}

std::array<RectEdge, 4> byPreference(RectEdge preferred)
{
    using enum RectEdge;
    switch (preferred) {
    case MinX:
        return {MinX, MaxX, MinY, MaxY};
    case MinY:
        return {MinY, MaxY, MaxX, MinX};
    case MaxX:
        return {MaxX, MinX, MinY, MaxY};
    case MaxY:
        return {MaxY, MinY, MaxX, MinX};
    }
    Q_UNREACHABLE();
}

/// What is left on a side of the anchor when a popover of this size lies there; negative where it has no room.
int roomLeft(RectEdge edge, const QRect& anchor, const QSize& size, const QRect& available)
{
    switch (edge) {
    case RectEdge::MinX:
        return anchor.x() - available.x() - popoverArrowLength - size.width();
    case RectEdge::MaxX:
        return available.x() + available.width() - anchor.x() - anchor.width() - popoverArrowLength - size.width();
    case RectEdge::MinY:
        return available.y() + available.height() - anchor.y() - anchor.height() - popoverArrowLength - size.height();
    case RectEdge::MaxY:
        return anchor.y() - available.y() - popoverArrowLength - size.height();
    }
    Q_UNREACHABLE();
}

RectEdge chooseEdge(const QRect& anchor, const QSize& size, const QRect& available, RectEdge preferred)
{
    const auto edges = byPreference(preferred);
    const auto room = [&](RectEdge edge) { return roomLeft(edge, anchor, size, available); };
    const auto* fitting = std::find_if(edges.begin(), edges.end(), [&](RectEdge edge) { return room(edge) >= 0; });
    if (fitting != edges.end())
        return *fitting;
    return *std::max_element(edges.begin(), edges.end(), [&](RectEdge a, RectEdge b) { return room(a) < room(b); });
}

QPoint besideAnchor(RectEdge edge, const QRect& anchor, const QSize& size)
{
    const int centredX = anchor.x() + (anchor.width() - size.width()) / 2;
    const int centredY = anchor.y() + (anchor.height() - size.height()) / 2;
    switch (edge) {
    case RectEdge::MinX:
        return {anchor.x() - popoverArrowLength - size.width(), centredY};
    case RectEdge::MaxX:
        return {anchor.x() + anchor.width() + popoverArrowLength, centredY};
    case RectEdge::MinY:
        return {centredX, anchor.y() + anchor.height() + popoverArrowLength};
    case RectEdge::MaxY:
        return {centredX, anchor.y() - popoverArrowLength - size.height()};
    }
    Q_UNREACHABLE();
}

int keptInside(int position, int length, int from, int room)
{
    return std::max(from, std::min(position, from + room - length));
}

/// The tip keeps off the rounded corners.
int tipOn(int middleOfAnchor, int bodyStart, int bodyLength)
{
    constexpr int corner = popoverCornerRadius + popoverArrowHalfWidth;
    if (bodyLength <= 2 * corner)
        return bodyLength / 2;
    return std::clamp(middleOfAnchor - bodyStart, corner, bodyLength - corner);
}

} // namespace

PopoverPlacement popoverPlacement(const QRect& anchor, const QSize& size, const QRect& available, RectEdge preferred)
{
    constexpr int gap = popoverScreenGap;
    const QRect room = available.adjusted(gap, gap, -gap, -gap);
    const RectEdge edge = chooseEdge(anchor, size, room, preferred);
    const QPoint wished = besideAnchor(edge, anchor, size);
    const QPoint corner(keptInside(wished.x(), size.width(), room.x(), room.width()),
                        keptInside(wished.y(), size.height(), room.y(), room.height()));
    const int tip = isVertical(edge) ? tipOn(anchor.x() + anchor.width() / 2, corner.x(), size.width())
                                     : tipOn(anchor.y() + anchor.height() / 2, corner.y(), size.height());
    return {.body = QRect(corner, size), .arrow = {.edge = edge, .tip = tip}};
}

} // namespace quillon
