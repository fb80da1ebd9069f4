#include "AlertIcon.h"

#include <QPainter>

#include <cmath>
#include <numbers>

namespace quillon {

namespace {

constexpr int side = 40; // logical pixels; what signs are drawn in

/// A regular polygon around the middle, with rounded corners; its first corner points up, or half a side beside it.
QPolygonF polygon(QPointF middle, qreal radius, int corners, bool standsOnSide)
{
    QPolygonF result;
    for (int corner = 0; corner < corners; ++corner) {
        const qreal turn = (corner + (standsOnSide ? 0.5 : 0.0)) * 2 * std::numbers::pi / corners;
        result.append(middle + radius * QPointF(std::sin(turn), -std::cos(turn)));
    }
    return result;
}

/// The line of an exclamation mark or, upside down, of an i.
void paintMark(QPainter& painter, qreal top, qreal bottom, qreal dot)
{
    painter.drawLine(QPointF(0, top), QPointF(0, bottom));
    painter.drawPoint(QPointF(0, dot));
}

} // namespace

void paintAlertSign(QPainter& painter, const QRectF& area, AlertStyle alertStyle)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(area.center());
    painter.scale(area.width() / side, area.height() / side);
    const auto ground = [&painter](QRgb color, const QPolygonF& corners) {
        painter.setBrush(QColor(color));
        painter.setPen(QPen(QColor(color), 5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin)); // rounds the corners
        painter.drawPolygon(corners);
    };
    constexpr qreal stroke = 4.2;
    const auto pen = [](QRgb color) { return QPen(QColor(color), stroke, Qt::SolidLine, Qt::RoundCap); };
    switch (alertStyle) {
    case AlertStyle::Informational:
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0x2f6fde));
        painter.drawEllipse(QPointF(), 18, 18);
        painter.setPen(pen(0xffffff));
        paintMark(painter, -1, 9, -9);
        break;
    case AlertStyle::Warning:
        ground(0xf6b21b, polygon({0, 5}, 19, 3, false));
        painter.setPen(pen(0x3a2a00));
        paintMark(painter, -6, 3, 10.5);
        break;
    case AlertStyle::Critical:
        ground(0xd6302b, polygon({}, 16.5, 8, true));
        painter.setPen(pen(0xffffff));
        paintMark(painter, -9, 1, 9);
        break;
    }
    painter.restore();
}

AlertIcon::AlertIcon(AlertStyle alertStyle, QWidget* parent)
    : QWidget(parent)
    , alertStyle_(alertStyle)
{
    setFixedSize(side, side);
}

void AlertIcon::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    paintAlertSign(painter, rect(), alertStyle_);
}

} // namespace quillon
