#include "DataHelper.h"

#include "ApplicationIdentity.h"
#include "HostSystem.h"
#include "LocalDates.h"
#include "LocalizedString.h"
#include "ScopedEnvironment.h"

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono;

namespace {

class DataHelperTest : public testing::Test {
protected:
    ScopedEnvironment zone{"TZ", "Europe/Berlin"};
    ScopedEnvironment locale{"LC_ALL", "en_US.UTF-8"};
};

QString day(Date date, Date now)
{
    return DataHelper::getDayFrom(date, DateFormatterStyle::Full, now);
}

TEST_F(DataHelperTest, DaysAreNamedFromTomorrowToSixDaysAgo)
{
    const Date now = local(2026, 3, 4, 0, 30); // Wednesday
    const std::pair<int, QString> names[] = {
        {6, u"Friday, March 6, 2026"_s},
        {5, u"Tomorrow"_s},
        {4, u"Today"_s},
        {3, u"Yesterday"_s},
        {2, u"Monday"_s},
        {-2, u"Thursday"_s},
        {-3, u"Wednesday, February 25, 2026"_s},
    };
    for (const auto& [dayOfMonth, name] : names) {
        EXPECT_EQ(day(local(2026, 3, dayOfMonth, 0), now), name) << dayOfMonth;
        EXPECT_EQ(day(local(2026, 3, dayOfMonth, 23, 59, 59), now), name) << dayOfMonth;
    }
    EXPECT_EQ(DataHelper::dayAndTime(local(2026, 3, 6, 9), DateFormatterStyle::Long, now),
              u"March 6, 2026, 9:00\u202fAM"_s);
}

TEST_F(DataHelperTest, DaysAreNamedRightAcrossClockChangesAndTheTurnOfTheYear)
{
    EXPECT_EQ(day(local(2026, 3, 30, 0, 10), local(2026, 3, 29, 0, 10)), u"Tomorrow"_s);
    EXPECT_EQ(day(local(2026, 10, 25, 23, 50), local(2026, 10, 26, 0, 10)), u"Yesterday"_s);
    EXPECT_EQ(day(local(2027, 1, 1, 0), local(2026, 12, 31, 23, 59)), u"Tomorrow"_s);
}

TEST_F(DataHelperTest, ARetryFallsOnTheNextWholeMinuteAfterTheInterval)
{
    const auto retry = [](Date now) { return DataHelper::dateSinceNowWithCeiledMinutes(Seconds(300), now); };
    EXPECT_EQ(retry(local(2026, 5, 1, 10, 0, 0)), local(2026, 5, 1, 10, 6));
    EXPECT_EQ(retry(local(2026, 5, 1, 10, 0, 59) + 999ms), local(2026, 5, 1, 10, 6));
    EXPECT_EQ(retry(local(2045, 5, 1, 10, 0, 30)), local(2045, 5, 1, 10, 6)) << "beyond 32 bits";
}

TEST_F(DataHelperTest, TextsOfTheYearOfVersionsAndOfTheMakersPages)
{
    const Date newYear = sys_days(2026y / December / 31) + hours(23) + minutes(30);
    EXPECT_EQ(DataHelper::getCurrentYear(newYear), u"2027"_s) << "the year of the host's zone";
    const ScopedEnvironment system("QUILLON_SYSTEM_VERSION", "14.2.1");
    EXPECT_EQ(systemVersion(), u"14.2.1"_s);
    EXPECT_EQ(DataHelper::bundleVersionString(), u"%1 (Build %2)"_s.arg(bundleShortVersion(), bundleVersion()));
    EXPECT_NE(bundleShortVersion(), bundleVersion());
    EXPECT_EQ(makersite::page(u"/a/"_s).path(), u"/a/"_s);
    EXPECT_TRUE(identity::instanceLock().endsWith("/com.Orvane.Quillon.instance"_L1));
    for (const auto& [version, words] :
         {std::pair{"12.7.6", u"open System Preferences"_s}, {"13.0", u"open System Settings"_s}}) {
        const ScopedEnvironment named("QUILLON_SYSTEM_VERSION", version);
        EXPECT_TRUE(disableTimeMachineInstruction().contains(words)) << version;
    }
}

TEST(HostSystemTest, TheLedgerIsInTheFolderOfStatesIfThatIsAbsoluteAndTheToolBesideThePrograms)
{
    const ScopedEnvironment home("HOME", "/home/anna");
    for (const auto& [folder, file] : {std::pair{"/var/../state/", "/state/quillon/ledger.sqlite"},
                                       {"state", "/home/anna/.local/state/quillon/ledger.sqlite"},
                                       {"", "/home/anna/.local/state/quillon/ledger.sqlite"}}) {
        const ScopedEnvironment state("XDG_STATE_HOME", folder);
        EXPECT_EQ(ledgerFile(), QLatin1StringView(file));
    }
    EXPECT_TRUE(systemTmutilPath().endsWith("/libexec/quillon/tmutil"_L1));
}

TEST(HostSystemTest, SaysOfARefusedStartWhatTheUserCanDoAboutIt)
{
    const std::pair<int, const char*> table[] = {
        {2, "setupNoDiskMessage"}, {4, "startDiskAwayMessage"}, {9, "startResticMissingMessage"}};
    for (const auto& [status, message] : table)
        EXPECT_EQ(startFailureReason(status), localizedString(message));
    EXPECT_EQ(startFailureReason(1), QString());
}

} // namespace
} // namespace quillon
