#include "PopoverFrame.h"
#include "Waiting.h"
#include "host/VirtualDisplay.h"
#include "host/WaylandCompositor.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

/// A popover over a white window, with nothing else on the display.
class PopoverOnX11Test : public testing::Test {
protected:
    QJsonObject tell(const QString& word)
    {
        probe_.process().write(word.toUtf8() + '\n');
        return QJsonDocument::fromJson(probe_.readLine().toUtf8()).object();
    }
    bool becomes(const QString& key, const QJsonValue& value)
    {
        return eventually([&] { return tell(u"state"_s)[key] == value; });
    }
    QPoint contentCorner()
    {
        const QJsonObject state = tell(u"state"_s);
        return {state[u"x"_s].toInt(), state[u"y"_s].toInt()};
    }
    /// Whether the popover is drawn, and the corners of its window show what lies under them.
    bool isCutToShape()
    {
        const QPoint corner = contentCorner();
        return eventually([&] {
            const QImage screen = display_.screenshot();
            return screen.pixelColor(corner - QPoint(1, -20)) != Qt::black &&
                   screen.pixelColor(corner - QPoint(1, -20)) != Qt::white &&
                   screen.pixelColor(corner - QPoint(popoverArrowLength, popoverArrowLength)) == Qt::white;
        });
    }

    VirtualDisplay display_;
    ChildProgram probe_{QStringLiteral(POPOVER_PROBE), {}, {u"QT_QPA_PLATFORM=xcb"_s, display_.variable()}};
};

TEST_F(PopoverOnX11Test, TakesTheKeyboardAndIsClosedByTheUserWithOrWithoutAWindowManager)
{
    tell(u"show"_s);
    ASSERT_TRUE(becomes(u"active"_s, true));
    display_.pressKey(u"q"_s);
    EXPECT_TRUE(becomes(u"text"_s, u"q"_s));
    display_.click(contentCorner() + QPoint(5, 5));
    EXPECT_TRUE(tell(u"state"_s)[u"shown"_s].toBool());
    display_.click({100, 600});
    EXPECT_TRUE(becomes(u"visible"_s, false));

    const XEmbedTray desktop(display_);
    tell(u"show"_s);
    ASSERT_TRUE(becomes(u"active"_s, true));
    const QString states =
        display_.ask(u"xprop"_s, {u"-id"_s, tell(u"state"_s)[u"window"_s].toString(), u"_NET_WM_STATE"_s});
    for (const auto& list : {u"_NET_WM_STATE_SKIP_TASKBAR"_s, u"_NET_WM_STATE_SKIP_PAGER"_s})
        EXPECT_TRUE(states.contains(list)) << states.toStdString();
    display_.pressKey(u"Escape"_s);
    EXPECT_TRUE(becomes(u"visible"_s, false));
}

TEST_F(PopoverOnX11Test, FadesWhereThereIsACompositorAndIsCutToItsShapeWhereThereIsNone)
{
    tell(u"show"_s);
    EXPECT_TRUE(isCutToShape());
    EXPECT_FALSE(tell(u"grow"_s)[u"cutOff"_s].toBool()) << "its content grows while it is moved";
    EXPECT_FALSE(tell(u"close"_s)[u"visible"_s].toBool()) << "without a compositor there is nothing to wait for";

    tell(u"composited"_s);
    tell(u"show"_s);
    EXPECT_TRUE(becomes(u"opacity"_s, 1.0));
    QJsonObject state = tell(u"close"_s);
    EXPECT_FALSE(state[u"shown"_s].toBool());
    EXPECT_TRUE(state[u"visible"_s].toBool()) << "it fades";
    tell(u"show"_s);
    EXPECT_TRUE(becomes(u"opacity"_s, 1.0));
    state = tell(u"state"_s);
    EXPECT_TRUE(state[u"shown"_s].toBool() && state[u"visible"_s].toBool()) << "the end of the old fade hides nothing";
    tell(u"close"_s);
    EXPECT_TRUE(becomes(u"visible"_s, false));

    tell(u"plain"_s);
    tell(u"show"_s);
    EXPECT_TRUE(isCutToShape());
}

TEST(PopoverOnWayland, LetsTheCompositorPlaceAChildWhichStaysAndHasTheKeyboard)
{
    const WaylandCompositor compositor;
    ChildProgram probe(QStringLiteral(POPOVER_PROBE), {}, compositor.variables());
    const auto tell = [&probe](const QString& word) {
        probe.process().write(word.toUtf8() + '\n');
        return QJsonDocument::fromJson(probe.readLine().toUtf8()).object();
    };
    const auto placed = [&compositor] { return compositor.messages().count("get_popup"); };
    tell(u"show"_s);
    EXPECT_EQ(placed(), 0);
    tell(u"child"_s);
    EXPECT_TRUE(eventually([&] { return placed() == 1; }));
    const QJsonObject state = tell(u"key"_s);
    EXPECT_EQ(state[u"childPressed"_s], true);
    EXPECT_EQ(state[u"text"_s], u""_s);
    tell(u"dismiss"_s);
    EXPECT_TRUE(eventually([&] { return placed() == 2; })) << "a click elsewhere answers nothing";
}

} // namespace
} // namespace quillon
