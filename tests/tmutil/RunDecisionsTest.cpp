#include "BackupRemark.h"
#include "Restic.h"
#include "ResticOutput.h"
#include "Verification.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <tuple>

namespace quillon {

using namespace Qt::StringLiterals;

TEST(BackupRemark, NamesTheGravestCauseAndAllThatThereIsToSay)
{
    const QDateTime now(QDate(2026, 11, 22), QTime(12, 0), Qt::UTC);
    BackupRemark remark;
    EXPECT_FALSE(remark.text(now)) << "never verified is not overdue";
    remark.lastVerification = now.addDays(-28);
    EXPECT_FALSE(remark.text(now));
    const std::pair<QString, std::function<void()>> causes[] = {
        {u"NotVerified"_s, [&] { remark.lastVerification = now.addDays(-29); }},
        {u"Thinning"_s, [&] { remark.thinningProblem = u"restic: something."_s; }},
        {u"SpaceMade"_s, [&] { remark.removed.resize(2); }},
        {u"MissingSource"_s, [&] { remark.lackingSources = {u"A is not there."_s}; }},
        {u"UnreadFiles"_s, [&] { remark.unreadFiles = 1; }},
        {u"Damaged"_s, [&] { remark.damagedRecordsLeft = {u"snapshots/a"_s}; }},
        {u"Damaged"_s, [&] { remark.damagedRecords = 1; }},
        {u"BackupsLost"_s, [&] { remark.lostBackups = 3; }},
        {u"SourceLost"_s, [&] { remark.lostSources = {u"B is empty."_s}; }},
    };
    for (const auto& [cause, happen] : causes) {
        happen();
        EXPECT_EQ(remark.text(now)->first, cause);
    }
    const QString text = remark.text(now)->second;
    for (const auto& part :
         {u"B is empty. 3 earlier backups, the latest"_s, u"put aside. The records of 1"_s,
          u"elsewhere: snapshots/a. One file could not be read. A is not there. The disk was full, and 2"_s,
          u"restic: something."_s, u"not been verified since 2026-10-24."_s})
        EXPECT_TRUE(text.contains(part)) << text.toStdString();
}

TEST(Standstill, IsAMinuteOfTheSameProgress)
{
    using namespace std::chrono_literals;
    const std::chrono::steady_clock::time_point start{1h};
    const BackupProgress some{.bytes = 5};
    const BackupProgress more{.bytes = 6};
    Standstill standstill;
    EXPECT_FALSE(standstill.isSince({}, start));
    EXPECT_FALSE(standstill.isSince({}, start + 5min)) << "nothing has been told yet";
    EXPECT_FALSE(standstill.isSince(some, start + 6min));
    EXPECT_FALSE(standstill.isSince(some, start + 7min - 1ms));
    EXPECT_FALSE(standstill.isSince(more, start + 7min));
    EXPECT_TRUE(standstill.isSince(more, start + 8min));
}

TEST(DroppedFolders, AreJudgedOnceAndForgottenWhenTheyAreBack)
{
    QVariantMap judged;
    QStringList asked;
    const auto dropped = [&](const QStringList& leftOut) {
        return droppedFolders(judged, leftOut, [&](const QStringList& folders) {
            asked += folders;
            return QStringList(u"/held"_s);
        });
    };
    const QStringList both{u"/held"_s, u"/new"_s};
    EXPECT_EQ(dropped(both), QStringList(u"/held"_s));
    EXPECT_EQ(dropped(both), QStringList(u"/held"_s));
    EXPECT_EQ(asked, both) << "later backups no longer hold it";
    EXPECT_EQ(dropped({}), QStringList());
    EXPECT_TRUE(judged.isEmpty());

    // What can be read and is not saved is damaged on the disk.
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"file"_s);
    ASSERT_TRUE(QFile(file).open(QIODevice::WriteOnly));
    QFile::setPermissions(file, QFile::ReadOwner | QFile::ExeOwner);
    EXPECT_EQ(readableFolders({file, folder.path(), folder.filePath(u"gone"_s)}), QStringList(folder.path()));
}

