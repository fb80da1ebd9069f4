#pragma once

#include <QProxyStyle>

namespace quillon {

/// The desktop's style with separators that show on dark menus too, where Qt's own style draws black on black.
class MenuStyle final : public QProxyStyle {
    Q_OBJECT

public:
    using QProxyStyle::QProxyStyle;

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};

} // namespace quillon
