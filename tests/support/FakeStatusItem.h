#pragma once

#include "StatusItem.h"

namespace quillon {

/// Keeps what was last drawn.
class FakeStatusItem final : public StatusItem {
public:
    void setFontSize(double size) override { fontSize = size; }
    void setTitle(const QString& plain) override
    {
        title = plain;
        attributed.reset();
    }
    void setAttributedTitle(const AttributedTitle& drawn) override
    {
        title = drawn.text;
        attributed = drawn;
    }
    void setImage(const std::optional<SymbolImage>& drawn) override { image = drawn; }
    void setMenu(QMenu* shown) override { menu = shown; }
    PopoverAnchor anchor() const override { return {nullptr, QRect(600, 0, 60, 24)}; }

    double fontSize = 0;
    QString title;
    std::optional<AttributedTitle> attributed;
    std::optional<SymbolImage> image;
    QMenu* menu = nullptr;
};

} // namespace quillon
