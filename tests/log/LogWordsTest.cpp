#include "LogWords.h"

#include "LocalDates.h"
#include "LocalizedString.h"
#include "ScopedEnvironment.h"

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;
using Outcome = LedgerEntry::Outcome;
using Reason = LedgerEntry::Reason;

class LogWords : public testing::Test {
protected:
    LogWords() { installStringTable(u"en"_s); }

    ScopedEnvironment zone_{"TZ", "Europe/Berlin"};
    ScopedEnvironment language_{"LC_ALL", "en_US.UTF-8"};
};

TEST_F(LogWords, CsvQuotesWhatItHasToAndLeavesNoFormula)
{
    const std::vector<LedgerEntry> entries{
        {.date = local(2026, 11, 21, 12),
         .outcome = Outcome::Failed,
         .reason = Reason::Incomplete,
         .detail = u"no \"room\", at all"_s,
         .began = local(2026, 11, 21, 12, 0, 1),
         .diskIdentifier = u"A"_s,
         .diskName = u"=HYPERLINK(1,2)"_s,
         .bytes = 7},
        {.date = local(2026, 11, 20, 12), .cause = LedgerEntry::Cause::User, .outcome = Outcome::Stopped}};
    EXPECT_EQ(logwords::csv(entries).toStdString(),
              "Date,Outcome,Started by,Disk,Bytes,Began,Ended,Reason,Next Backup\r\n"
              "2026-11-21 12:00:00,Failed,Schedule,\"'=HYPERLINK(1,2)\",7,2026-11-21 12:00:01,,"
              "\"The backup ended before it was complete. Check that the disk is connected and has room. "
              "no \"\"room\"\", at all\",\r\n"
              "2026-11-20 12:00:00,Stopped,You,,,,,,\r\n");
}

TEST_F(LogWords, EveryOutcomeWithAReasonSaysItAndEveryDayIsWhatCountsMostInIt)
{
    for (int reason = 1; reason <= static_cast<int>(Reason::OnBattery); ++reason)
        EXPECT_GT(logwords::reason({.date = {}, .reason = Reason(reason)}).size(), 20) << reason;
    EXPECT_EQ(logwords::reason({.date = {}, .outcome = Outcome::Completed}), QString());

    const Date now = local(2026, 10, 26, 10); // the day before has 25 hours
    const std::vector<LedgerEntry> entries{{.date = local(2026, 10, 25, 23, 59), .outcome = Outcome::Skipped},
                                           {.date = local(2026, 10, 25, 0), .outcome = Outcome::Missed},
                                           {.date = local(2026, 10, 24, 1), .outcome = Outcome::Completed},
                                           {.date = local(2026, 10, 24, 0), .outcome = Outcome::Failed},
                                           {.date = local(2026, 10, 24, 0), .outcome = Outcome::Failed},
                                           {.date = local(2026, 10, 22, 23, 59), .outcome = Outcome::Failed}};
    QString told;
    for (const auto& day : logwords::days(entries, now, 4))
        told += QString::number(int(day.mark)) + u' ' + QString(day.text).replace(u'\n', u", "_s) + u'\n';
    EXPECT_EQ(told.toStdString(), "0 Friday, No backup\n"
                                  "4 Saturday, Completed: 1, Failed: 2\n"
                                  "2 Yesterday, Skipped: 1, Missed: 1\n"
                                  "0 Today, No backup\n");
}

} // namespace quillon
