#include "ApplicationIcon.h"

#include <QPainter>

namespace quillon {

using namespace Qt::StringLiterals;

ApplicationIcon::ApplicationIcon(QWidget* parent)
    : QWidget(parent)
    , renderer_(u":/icon/com.Orvane.Quillon.svg"_s)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize ApplicationIcon::sizeHint() const
{
    constexpr int side = 112; // logical pixels
    return {side, side};
}

void ApplicationIcon::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    renderer_.render(&painter, rect());
}

} // namespace quillon
