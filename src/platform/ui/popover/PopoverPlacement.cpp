#include "PopoverPlacement.h"

#include "WindowSystem.h"

#include <QEvent>
#include <QLayout>
#include <QPainter>
#include <QPalette>
#include <QScreen>
#include <QScrollBar>

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

namespace {

QPolygonF arrowTriangle(const QRectF& body, const PopoverArrow& arrow)
{
    // The base lies a little inside of the body, so that the two unite without a seam.
    constexpr qreal overlap = 1;
    constexpr qreal half = popoverArrowHalfWidth;
    constexpr qreal length = popoverArrowLength;
    const qreal x = body.left() + arrow.tip;
    const qreal y = body.top() + arrow.tip;
    switch (arrow.edge) {
    case RectEdge::MinY:
        return QPolygonF({{x - half - overlap, body.top() + overlap},
                          {x, body.top() - length},
                          {x + half + overlap, body.top() + overlap}});
    case RectEdge::MaxY:
        return QPolygonF({{x - half - overlap, body.bottom() - overlap},
                          {x, body.bottom() + length},
                          {x + half + overlap, body.bottom() - overlap}});
    case RectEdge::MaxX:
        return QPolygonF({{body.left() + overlap, y - half - overlap},
                          {body.left() - length, y},
                          {body.left() + overlap, y + half + overlap}});
    case RectEdge::MinX:
        return QPolygonF({{body.right() - overlap, y - half - overlap},
                          {body.right() + length, y},
                          {body.right() - overlap, y + half + overlap}});
    }
    Q_UNREACHABLE();
}

} // namespace

QPainterPath popoverOutline(const QRectF& body, const std::optional<PopoverArrow>& arrow)
{
    QPainterPath outline;
    outline.addRoundedRect(body, popoverCornerRadius, popoverCornerRadius);
    if (!arrow)
        return outline;
    QPainterPath triangle;
    triangle.addPolygon(arrowTriangle(body, *arrow));
    triangle.closeSubpath();
    return outline.united(triangle);
}

void paintPopoverShadow(QPainter& painter, const QRectF& body)
{
    // Light comes from above. Ever wider strokes on top of each other come close to a blurred copy.
    constexpr qreal drop = 3;
    constexpr int reach = popoverShadowExtent - static_cast<int>(drop);
    const QPainterPath lowered = popoverOutline(body.translated(0, drop), std::nullopt);
    for (int distance = reach; distance > 0; --distance) {
        constexpr qreal darkest = 0.035;
        const qreal nearness = 1 - static_cast<qreal>(distance) / (reach + 1);
        const QColor shade = QColor::fromRgbF(0, 0, 0, static_cast<float>(darkest * nearness));
        painter.strokePath(lowered, QPen(shade, 2 * distance, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    }
}

void paintPopoverGround(QPainter& painter, const QPainterPath& outline, const QPalette& palette)
{
    painter.fillPath(outline, palette.color(QPalette::Window));
    QColor line = palette.color(QPalette::WindowText);
    line.setAlphaF(0.25F);
    painter.strokePath(outline, QPen(line, 1));
}

namespace {

// Where a program cannot place windows it is not told either how much of the screen the desktop's panels take.
constexpr int roomForPanels = 80; // logical pixels, for two of them

} // namespace

ScreenFittingArea::ScreenFittingArea(QWidget* parent)
    : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    viewport()->setAutoFillBackground(false);
}

void ScreenFittingArea::setContent(QWidget* content)
{
    setWidget(content);
    content->setAutoFillBackground(false);
}

QSize ScreenFittingArea::sizeHint() const
{
    if (!widget())
        return {};
    const QSize content = widget()->layout()->totalSizeHint();
    QSize room = screen()->availableGeometry().size() - 2 * QSize(popoverShadowExtent, popoverShadowExtent);
    if (!windowsCanBePlaced())
        room.rheight() -= roomForPanels;
    QSize size = content.boundedTo(room);
    if (size.height() < content.height())
        size.rwidth() = qMin(room.width(), content.width() + verticalScrollBar()->sizeHint().width());
    return size;
}

QSize ScreenFittingArea::minimumSizeHint() const
{
    return sizeHint();
}

bool ScreenFittingArea::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == widget() && event->type() == QEvent::LayoutRequest)
        updateGeometry();
    return QScrollArea::eventFilter(watched, event);
}

void ScreenFittingArea::showEvent(QShowEvent* event)
{
    updateGeometry(); // the screen may be another one
    QScrollArea::showEvent(event);
}

} // namespace quillon
