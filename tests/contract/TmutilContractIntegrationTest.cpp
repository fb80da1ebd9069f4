#include "PracticeTmutil.h"

#include <QFile>

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

/// What the application relies on in a tmutil, found in ours over a real restic.
class TmutilContract : public testing::Test {
protected:
    int call(const QStringList& arguments) const { return practice_.run(arguments).status; }
    static QString phase(const QVariantMap& status) { return status.value(u"BackupPhase"_s).toString(); }
    static bool isRunning(const QVariantMap& status) { return status.value(u"Running"_s).toString() == "1"_L1; }
    void expectRunTo(const QString& disk) const
    {
        const QVariantMap now = practice_.status(); // the end of a run is told once
        EXPECT_TRUE(isRunning(now));
        EXPECT_EQ(now.value(u"DestinationID"_s).toString(), disk);
    }
    /// Follows a run to its end; whether it was seen to finish.
    bool isSeenToFinish() const
    {
        bool finishes = false;
        EXPECT_TRUE(eventually([&] {
            const QVariantMap now = practice_.status();
            finishes |= phase(now) == "ThinningPostBackup"_L1 || phase(now) == "Finishing"_L1;
            return !isRunning(now);
        }));
        return finishes;
    }

    PracticeTmutil practice_{QStringLiteral(TMUTIL_EXECUTABLE)};
};

TEST_F(TmutilContract, ARunToTheDiskAskedForIsShownFromTheStartUntilItsEndHasBeenSeen)
{
    practice_.addDisk(u"first"_s);
    const QString second = practice_.addDisk(u"second"_s);
    ASSERT_EQ(call({u"startbackup"_s, u"-d"_s, second}), 0);
    expectRunTo(second);
    EXPECT_TRUE(isSeenToFinish());
    EXPECT_FALSE(practice_.status().contains(u"LastFailure"_s));
}

TEST_F(TmutilContract, AStoppedRunEndsWithoutFinishing)
{
    practice_.addDisk(u"disk"_s);
    practice_.write(u"source/large"_s, {});
    QFile::resize(practice_.path(u"source/large"_s), qint64{2} << 30); // takes time and no room
    ASSERT_EQ(call({u"startbackup"_s}), 0);
    ASSERT_TRUE(eventually([this] { return phase(practice_.status()) == "Copying"_L1; }));
    EXPECT_EQ(call({u"stopbackup"_s}), 0);
    EXPECT_FALSE(isSeenToFinish());
}

TEST_F(TmutilContract, ARunThatFailsAtOnceIsSeenRunningFirst)
{
    const QString id = practice_.addDisk(u"disk"_s);
    QFile::remove(practice_.configurationFolder() + "/keys/"_L1 + id + ".key"_L1);
    ASSERT_EQ(call({u"startbackup"_s}), 0);
    expectRunTo(id);
    EXPECT_FALSE(isSeenToFinish());
    const QVariantMap failure = practice_.status().value(u"LastFailure"_s).toMap();
    EXPECT_EQ(failure.value(u"DestinationID"_s).toString(), id);
    EXPECT_FALSE(failure.value(u"Description"_s).toString().isEmpty());
}

} // namespace quillon
