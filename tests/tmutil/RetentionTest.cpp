#include "Retention.h"

#include "ScopedEnvironment.h"

#include <QTimeZone>

#include <algorithm>
#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

const QDateTime noon(QDate(2026, 11, 21), QTime(12, 0), QTimeZone::utc());

Snapshot at(const QDateTime& time, bool complete = true)
{
    Snapshot snapshot;
    snapshot.id = time.toString(Qt::ISODate) + (complete ? u""_s : u" incomplete"_s);
    snapshot.time = time;
    snapshot.complete = complete;
    return snapshot;
}

/// Made by a computer of folders, with its minutes before noon as the identifier.
Snapshot of(const QString& host, const QStringList& sources, int minutes, bool complete = true)
{
    Snapshot snapshot = at(noon.addSecs(-60LL * minutes), complete);
    snapshot.id = QString::number(minutes);
    snapshot.host = host;
    snapshot.sources = sources;
    return snapshot;
}

QStringList identifiers(const std::vector<Snapshot>& snapshots)
{
    QStringList identifiers;
    std::ranges::transform(snapshots, std::back_inserter(identifiers), &Snapshot::id);
    return identifiers;
}

} // namespace

TEST(Retention, KeepsTheLastOfEachHourDayAndWeek)
{
    std::vector<Snapshot> snapshots;
    for (int hours = 72; hours >= 0; hours -= 6) {
        snapshots.push_back(of({}, {}, 60 * hours));
        snapshots.back().id = QString::number(hours);
    }
    const auto forgotten = [&](const KeepRules& rules) {
        return identifiers(dispensable(snapshots, rules, {}, noon)).join(u' ');
    };
    EXPECT_EQ(forgotten({}), QString());
    // Saturday noon: the days end 18, 42 and 66 hours before, and the week before ended on Sunday.
    EXPECT_EQ(forgotten({.hourly = 3, .daily = 3, .weekly = 2}), u"72 66 60 54 48 36 30 24"_s);
    snapshots.insert(snapshots.begin(), at(noon.addDays(-6)));
    EXPECT_EQ(forgotten({.hourly = 1, .daily = 1, .weekly = 2}), u"72 66 60 54 48 42 36 30 24 18 12 6"_s);
}

TEST(Retention, IncompleteBackupsNeverDisplaceCompleteOnes)
{
    std::vector<Snapshot> snapshots;
    for (int day = 40; day >= 0; --day) {
        snapshots.push_back(at(noon.addDays(-day)));
        snapshots.push_back(at(noon.addDays(-day).addSecs(60), false));
    }
    snapshots.pop_back(); // which would be dated after now
    const auto forgotten = dispensable(snapshots, KeepRules(), {}, noon);
    std::vector<Snapshot> alone;
    std::ranges::copy_if(snapshots, std::back_inserter(alone), &Snapshot::complete);
    EXPECT_EQ(std::ranges::count_if(forgotten, &Snapshot::complete), dispensable(alone, KeepRules(), {}, noon).size());
    EXPECT_GT(std::ranges::count(forgotten, false, &Snapshot::complete), 5) << "these are thinned, too";
}

TEST(Retention, AFolderThatWasGivenUpAndAnotherComputerKeepTheirLastCompleteBackup)
{
    const QString one = u"one"_s;
    const QString other = u"other"_s;
    const std::vector snapshots{of(one, {u"/a"_s, u"/given up"_s}, 55),
                                of(one, {u"/a"_s, u"/given up"_s}, 50),
                                of(one, {u"/a"_s}, 40),
                                of(one, {u"/a"_s, u"/given up"_s}, 30, false),
                                of(one, {u"/a"_s}, 20),
                                of(other, {u"/a"_s}, 15),
                                of(other, {u"/a"_s}, 10)};
    EXPECT_EQ(identifiers(dispensable(snapshots, {.hourly = 1, .daily = 0, .weekly = 0}, {}, noon)),
              (QStringList{u"55"_s, u"40"_s, u"15"_s}));
}

