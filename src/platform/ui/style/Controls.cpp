#include "Controls.h"

#include "Accessibility.h"
#include "Alert.h"

#include <QKeyEvent>
#include <QPainter>

#include <cmath>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int helpPadding = 3;
constexpr qreal rim = 1;
constexpr int deletePadding = 2;
constexpr qreal focusRing = 2;
constexpr qreal ringGap = 1;  // between the disc and the ring
constexpr int signMargin = 4; // for the ground and the ring that show pointer and keyboard

} // namespace

RoundButton::RoundButton(int verticalPadding, QWidget* parent)
    : QAbstractButton(parent)
    , verticalPadding_(verticalPadding)
{
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize RoundButton::sizeHint() const
{
    const int diameter = fontMetrics().height() + 2 * verticalPadding_;
    return {diameter, diameter};
}

bool RoundButton::hitButton(const QPoint& position) const
{
    const QPointF offset = QPointF(position) - QRectF(rect()).center();
    return std::hypot(offset.x(), offset.y()) <= width() / 2.0;
}

HelpButton::HelpButton(QWidget* parent)
    : RoundButton(helpPadding, parent)
{
    setText(u"?"_s);
}

void HelpButton::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
        event->ignore(); // inside a menu these are the menu's
        return;
    default:
        RoundButton::keyPressEvent(event);
    }
}

void HelpButton::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor ground = palette().color(QPalette::ButtonText);
    ground.setAlphaF(isDown() ? 0.30F : underMouse() ? 0.18F : 0.08F);
    QColor edge = hasFocus() ? systemBlueColor(palette()) : palette().color(QPalette::ButtonText);
    if (!hasFocus())
        edge.setAlphaF(0.45F);
    painter.setBrush(ground);
    painter.setPen(QPen(edge, hasFocus() ? 2 * rim : rim));
    painter.drawEllipse(QRectF(rect()).adjusted(rim, rim, -rim, -rim));
    painter.setPen(palette().color(QPalette::ButtonText));
    painter.drawText(rect(), Qt::AlignCenter, text());
}

DeleteButton::DeleteButton(QWidget* parent)
    : RoundButton(deletePadding, parent)
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
    constexpr qreal inset = focusRing + ringGap;
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
    const int side = fontMetrics().height() + 2 * signMargin;
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
    paintAlertSign(painter, QRectF(rect()).adjusted(signMargin, signMargin, -signMargin, -signMargin), alertStyle_);
}

namespace {

constexpr int space = 6; // above and below the line, in logical pixels
constexpr int lineHeight = 1;

} // namespace

Divider::Divider(QWidget* parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize Divider::sizeHint() const
{
    return {0, 2 * space + lineHeight};
}

void Divider::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    QColor faint = palette().color(QPalette::WindowText);
    faint.setAlphaF(0.15F);
    painter.fillRect(QRect(0, space, width(), lineHeight), faint);
}

} // namespace quillon
