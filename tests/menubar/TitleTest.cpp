#include "ControllerFixture.h"

#include <limits>

namespace quillon {

using namespace Qt::StringLiterals;

TEST(Bytes, AreShownInDecimalUnitsTiesToEven)
{
    const auto text = &StatusMenuController::stringRepresentationOfBytes;
    EXPECT_EQ(text(999), u"999 bytes"_s);
    EXPECT_EQ(text(-5), u"-5 bytes"_s);
    EXPECT_EQ(text(1000), u"1 KB"_s);
    EXPECT_EQ(text(2500), u"2 KB"_s);
    EXPECT_EQ(text(999'999), u"1000 KB"_s);
    EXPECT_EQ(text(1'500'000), u"1.5 MB"_s);
    EXPECT_EQ(text(999'999'999'999), u"1000.00 GB"_s);
    EXPECT_EQ(text(1'000'000'000'000), u"1.00 TB"_s);
}

TEST(TimeTexts, TakeTheUnitsThatTheIntervalAndThePrecisionAllow)
{
    const ScopedEnvironment language("LC_ALL", "en_US.UTF-8");
    const auto text = [](double seconds, bool precise, bool withSeconds) {
        return StatusMenuController::getTimeStringFromInterval(seconds, 2, precise, withSeconds);
    };
    EXPECT_EQ(text(59.9, true, true), u"59s"_s);
    EXPECT_EQ(text(3599, true, false), u"59m"_s);
    EXPECT_EQ(text(3599, true, true), u"59m 59s"_s);
    EXPECT_EQ(text(3600, true, true), u"1h 0m"_s);
    EXPECT_EQ(text(86400, false, true), u"1d"_s);
    EXPECT_EQ(text(90000, true, false), u"1d 1h"_s);
    EXPECT_EQ(text(std::numeric_limits<double>::quiet_NaN(), true, true), u"0s"_s);
    EXPECT_EQ(StatusMenuController::getTimeStringFromInterval(3900, 1, true, false), u"1:05"_s);
}

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

TEST_F(Title, NamesAreDecodedWhereTheyCanBe)
{
    const auto name = &StatusMenuController::nameForBackupDiskWithName;
    EXPECT_EQ(name(u"My%20Disk"_s), u"My Disk"_s);
    EXPECT_EQ(name(u"A%20100%"_s), u"A%20100%"_s);
    EXPECT_EQ(name({}), u"N/A"_s);
    launch();
    EXPECT_EQ(controller->localisedStringForBackupPhase(u"HealthCheckFsck"_s), u"Performing Health Check"_s);
    EXPECT_EQ(controller->localisedStringForBackupPhase(u"NotRunning"_s), u"NotRunning"_s);
}

} // namespace quillon
