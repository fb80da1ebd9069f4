#include "SchemeStyle_linux.h"

#include "SystemColor.h"

#include <QPainter>
#include <QStyleOptionMenuItem>

#include <algorithm>
#include <cmath>

namespace quillon {

namespace {

QColor lineColor(const QStyleOption& option, float opacity)
{
    QColor line = option.palette.color(QPalette::WindowText);
    line.setAlphaF(opacity);
    return line;
}

/// Around what has the keyboard.
void drawRing(const QStyleOption& option, qreal sideMargin, qreal cornerRadius, QPainter& painter)
{
    constexpr qreal half = 0.5; // of the line
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(systemBlueColor(option.palette));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(option.rect).adjusted(sideMargin + half, half, -sideMargin - half, -half),
                            cornerRadius, cornerRadius);
    painter.restore();
}

bool hasKeyboard(const QStyleOption& option)
{
    return option.state.testFlag(QStyle::State_HasFocus) && option.state.testFlag(QStyle::State_KeyboardFocusChange);
}

constexpr qreal controlCornerRadius = 2; // as Qt's own style rounds them

} // namespace

void SchemeStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const
{
    const auto* item = element == CE_MenuItem ? qstyleoption_cast<const QStyleOptionMenuItem*>(option) : nullptr;
    const bool separator = item && item->menuItemType == QStyleOptionMenuItem::Separator;
    if (separator && isDark(option->palette)) {
        constexpr int sideMargin = 5;
        painter->fillRect(item->rect.left() + sideMargin, item->rect.center().y(), item->rect.width() - 2 * sideMargin,
                          1, lineColor(*option, 0.2F));
        return;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
    // An item that can be chosen is filled instead.
    if (item && !separator && item->state.testFlag(State_Selected) && !item->state.testFlag(State_Enabled))
        drawRing(*item, 1, 2 * controlCornerRadius, *painter);
}

void SchemeStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                     const QWidget* widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_ComboBox && hasKeyboard(*option))
        drawRing(*option, 0, controlCornerRadius, *painter);
}

void SchemeStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (element == PE_PanelButtonCommand && hasKeyboard(*option))
        drawRing(*option, 0, controlCornerRadius, *painter);
    if (element != PE_IndicatorCheckBox)
        return;
    // At least 3:1 against the window while it can be used (WCAG 2.1, 1.4.11).
    painter->save();
    painter->setPen(lineColor(*option, option->state.testFlag(State_Enabled) ? 0.55F : 0.25F));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
    painter->restore();
}

QSize SchemeStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                    const QWidget* widget) const
{
    QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    if (type == CT_PushButton) {
        constexpr double padding = 0.6; // of a line's height, on either side of the text
        const int wanted = contents.width() + qRound(2 * padding * option->fontMetrics.height());
        size.setWidth(std::max(size.width(), wanted));
    } else if (type == CT_MenuItem) {
        // The column for check marks is reserved as a constant, yet drawn as a share of the row's height: Qt 6.4,
        // qfusionstyle.cpp, CE_MenuItem.
        constexpr int reserved = 21;
        constexpr double share = 0.79;
        size.rwidth() += std::max(0, static_cast<int>(std::ceil(size.height() * share)) - reserved);
    }
    return size;
}

int SchemeStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                           QStyleHintReturn* returned) const
{
    switch (hint) {
    case SH_EtchDisabledText:
        return 0;
    case SH_Menu_AllowActiveAndDisabled:
        return 1;
    default:
        return QProxyStyle::styleHint(hint, option, widget, returned);
    }
}

} // namespace quillon
