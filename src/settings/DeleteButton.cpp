#include "DeleteButton.h"

#include "SystemColor.h"

#include <QPainter>

namespace quillon {

namespace {

constexpr int verticalPadding = 2;
constexpr qreal focusRing = 2;
constexpr qreal gap = 1; // between the disc and the ring

} // namespace

DeleteButton::DeleteButton(QWidget* parent)
    : RoundButton(verticalPadding, parent)
{
}

void DeleteButton::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF whole(rect());
    if (hasFocus()) {
        constexpr qreal half = focusRing / 2;
        painter.setPen(QPen(systemBlueColor(palette()), focusRing));
        painter.drawEllipse(whole.adjusted(half, half, -half, -half));
    }
    constexpr qreal inset = focusRing + gap;
    const QRectF disc = whole.adjusted(inset, inset, -inset, -inset);
    // White on it keeps a contrast of at least 4.5:1 (WCAG 2.1, 1.4.3).
    QColor ground = isDown() ? QColor(0x9c1520) : underMouse() ? QColor(0xb91c28) : QColor(0xd32f2f);
    if (!isEnabled()) {
        ground = palette().color(QPalette::Disabled, QPalette::ButtonText);
        ground.setAlphaF(0.3F);
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground);
    painter.drawEllipse(disc);

    const qreal thickness = disc.height() * 0.14;
    const qreal reach = disc.width() * 0.24;
    painter.setPen(QPen(Qt::white, thickness, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(disc.center() - QPointF(reach, 0), disc.center() + QPointF(reach, 0));
}

} // namespace quillon
