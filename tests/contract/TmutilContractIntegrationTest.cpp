#include "LocalDates.h"
#include "PracticeTmutil.h"
#include "SimulatedTimeMachine.h"

#include <QFile>

#include <functional>
#include <gtest/gtest.h>
#include <optional>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// Ours over a real restic.
class OurTmutil {
public:
    Answer run(const QStringList& arguments) const { return practice_.run(arguments); }
    QString addDisk(const QString& name) const { return practice_.addDisk(name); }
    void makeRunsLong() const
    {
        practice_.write(u"source/large"_s, {});
        QFile::resize(practice_.path(u"source/large"_s), qint64{2} << 30); // takes time and no room
    }
    void makeRunsFail(const QString& disk) const
    {
        QFile::remove(practice_.configurationFolder() + "/keys/"_L1 + disk + ".key"_L1);
    }
    static bool eventually(const std::function<bool()>& condition) { return quillon::eventually(condition); }

private:
    PracticeTmutil practice_{QStringLiteral(TMUTIL_EXECUTABLE)};
};

/// The one that tests of the application play in virtual time.
class SimulatedTmutil {
public:
    SimulatedTmutil() { machine_.destinations.clear(); }

    Answer run(const QStringList& arguments)
    {
        std::optional<Answer> answer;
        const auto child = machine_.launch({.executable = u"tmutil"_s, .arguments = arguments, .environment = {}},
                                           [&](const TaskResult& result) {
                                               answer = {result.status, result.output.value_or(QByteArray()), {}};
                                           });
        while (!answer)
            runLoop_.advance(100ms);
        return *answer;
    }
    QString addDisk(const QString& name)
    {
        machine_.destinations.append({.id = name + "-ID"_L1, .name = name});
        return machine_.destinations.last().id;
    }
    static void makeRunsLong() {} // they last a minute and more
    void makeRunsFail(const QString& /*disk*/) { machine_.phases = {{u"FindingChanges"_s, 1}}; }
    bool eventually(const std::function<bool()>& condition)
    {
        for (int seconds = 0; seconds < 600 && !condition(); ++seconds)
            runLoop_.advance(1s);
        return condition();
    }

private:
    VirtualRunLoop runLoop_{local(2026, 11, 21, 10)};
    SimulatedTimeMachine machine_{runLoop_};
};

/// What the application relies on in a tmutil.
template<typename Tool>
class TmutilContract : public testing::Test {
protected:
    int call(const QStringList& arguments) { return tool_.run(arguments).status; }
    QVariantMap status() { return parseStatus(tool_.run({u"status"_s}).output).value_or(QVariantMap()); }
    static QString phase(const QVariantMap& status) { return status.value(u"BackupPhase"_s).toString(); }
    static bool isRunning(const QVariantMap& status) { return status.value(u"Running"_s).toString() == "1"_L1; }
    void expectRunTo(const QString& disk)
    {
        const QVariantMap now = status(); // the end of a run is told once
        EXPECT_TRUE(isRunning(now));
        EXPECT_EQ(now.value(u"DestinationID"_s).toString(), disk);
    }
    /// Follows a run to its end; whether it was seen to finish.
    bool isSeenToFinish()
    {
        bool finishes = false;
        EXPECT_TRUE(tool_.eventually([&] {
            const QVariantMap now = status();
            finishes |= phase(now) == "ThinningPostBackup"_L1 || phase(now) == "Finishing"_L1;
            return !isRunning(now);
        }));
        return finishes;
    }

    Tool tool_;
};

using Tools = testing::Types<OurTmutil, SimulatedTmutil>;
TYPED_TEST_SUITE(TmutilContract, Tools);

TYPED_TEST(TmutilContract, ARunToTheDiskAskedForIsShownFromTheStartUntilItsEndHasBeenSeen)
{
    this->tool_.addDisk(u"first"_s);
    const QString second = this->tool_.addDisk(u"second"_s);
    ASSERT_EQ(this->call({u"startbackup"_s, u"-d"_s, second}), 0);
    this->expectRunTo(second);
    EXPECT_TRUE(this->isSeenToFinish());
    EXPECT_FALSE(this->status().contains(u"LastFailure"_s));
}

TYPED_TEST(TmutilContract, AStoppedRunEndsWithoutFinishing)
{
    this->tool_.addDisk(u"disk"_s);
    this->tool_.makeRunsLong();
    ASSERT_EQ(this->call({u"startbackup"_s}), 0);
    ASSERT_TRUE(this->tool_.eventually([this] { return this->phase(this->status()) == "Copying"_L1; }));
    EXPECT_EQ(this->call({u"stopbackup"_s}), 0);
    EXPECT_FALSE(this->isSeenToFinish());
}

TYPED_TEST(TmutilContract, ARunThatFailsAtOnceIsSeenRunningFirst)
{
    const QString id = this->tool_.addDisk(u"disk"_s);
    this->tool_.makeRunsFail(id);
    ASSERT_EQ(this->call({u"startbackup"_s}), 0);
    this->expectRunTo(id);
    EXPECT_FALSE(this->isSeenToFinish());
    const QVariantMap failure = this->status().value(u"LastFailure"_s).toMap();
    EXPECT_EQ(failure.value(u"DestinationID"_s).toString(), id);
    EXPECT_FALSE(failure.value(u"Description"_s).toString().isEmpty());
}

} // namespace quillon
