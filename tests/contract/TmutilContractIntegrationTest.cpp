#include "PracticeTmutil.h"
#include "PropertyList.h"
#include "SimulatedTimeMachine.h"

#include <QFile>

#include <algorithm>
#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// Our tmutil over a real restic.
class OverRestic {
public:
    Answer call(const QStringList& arguments) { return practice_.run(arguments); }
    QString addDisk(const QString& name) { return practice_.addDisk(name); }
    void makeBackupLong()
    {
        practice_.write(u"source/large"_s, {});
        QFile::resize(practice_.path(u"source/large"_s), qint64{2} << 30); // takes time and no room
    }
    void makeBackupFail(const QString& id)
    {
        QFile::remove(practice_.configurationFolder() + "/keys/"_L1 + id + ".key"_L1);
    }

private:
    PracticeTmutil practice_{QStringLiteral(TMUTIL_EXECUTABLE)};
};

/// What most other tests of the application have in place of a tmutil. Time passes with each call, and only then.
class OverSimulation {
public:
    OverSimulation() { machine_.destinations.clear(); }

    Answer call(const QStringList& arguments)
    {
        Answer answer;
        const auto child = machine_.launch(
            {.executable = u"tmutil"_s, .arguments = arguments, .environment = {u"command="_s + arguments.value(0)}},
            [&answer](const TaskResult& result) {
                answer = {result.status, result.output.value_or(QByteArray()), {}};
            });
        constexpr Seconds betweenCalls(3);
        runLoop_.advance(betweenCalls);
        return answer;
    }
    QString addDisk(const QString& name)
    {
        machine_.destinations.append({u"id of "_s + name, name});
        return machine_.destinations.last().id;
    }
    void makeBackupLong() { machine_.phases = {{u"FindingChanges"_s, 6}, {u"Copying"_s, 3600, true}}; }
    void makeBackupFail(const QString&) { machine_.phases = {{u"FindingChanges"_s, 6}}; }

private:
    VirtualRunLoop runLoop_{Date()};
    SimulatedTimeMachine machine_{runLoop_};
};

// In the order in which a run goes through them; it may pass one by unseen.
const QStringList phases{
    u"Starting"_s,       u"FindingBackupVol"_s, u"MountingBackupVol"_s,  u"PreparingSourceVolumes"_s,
    u"FindingChanges"_s, u"Copying"_s,          u"ThinningPostBackup"_s, u"Finishing"_s};

} // namespace

/// What the application relies on in a tmutil, each on ground of its own that goes with it.
template<typename Tool>
class TmutilContract : public testing::Test {
protected:
    /// Exit status of a call.
    int call(const QStringList& arguments) { return tool_.call(arguments).status; }
    QVariantMap status()
    {
        const Answer answer = tool_.call({u"status"_s});
        EXPECT_EQ(answer.status, 0) << answer.error.toStdString();
        const auto dictionary = parseStatus(answer.output);
        EXPECT_TRUE(dictionary) << answer.output.toStdString();
        return dictionary.value_or(QVariantMap());
    }
    static bool isSet(const QVariantMap& dictionary, const QString& key)
    {
        return propertylist::toBoolean(dictionary.value(key));
    }
    void expectRunTo(const QString& id)
    {
        const QVariantMap now = status();
        EXPECT_TRUE(isSet(now, u"Running"_s));
        EXPECT_EQ(now.value(u"DestinationID"_s).toString(), id);
    }
    /// Follows a run to its end; gives the phases seen, each once in a row.
    QStringList phasesUntilEnd()
    {
        QStringList seen;
        EXPECT_TRUE(eventually([&] {
            const QVariantMap now = status();
            if (!isSet(now, u"Running"_s))
                return true;
            const QString phase = now.value(u"BackupPhase"_s).toString();
            if (seen.isEmpty() || seen.last() != phase)
                seen.append(phase);
            EXPECT_TRUE(phase == "Copying"_L1 || !now.contains(u"Progress"_s)) << phase.toStdString();
            return false;
        }));
        return seen;
    }
    QVariantList destinations()
    {
        const Answer answer = tool_.call({u"destinationinfo"_s, u"-X"_s});
        EXPECT_EQ(answer.status, 0);
        const QVariantMap dictionary = propertylist::parse(answer.output).value_or(QVariant()).toMap();
        EXPECT_TRUE(dictionary.contains(u"Destinations"_s));
        return dictionary.value(u"Destinations"_s).toList();
    }

