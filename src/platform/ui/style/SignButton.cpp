#include "SignButton.h"

#include "AlertIcon.h"
#include "SystemColor.h"

#include <QPainter>

namespace quillon {

namespace {

constexpr int margin = 4; // for the ground and the ring that show pointer and keyboard

} // namespace

SignButton::SignButton(QWidget* parent)
    : QAbstractButton(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void SignButton::setAlertStyle(AlertStyle alertStyle)
{
    alertStyle_ = alertStyle;
    update();
}

QSize SignButton::sizeHint() const
{
    const int side = fontMetrics().height() + 2 * margin;
    return {side, side};
}

void SignButton::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    constexpr qreal ring = 2;
    constexpr qreal cornerRadius = 5;
    QColor ground = palette().color(QPalette::WindowText);
    ground.setAlphaF(isDown() ? 0.25F : underMouse() && isEnabled() ? 0.12F : 0.0F);
    painter.setBrush(ground);
    painter.setPen(hasFocus() ? QPen(systemBlueColor(palette()), ring) : QPen(Qt::NoPen));
    painter.drawRoundedRect(QRectF(rect()).adjusted(ring / 2, ring / 2, -ring / 2, -ring / 2), cornerRadius,
                            cornerRadius);
    if (!isEnabled())
        painter.setOpacity(0.4);
    paintAlertSign(painter, QRectF(rect()).adjusted(margin, margin, -margin, -margin), alertStyle_);
}

} // namespace quillon
