#include "PopoverPlacement.h"

#include <array>
#include <gtest/gtest.h>

namespace quillon {

namespace {

using enum RectEdge;

constexpr QRect screen(0, 28, 1000, 772); // below a bar
constexpr QSize size(300, 200);
constexpr int corner = popoverCornerRadius + popoverArrowHalfWidth; // where a tip begins to have room

struct Case {
    const char* name;
    QRect anchor;
    RectEdge preferred;
    PopoverPlacement expected;
};

constexpr QRect amid(480, 390, 40, 20);

const std::array cases{
    Case{"below", amid, MinY, {{350, 410 + 9, 300, 200}, {MinY, 150}}},
    Case{"above", amid, MaxY, {{350, 390 - 9 - 200, 300, 200}, {MaxY, 150}}},
    Case{"to the left", amid, MinX, {{480 - 9 - 300, 300, 300, 200}, {MinX, 100}}},
    Case{"to the right", amid, MaxX, {{520 + 9, 300, 300, 200}, {MaxX, 100}}},
    Case{"hangs from a bar that windows keep off", {700, 0, 80, 28}, MinY, {{590, 37, 300, 200}, {MinY, 150}}},
    Case{"slides off the right side, arrow on the anchor", {900, 0, 60, 28}, MinY, {{694, 37, 300, 200}, {MinY, 236}}},
    Case{"slides off the left side, arrow on the anchor", {30, 0, 60, 28}, MinY, {{6, 37, 300, 200}, {MinY, 54}}},
    Case{"slides up from the lower side", {100, 760, 30, 30}, MaxX, {{139, 594, 300, 200}, {MaxX, 181}}},
    Case{"arrow keeps off the corner", {996, 0, 4, 28}, MinY, {{694, 37, 300, 200}, {MinY, 300 - corner}}},
    Case{"no room below", {480, 700, 40, 20}, MinY, {{350, 491, 300, 200}, {MaxY, 150}}},
    Case{"one pixel too few below", {480, 566, 40, 20}, MinY, {{350, 357, 300, 200}, {MaxY, 150}}},
    Case{"no room to the left", {100, 390, 40, 20}, MinX, {{149, 300, 300, 200}, {MaxX, 100}}},
    Case{"neither below nor above", {100, 100, 40, 600}, MinY, {{149, 300, 300, 200}, {MaxX, 100}}},
    Case{"no room at all covers the anchor", {10, 40, 980, 700}, MinY, {{350, 594, 300, 200}, {MinY, 150}}},
    Case{"anchor beyond the screen", {500, 2000, 10, 10}, MinY, {{355, 594, 300, 200}, {MaxY, 150}}},
};

TEST(PopoverPlacementTest, KeepsThePopoverOnTheScreenAndItsArrowOnTheAnchor)
{
    for (const Case& example : cases)
        EXPECT_EQ(popoverPlacement(example.anchor, size, screen, example.preferred), example.expected) << example.name;
}

TEST(PopoverPlacementTest, KnowsOtherScreensAndContentsThatAreLargerThanTheScreen)
{
    constexpr QRect leftOfAndAbovePrimary(-1280, -200, 1280, 1024);
    constexpr PopoverPlacement expected{{-306, -163, 300, 200}, {MinY, 276}};
    EXPECT_EQ(popoverPlacement({-40, -192, 20, 20}, size, leftOfAndAbovePrimary, MinY), expected);
    EXPECT_EQ(popoverPlacement(amid, {1200, 900}, screen, MaxX).body, QRect(6, 34, 1200, 900));
}

} // namespace
} // namespace quillon