    Tool tool_;
};

using Tools = testing::Types<OverRestic, OverSimulation>;
TYPED_TEST_SUITE(TmutilContract, Tools, );

TYPED_TEST(TmutilContract, WithoutTheDiskNothingStarts)
{
    EXPECT_TRUE(this->destinations().isEmpty());
    EXPECT_GT(this->call({u"startbackup"_s}), 0);
    this->tool_.addDisk(u"disk"_s);
    EXPECT_GT(this->call({u"startbackup"_s, u"-d"_s, u"00000000-0000-0000-0000-000000000000"_s}), 0);
    EXPECT_FALSE(this->isSet(this->status(), u"Running"_s));
    EXPECT_EQ(this->call({u"stopbackup"_s}), 0);
}

TYPED_TEST(TmutilContract, ARunToTheDiskAskedForIsShownFromTheStartUntilItsEndHasBeenSeen)
{
    const QString first = this->tool_.addDisk(u"first"_s);
    const QString second = this->tool_.addDisk(u"second"_s);
    ASSERT_EQ(this->call({u"startbackup"_s, u"-d"_s, second}), 0);
    this->expectRunTo(second);
    const QStringList seen = this->phasesUntilEnd();
    ASSERT_FALSE(seen.isEmpty());
    EXPECT_EQ(seen.last(), u"Finishing"_s);
    EXPECT_TRUE(std::ranges::all_of(seen, [](const QString& phase) { return phases.contains(phase); }));
    EXPECT_TRUE(std::ranges::is_sorted(seen, {}, [](const QString& phase) { return phases.indexOf(phase); }))
        << seen.join(u' ').toStdString();
    EXPECT_FALSE(this->status().contains(u"LastFailure"_s));

    for (const QVariant& entry : this->destinations()) {
        const QVariantMap destination = entry.toMap();
        const bool isSecond = destination.value(u"ID"_s) == second;
        EXPECT_EQ(destination.value(u"Name"_s).toString(), isSecond ? u"second"_s : u"first"_s);
        EXPECT_EQ(this->isSet(destination, u"LastDestination"_s), isSecond);
    }
    // Rotation takes the other one, which has no backup yet.
    ASSERT_EQ(this->call({u"startbackup"_s, u"-r"_s}), 0);
    this->expectRunTo(first);
    EXPECT_EQ(this->call({u"stopbackup"_s}), 0);
}

TYPED_TEST(TmutilContract, AStoppedRunEndsWithoutFinishing)
{
    this->tool_.addDisk(u"disk"_s);
    this->tool_.makeBackupLong();
    ASSERT_EQ(this->call({u"startbackup"_s}), 0);
    EXPECT_GT(this->call({u"startbackup"_s}), 0) << "a second one beside it";
    ASSERT_TRUE(eventually([this] { return this->status().value(u"BackupPhase"_s).toString() == "Copying"_L1; }));
    EXPECT_EQ(this->call({u"stopbackup"_s}), 0);
    const QVariantMap after = this->status();
    EXPECT_TRUE(!this->isSet(after, u"Running"_s) || this->isSet(after, u"Stopping"_s));
    const QStringList seen = this->phasesUntilEnd();
    EXPECT_FALSE(seen.contains(u"ThinningPostBackup"_s) || seen.contains(u"Finishing"_s));
}

TYPED_TEST(TmutilContract, ARunThatFailsAtOnceIsSeenRunningFirst)
{
    const QString id = this->tool_.addDisk(u"disk"_s);
    this->tool_.makeBackupFail(id);
    ASSERT_EQ(this->call({u"startbackup"_s}), 0);
    this->expectRunTo(id);
    const QStringList seen = this->phasesUntilEnd();
    EXPECT_FALSE(seen.contains(u"ThinningPostBackup"_s) || seen.contains(u"Finishing"_s));
    const QVariantMap failure = this->status().value(u"LastFailure"_s).toMap();
    EXPECT_EQ(failure.value(u"DestinationID"_s).toString(), id);
    EXPECT_FALSE(failure.value(u"Description"_s).toString().isEmpty());
}

} // namespace quillon
