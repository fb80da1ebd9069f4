#include "PopoverPlacement.h"
#include "host/Probe.h"
#include "host/VirtualDisplay.h"
#include "host/WaylandCompositor.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

/// A popover over a white window, with nothing else on the display.
class PopoverOnX11Test : public testing::Test {
protected:
    QPoint contentCorner() { return probe_.place(u"content"_s).value_or(QRect()).topLeft(); }

    VirtualDisplay display_;
    Probe probe_{u"popover"_s, display_.variables()};
};

TEST_F(PopoverOnX11Test, TakesTheKeyboardAndIsClosedByTheUserWithOrWithoutAWindowManager)
{
    probe_.tell(u"show"_s);
    ASSERT_TRUE(probe_.becomes(u"active"_s, true));
    display_.pressKey(u"q"_s);
    EXPECT_TRUE(probe_.becomes(u"text"_s, u"q"_s));
    display_.click(contentCorner() + QPoint(5, 5));
    EXPECT_TRUE(probe_.state(u"shown"_s).toBool());
    display_.click({100, 600});
    EXPECT_TRUE(probe_.becomes(u"visible"_s, false));

    const XEmbedTray desktop(display_);
    probe_.tell(u"show"_s);
    ASSERT_TRUE(probe_.becomes(u"active"_s, true));
    const QString states =
        display_.ask(u"xprop"_s, {u"-id"_s, probe_.state(u"window"_s).toString(), u"_NET_WM_STATE"_s});
    for (const auto& list : {u"_NET_WM_STATE_SKIP_TASKBAR"_s, u"_NET_WM_STATE_SKIP_PAGER"_s})
        EXPECT_TRUE(states.contains(list)) << states.toStdString();
    display_.pressKey(u"Escape"_s);
    EXPECT_TRUE(probe_.becomes(u"visible"_s, false));
}

TEST_F(PopoverOnX11Test, IsCutToItsShapeWhereThereIsNoCompositor)
{
    probe_.tell(u"show"_s);
    EXPECT_TRUE(eventually([&] {
        const QImage screen = display_.screenshot();
        const QColor frame = screen.pixelColor(contentCorner() - QPoint(1, -20));
        const QColor corner = screen.pixelColor(contentCorner() - QPoint(popoverArrowLength, popoverArrowLength));
        return frame != Qt::black && frame != Qt::white && corner == Qt::white;
    }));
    EXPECT_FALSE(probe_.tell(u"close"_s)[u"visible"_s].toBool()) << "there is no fading to wait for";
}

TEST(PopoverOnWayland, LetsTheCompositorPlaceAChildWhichStaysAndHasTheKeyboard)
{
    const WaylandCompositor compositor;
    Probe probe(u"popover"_s, compositor.variables());
    const auto placed = [&compositor] { return compositor.said(u"get_popup"_s); };
    probe.tell(u"show"_s);
    EXPECT_EQ(placed(), 0);
    probe.tell(u"child"_s);
    EXPECT_TRUE(eventually([&] { return placed() == 1; }));
    EXPECT_EQ(probe.tell(u"key"_s)[u"childPressed"_s], true);
    EXPECT_EQ(probe.state(u"text"_s), u""_s);
    probe.tell(u"dismiss"_s);
    EXPECT_TRUE(eventually([&] { return placed() == 2; })) << "a click elsewhere answers nothing";
}

} // namespace
} // namespace quillon