TEST(Retention, AClockThatWasWrongNeitherStopsThinningNorCostsTheBackupJustMade)
{
    const Snapshot older = at(noon.addSecs(-1200));
    const Snapshot made = at(noon.addSecs(-600));
    const Snapshot later = at(noon.addSecs(-300)); // made ahead of it, by a clock that was fast
    const Snapshot farLater = at(noon.addYears(80));
    EXPECT_EQ(dispensable({older, made, later, farLater}, {.hourly = 1, .daily = 1, .weekly = 1}, made.id, noon).size(),
              1U);
    EXPECT_EQ(latestOf({older, made, later, farLater}, noon)->id, later.id);
    EXPECT_EQ(latestOf({older, at(noon.addSecs(-60), false)}, noon)->id, older.id) << "an incomplete one is no match";
    EXPECT_EQ(latestOf({farLater}, noon)->id, farLater.id) << "better than none";
}

TEST(Retention, WantOfRoomNeverTakesTheLastCompleteBackupOfASource)
{
    const QString one = u"one"_s;
    const QString other = u"other"_s;
    std::vector snapshots{of(one, {u"/a"_s}, 90),        of(one, {u"/a"_s, u"/gone"_s}, 80),
                          of(one, {u"/a"_s}, 70),        of(one, {u"/a"_s}, 60),
                          of(one, {u"/a"_s}, 50, false), of(other, {u"/a"_s}, 45),
                          of(one, {u"/a"_s}, 40, false), of(other, {u"/a"_s}, 35)};
    snapshots[2].own = false;
    EXPECT_EQ(identifiers(leastMissed(snapshots, noon)), (QStringList{u"90"_s, u"50"_s, u"45"_s}));
    // A clock was wrong once.
    snapshots.push_back(of(one, {u"/a"_s, u"/b"_s}, -1000));
    snapshots.push_back(of(one, {u"/a"_s}, -2000));
    EXPECT_EQ(identifiers(leastMissed(snapshots, noon)), (QStringList{u"90"_s, u"50"_s, u"45"_s, u"-2000"_s}));
}

TEST(Retention, AWeekIsOverOnceWhateverTheClockDoes)
{
    EXPECT_TRUE(isWeekOver({}, noon));
    EXPECT_FALSE(isWeekOver(noon, noon));
    EXPECT_FALSE(isWeekOver(noon.addDays(-6), noon));
    EXPECT_TRUE(isWeekOver(noon.addDays(-7), noon));
    EXPECT_TRUE(isWeekOver(noon.addDays(400), noon)) << "the clock has been set back";
}

TEST(Snapshot, KeepsItsNameInAnotherZoneAndStillHasTheOneItHadThere)
{
    const ScopedEnvironment zone("TZ", "EST5");
    Snapshot inParis = at(QDateTime(QDate(2026, 11, 21), QTime(7, 22, 58), Qt::OffsetFromUTC, 3600));
    Snapshot inNewYork = at(inParis.time.toOffsetFromUtc(-5 * 3600).addSecs(6 * 3600LL));
    for (Snapshot* const snapshot : {&inParis, &inNewYork})
        snapshot->mountPoint = u"/disk"_s;
    inParis.host = inNewYork.host = u"host"_s;
    const std::vector both{inParis, inNewYork};
    EXPECT_EQ(inParis.name(), u"/disk/host/2026-11-21-072258"_s);
    EXPECT_EQ(inNewYork.name(), inParis.name());
    EXPECT_EQ(holdersOf(both, inParis.name() + "/file"_L1).size(), 2U) << "neither is taken for the other";
    EXPECT_EQ(identifiers(holdersOf(both, u"/disk/host/2026-11-21-012258"_s)), QStringList(inParis.id));
    QStringList names{u"/disk/host/2026-11-21-012258"_s, inParis.name(), u"/disk/x"_s};
    EXPECT_EQ(takeNamed(both, names).size(), 1U) << "a name stands for one";
    EXPECT_EQ(names.last(), u"/disk/x"_s);
}

} // namespace quillon
