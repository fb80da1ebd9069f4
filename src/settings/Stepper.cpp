#include "Stepper.h"

#include <QLineEdit>
#include <QStylePainter>

namespace quillon {

Stepper::Stepper(QWidget* parent)
    : QSpinBox(parent)
{
    lineEdit()->hide();
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

/// Of the whole spin box; the arrows are at its right end.
QStyleOptionSpinBox Stepper::wholeSpinBox() const
{
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    option.rect = QRect(QPoint(), QSpinBox::sizeHint());
    return option;
}

QSize Stepper::sizeHint() const
{
    const QStyleOptionSpinBox whole = wholeSpinBox();
    const QRect arrow = style()->subControlRect(QStyle::CC_SpinBox, &whole, QStyle::SC_SpinBoxUp, this);
    return {whole.rect.width() - arrow.left(), whole.rect.height()};
}

QSize Stepper::minimumSizeHint() const
{
    return sizeHint();
}

/// What is left of the arrows lies outside.
void Stepper::paintEvent(QPaintEvent* /*event*/)
{
    QStylePainter painter(this);
    QStyleOptionSpinBox whole = wholeSpinBox();
    whole.rect.setHeight(height());
    painter.translate(width() - whole.rect.width(), 0);
    painter.drawComplexControl(QStyle::CC_SpinBox, whole);
    painter.resetTransform();
    if (!hasFocus())
        return;
    QStyleOptionFocusRect option;
    option.initFrom(this);
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, option);
}

} // namespace quillon
