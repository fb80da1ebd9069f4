#include "host/Probe.h"
#include "host/VirtualDisplay.h"
#include "host/WaylandCompositor.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

TEST(PopoverOnX11, TakesTheKeyboardAndIsClosedByTheUserWithoutAWindowManager)
{
    const VirtualDisplay display;
    Probe probe(u"popover"_s, display.variables());
    probe.tell(u"show"_s);
    ASSERT_TRUE(probe.becomes(u"active"_s, true));
    display.pressKey(u"q"_s);
    EXPECT_TRUE(probe.becomes(u"text"_s, u"q"_s));
    display.click(probe.place(u"content"_s).value_or(QRect()).center());
    EXPECT_TRUE(probe.state(u"shown"_s).toBool());
    display.click({100, 600});
    EXPECT_TRUE(probe.becomes(u"visible"_s, false));
}

TEST(PopoverOnWayland, LetsTheCompositorPlaceAChildWhichStaysAndHasTheKeyboard)
{
    const WaylandCompositor compositor;
    Probe probe(u"popover"_s, compositor.variables());
    const auto placed = [&compositor] { return compositor.said(u"get_popup"_s); };
    probe.tell(u"show"_s);
    EXPECT_EQ(placed(), 0);
    probe.tell(u"child"_s);
    EXPECT_TRUE(runUntil([&] { return placed() == 1; }));
    EXPECT_EQ(probe.tell(u"key"_s)[u"childPressed"_s], true);
    EXPECT_EQ(probe.state(u"text"_s), u""_s);
    probe.tell(u"dismiss"_s);
    EXPECT_TRUE(runUntil([&] { return placed() == 2; })) << "a click elsewhere answers nothing";
}

} // namespace
} // namespace quillon