TEST(Verification, DamageStandsUntilTheSameDataIsSoundAndOnceItLastsUntilTheUserDecides)
{
    const Damage unnamed{.date = {}, .subset = u"7/10"_s};
    const Damage named{.date = {}, .findings = {{u"c3b7"_s}, {}}, .subset = u"7/10"_s};
    const auto mended = [](Damage damage, bool lasting) {
        damage.repaired = true;
        damage.lasting = lasting;
        return damage;
    };
    // What was found, and what has been sound since; no subset stands for all data.
    const std::tuple<Damage, QString, bool> cases[] = {
        {unnamed, u"1/10"_s, true},
        {unnamed, u"7/20"_s, true},
        {unnamed, u"7/10"_s, false},
        {unnamed, {}, false},
        {mended(unnamed, false), u"1/10"_s, false},
        {mended(unnamed, true), u"1/10"_s, true},
        {named, u"1/10"_s, false},
    };
    for (const auto& [damage, sound, outlasts] : cases)
        EXPECT_EQ(damage.outlasts(sound), outlasts) << sound.toStdString() << damage.description().toStdString();
    EXPECT_EQ(Damage::fromDictionary(mended(named, true).toDictionary())->toDictionary(),
              mended(named, true).toDictionary());

    // Damage found anew after a repair lasts, unless there is more of it.
    Damage more = named;
    more.findings.trees = {u"38d4"_s};
    EXPECT_TRUE(named.after(mended(named, false)).lasting);
    EXPECT_FALSE(named.after(named).lasting || named.after(std::nullopt).lasting);
    EXPECT_FALSE(more.after(mended(named, true)).lasting);
}

TEST(Verification, ReadsAllDataInTenTurnsAndLessAtATimeWhileItIsInterrupted)
{
    Slice slice;
    QStringList subsets;
    for (int turn = 0; turn < Slice::tenths; ++turn, slice = slice.next())
        subsets.append(slice.subset());
    EXPECT_EQ(subsets.first(), u"1/10"_s);
    EXPECT_EQ(subsets.last(), u"10/10"_s);
    EXPECT_EQ(slice, Slice{});

    const Slice quarter = slice.smaller().smaller();
    subsets.clear();
    for (slice = quarter; slice.tenth == 1; slice = slice.next())
        subsets.append(slice.subset());
    EXPECT_EQ(subsets, (QStringList{u"1/40"_s, u"11/40"_s, u"21/40"_s, u"31/40"_s}));
    EXPECT_EQ(slice, (Slice{.tenth = 2, .part = 0, .parts = 2}));
    for (int turn = 0; turn < 10; ++turn)
        slice = slice.next().smaller();
    EXPECT_EQ(slice.parts, Slice::mostParts);
    EXPECT_EQ(Slice::fromDictionary(quarter.next().toDictionary()), quarter.next());
    EXPECT_EQ(Slice::fromDictionary({}), Slice{});

    slice = Slice{}.ofParts(Slice::networkParts); // never more than an eightieth of the data
    subsets.clear();
    for (int turn = 0; turn < Slice::tenths * Slice::networkParts; ++turn, slice = slice.next(Slice::networkParts))
        subsets.append(slice.ofParts(Slice::networkParts).subset());
    EXPECT_EQ(subsets.first(), u"1/80"_s);
    EXPECT_EQ(subsets.removeDuplicates(), 0);
}

TEST(Verification, TakesNoEndOfResticForDamageThatItDidNotSpeakOf)
{
    const CheckFindings none;
    const CheckFindings some{{u"c3b77d7e"_s}, {}};
    const std::tuple<int, QString, CheckFindings, bool> cases[] = {
        {1, u"Fatal: repository contains errors"_s, none, true},
        {1, u"Fatal: LoadIndex returned errors"_s, none, true},
        {10, {}, none, true}, // 0.17: there is no repository
        {1, {}, some, true},
        {1, u"Fatal: no space left on device"_s, none, false},
        {2, u"runtime: out of memory"_s, none, false},
        {127, u"execvp: No such file or directory"_s, none, false},
        {-9, {}, none, false},
        {-15, {}, some, false},
    };
    for (const auto& [status, words, findings, damage] : cases) {
        ResticOutcome outcome{.exitStatus = status, .output = {}, .errorText = words, .workFolder = {}};
        EXPECT_EQ(Verification::tellsOfDamage(outcome, findings), damage) << status << words.toStdString();
        outcome.onNetwork = true;
        EXPECT_EQ(Verification::tellsOfDamage(outcome, findings), damage) << status << words.toStdString();
        outcome.errorText = u"pack c3b77d7e: dial tcp 127.0.0.1:8443: connect: connection refused\n"_s;
        EXPECT_FALSE(Verification::tellsOfDamage(outcome, findings)) << status;
    }
}

} // namespace quillon
