#include "RoundButton.h"

#include <cmath>

namespace quillon {

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

} // namespace quillon
