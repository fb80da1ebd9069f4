#include "Divider.h"

#include <QPainter>

namespace quillon {

namespace {

constexpr int space = 6; // above and below the line, in logical pixels
constexpr int line = 1;

} // namespace

Divider::Divider(QWidget* parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize Divider::sizeHint() const
{
    return {0, 2 * space + line};
}

void Divider::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    QColor faint = palette().color(QPalette::WindowText);
    faint.setAlphaF(0.15F);
    painter.fillRect(QRect(0, space, width(), line), faint);
}

} // namespace quillon
