#include "ControllerFixture.h"
#include "MenuBarIcon.h"

namespace quillon {

using namespace Qt::StringLiterals;

class Title : public ControllerFixture {};

TEST_F(Title, FontAndColoursFollowTheSystemVersion)
{
    defaults.stored[settingskeys::lastMenuBarIconState] = 5LL;
    const ScopedEnvironment system("QUILLON_SYSTEM_VERSION", "11.7");
    launch();
    EXPECT_EQ(item.fontSize, 11.0);
    EXPECT_EQ(item.menu, &menu());
    EXPECT_EQ(item.image->paletteColor, std::nullopt) << "palette colours came with version 12";
    const ScopedEnvironment catalina("QUILLON_SYSTEM_VERSION", "10.15");
    launch();
    EXPECT_EQ(item.fontSize, 12.0);
}

TEST_F(Title, TwoLinesArePackedOneIsNotAndNoneClearsIt)
{
    launch();
    controller->updateStatusBarTitle(u"above"_s, u"below"_s);
    EXPECT_EQ(item.attributed, (AttributedTitle{u"above\nbelow"_s, 9.5, -5.0, -5.0}));
    controller->updateStatusBarTitle(u""_s, u"alone"_s);
    EXPECT_EQ(item.attributed, (AttributedTitle{u"alone"_s, 9.5, 0.0, 0.0}));
    controller->updateStatusBarTitle({}, {});
    EXPECT_FALSE(item.attributed);
    EXPECT_EQ(item.title, u""_s);
}

TEST(MenuBarIcon, IsSymbolColourAndMeaningOfItsState)
{
    const ScopedEnvironment language("LC_ALL", "en_US.UTF-8");
    const QString clock = u"clock.arrow.circlepath"_s;
    const QString mark = u"exclamationmark.arrow.circlepath"_s;
    using enum MenuBarIconState;
    const struct {
        MenuBarIconState state;
        SymbolImage image;
    } cases[] = {
        {Idle, {clock, {}, false}},
        {Completed, {clock, {}, false}},
        {Running, {u"clock.arrow.2.circlepath"_s, {}, false, u"A backup is running."_s, false, 42}},
        {UpdateAvailable, {mark, SymbolColor::SystemGreen, true, u"An update is available."_s}},
        {Failed,
         {u"exclamationmark.arrow.triangle.2.circlepath"_s, SymbolColor::SystemOrange, true,
          u"The latest backup failed."_s, true}},
        {MissedSchedule, {mark, SymbolColor::SystemYellow, true, u"A scheduled backup was missed."_s}},
    };
    for (const auto& [state, image] : cases) {
        EXPECT_EQ(menuBarIcon(state, true, 0.429), image) << int(state);
        SymbolImage plain = image;
        plain.paletteColor.reset();
        plain.isTemplate = false;
        EXPECT_EQ(menuBarIcon(state, false, 0.429), plain) << int(state);
    }
    EXPECT_EQ(menuBarIcon(None, true, 0), std::nullopt);
    EXPECT_EQ(menuBarIcon(Running, true, 0.0099)->percent, std::nullopt);
    EXPECT_EQ(menuBarIcon(Running, true, 1.5)->percent, 100);
}

} // namespace quillon
