#pragma once

#include <QProxyStyle>

namespace quillon {

/// The desktop's style where Qt's own one falls short: with separators in menus on dark grounds, where that draws black
/// on black; with outlines of check boxes and rings around buttons that can be seen, and without the shadow that
/// doubles disabled text; with room for all of a menu's text in large fonts, and with room on either side of a button's
/// text. Arrow keys reach what stands in a menu to be read.
class SchemeStyle final : public QProxyStyle {
    Q_OBJECT

public:
    using QProxyStyle::QProxyStyle;

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override;
};

} // namespace quillon
