#include "Stepper.h"

#include <QLineEdit>
#include <QStyleOptionSpinBox>
#include <QStylePainter>

namespace quillon {

Stepper::Stepper(QWidget* parent)
    : QSpinBox(parent)
{
    lineEdit()->hide();
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize Stepper::sizeHint() const
{
    const QSize whole = QSpinBox::sizeHint();
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    option.rect = QRect(QPoint(), whole);
    const QRect field = style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxEditField, this);
    return {whole.width() - field.width(), whole.height()};
}

QSize Stepper::minimumSizeHint() const
{
    return sizeHint();
}

void Stepper::paintEvent(QPaintEvent* event)
{
    QSpinBox::paintEvent(event);
    if (!hasFocus())
        return;
    QStylePainter painter(this);
    QStyleOptionFocusRect option;
    option.initFrom(this);
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, option);
}

} // namespace quillon
