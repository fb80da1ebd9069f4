#include "ColorScheme_linux.h"
#include "Symbol_linux.h"
#include "SystemColor.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <gtest/gtest.h>
#include <set>
#include <vector>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

const QStringList symbolNames{u"clock.arrow.circlepath"_s, u"clock.arrow.2.circlepath"_s,
                              u"exclamationmark.arrow.circlepath"_s, u"exclamationmark.arrow.triangle.2.circlepath"_s};

template<typename Wanted>
int countPixels(const QImage& image, const QImage& other, const Wanted& wanted)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += wanted(image.pixel(x, y), other.pixel(x, y));
    return count;
}

QPalette paletteFor(ColorSchemePreference preference)
{
    applyColorScheme(preference);
    QPalette palette = QGuiApplication::palette();
    applyColorScheme(ColorSchemePreference::None);
    return palette;
}

class SymbolTest : public testing::TestWithParam<ColorSchemePreference> {};

TEST(Symbol, FillsItsSideAtEveryPixelRatio)
{
    const QPixmap pixmap = symbolPixmap(symbolNames[0], 22, 1.5, Qt::black);
    EXPECT_EQ(pixmap.width(), 33);
    EXPECT_EQ(pixmap.deviceIndependentSize(), QSizeF(22, 22));
}

TEST(Symbol, EveryStateIsSeenAndToldApartInATrayOfEitherLightness)
{
    for (const int side : {16, 22, 24}) {
        for (const QRgb ground : {qRgb(0, 0, 0), qRgb(47, 47, 47), qRgb(255, 255, 255)}) {
            std::vector<QImage> shown;
            for (const QString& name : symbolNames) {
                QImage tray(side, side, QImage::Format_RGB32);
                tray.fill(ground);
                QPainter painter(&tray);
                symbolIcon({.name = name, .paletteColor = {}}).paint(&painter, tray.rect());
                painter.end();
                const auto stands = [ground](QRgb a, QRgb) { return contrast(a, ground) >= 3; };
                EXPECT_GT(countPixels(tray, tray, stands), side * side / 6) << side << " on " << qRed(ground);
                for (const QImage& other : shown)
                    EXPECT_GT(countPixels(tray, other, [](QRgb a, QRgb b) { return contrast(a, b) >= 3; }), side / 3)
                        << name.toStdString() << ' ' << side << " on " << qRed(ground);
                shown.push_back(tray);
            }
        }
    }
}

TEST(Symbol, AStateThatHasAColourHasItInTheTray)
{
    for (const auto color : {SymbolColor::SystemGreen, SymbolColor::SystemOrange, SymbolColor::SystemYellow}) {
        const SymbolImage symbol{.name = symbolNames[2], .paletteColor = color};
        const QRgb wanted = symbolColor(symbol, paletteFor(ColorSchemePreference::Dark)).rgb();
        const QImage image = symbolIcon(symbol).pixmap(22, 22).toImage();
        EXPECT_GT(countPixels(image, image, [wanted](QRgb a, QRgb) { return a == wanted; }), 30);
    }
}

TEST(Symbol, ProgressFillsItClockwiseFromTheTop)
{
    // Pixels as strong as in the whole symbol, in its left half and in its right half.
    const auto strong = [](std::optional<int> percent) {
        SymbolImage symbol{.name = symbolNames[1], .paletteColor = {}};
        const QImage whole = symbolIcon(symbol).pixmap(64, 64).toImage();
        symbol.percent = percent;
        const QImage shown = symbolIcon(symbol).pixmap(64, 64).toImage();
        const auto bright = [](QRgb a, QRgb b) { return qGray(a) > 200 && a == b; };
        const auto half = [](const QImage& image, int x) { return image.copy(x, 0, 32, 64); };
        return std::pair{countPixels(half(whole, 0), half(shown, 0), bright),
                         countPixels(half(whole, 32), half(shown, 32), bright)};
    };
    const auto [left, right] = strong({});
    EXPECT_GT(std::min(left, right), 300);
    EXPECT_EQ(strong(100), std::pair(left, right));
    EXPECT_EQ(strong(0), std::pair(0, 0));
    EXPECT_EQ(strong(50).first, 0);
    EXPECT_GT(strong(50).second, right * 4 / 5); // but for the pixels on the edge
    EXPECT_GT(strong(75).first, left / 4);
    EXPECT_LT(strong(75).first, left);
}

TEST_P(SymbolTest, StandsOutFromItsGround)
{
    const QPalette palette = paletteFor(GetParam());
    const QColor ground = palette.color(QPalette::Window);
    std::set<QRgb> colors;
    for (const auto& color : {std::optional<SymbolColor>(),
                              {SymbolColor::SystemGreen},
                              {SymbolColor::SystemOrange},
                              {SymbolColor::SystemYellow}}) {
        const QColor drawn = symbolColor({.name = symbolNames[0], .paletteColor = color}, palette);
        EXPECT_GE(contrast(drawn, ground), 3.0) << drawn.name().toStdString() << " on " << ground.name().toStdString();
        colors.insert(drawn.rgb());
    }
    EXPECT_EQ(colors.size(), 4U);
}

INSTANTIATE_TEST_SUITE_P(Schemes, SymbolTest,
                         testing::Values(ColorSchemePreference::Light, ColorSchemePreference::Dark),
                         [](const auto& test) { return test.param == ColorSchemePreference::Dark ? "Dark" : "Light"; });

} // namespace
} // namespace quillon
