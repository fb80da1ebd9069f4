#include "PopoverFrame.h"

#include <QPainter>
#include <QPalette>

namespace quillon {

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

} // namespace quillon
