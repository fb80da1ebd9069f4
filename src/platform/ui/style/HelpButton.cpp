#include "HelpButton.h"

#include "SystemColor.h"

#include <QKeyEvent>
#include <QPainter>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int verticalPadding = 3;
constexpr qreal rim = 1;

} // namespace

HelpButton::HelpButton(QWidget* parent)
    : RoundButton(verticalPadding, parent)
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

} // namespace quillon
