#include "MenuStyle_linux.h"

#include "SystemColor.h"

#include <QPainter>
#include <QStyleOptionMenuItem>

namespace quillon {

void MenuStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const
{
    const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    const bool separator = element == CE_MenuItem && item && item->menuItemType == QStyleOptionMenuItem::Separator;
    if (!separator || !isDark(option->palette)) {
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }
    constexpr int sideMargin = 5;
    QColor line = option->palette.color(QPalette::WindowText);
    line.setAlphaF(0.2F);
    painter->fillRect(item->rect.left() + sideMargin, item->rect.center().y(), item->rect.width() - 2 * sideMargin, 1,
                      line);
}

} // namespace quillon
