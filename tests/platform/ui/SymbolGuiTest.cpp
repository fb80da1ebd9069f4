#include "Accessibility.h"
#include "Symbol_linux.h"

#include <QImage>
#include <QPalette>

#include <algorithm>
#include <gtest/gtest.h>
#include <set>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

QImage drawn(const SymbolImage& symbol)
{
    return symbolIcon(symbol).pixmap(64, 64).toImage();
}

template<typename Wanted>
bool holds(const QImage& image, const Wanted& wanted)
{
    const auto* pixels = reinterpret_cast<const QRgb*>(image.constBits());
    return std::any_of(pixels, pixels + image.sizeInBytes() / sizeof(QRgb), wanted);
}

TEST(Symbol, ProgressFillsItClockwiseFromTheTop)
{
    SymbolImage symbol{.name = u"clock.arrow.2.circlepath"_s, .paletteColor = {}};
    symbol.percent = 99;
    const QImage almost = drawn(symbol);
    symbol.percent = 50;
    const QRect left(0, 0, 28, 64), right(36, 0, 28, 64);
    EXPECT_NE(drawn(symbol).copy(left), almost.copy(left));
    EXPECT_EQ(drawn(symbol).copy(right), almost.copy(right));
}

TEST(Symbol, IsSeenInATrayOfEitherLightnessOrHasItsOwnColour)
{
    SymbolImage symbol{.name = u"clock.arrow.circlepath"_s, .paletteColor = {}};
    for (const QRgb panel : {qRgb(0, 0, 0), qRgb(255, 255, 255)})
        EXPECT_TRUE(
            holds(drawn(symbol), [&](QRgb pixel) { return qAlpha(pixel) == 255 && contrast(pixel, panel) > 10; }));
    std::set<QRgb> colors;
    for (const auto color : {SymbolColor::SystemGreen, SymbolColor::SystemOrange, SymbolColor::SystemYellow}) {
        symbol.paletteColor = color;
        const QRgb shown = symbolColor(symbol, QPalette(Qt::black)).rgba();
        EXPECT_TRUE(holds(drawn(symbol), [&](QRgb pixel) { return pixel == shown; }));
        colors.insert(shown);
    }
    EXPECT_EQ(colors.size(), 3U);
}

} // namespace
} // namespace quillon
