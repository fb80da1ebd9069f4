#include "PracticeTmutil.h"
#include "PropertyList.h"
#include "SimulatedTimeMachine.h"

#include <QFile>

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <memory>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// A tmutil under test, on ground of its own that goes with it.
class ContractSubject {
public:
    ContractSubject() = default;
    ContractSubject(const ContractSubject&) = delete;
    ContractSubject& operator=(const ContractSubject&) = delete;
    virtual ~ContractSubject() = default;

    virtual Answer call(const QStringList& arguments) = 0;

    /// Adds a backup disk of that name; gives its identifier.
    virtual QString addDisk(const QString& name) = 0;

    /// The next backup copies for seconds.
    virtual void makeBackupLong() = 0;

    /// The next backup on that disk fails as soon as it has begun.
    virtual void makeBackupFail(const QString& id) = 0;
};

/// Our tmutil over a real restic.
class OverRestic final : public ContractSubject {
public:
    Answer call(const QStringList& arguments) override { return practice_.run(arguments); }
    QString addDisk(const QString& name) override { return practice_.addDisk(name); }
    void makeBackupLong() override { practice_.writeLargeFile(); }
    void makeBackupFail(const QString& id) override { QFile::remove(practice_.keyFile(id)); }

private:
    PracticeTmutil practice_{QStringLiteral(TMUTIL_EXECUTABLE)};
};

/// What most other tests of the application have in place of a tmutil. Time passes with each call, and only then.
class OverSimulation final : public ContractSubject {
public:
    OverSimulation() { machine_.destinations.clear(); }

    Answer call(const QStringList& arguments) override
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

    QString addDisk(const QString& name) override
    {
        machine_.destinations.append({u"id of "_s + name, name});
        return machine_.destinations.last().id;
    }

    void makeBackupLong() override { machine_.phases = {{u"FindingChanges"_s, 6}, {u"Copying"_s, 3600, true}}; }
    void makeBackupFail(const QString&) override { machine_.phases = {{u"FindingChanges"_s, 6}}; }

private:
    VirtualRunLoop runLoop_{Date()};
    SimulatedTimeMachine machine_{runLoop_};
};

using MakeSubject = std::unique_ptr<ContractSubject> (*)();

template<typename Subject>
std::unique_ptr<ContractSubject> make()
{
    return std::make_unique<Subject>();
}

// In the order in which a run goes through them; it may pass one by unseen.
const QStringList phases{
    u"Starting"_s,       u"FindingBackupVol"_s, u"MountingBackupVol"_s,  u"PreparingSourceVolumes"_s,
    u"FindingChanges"_s, u"Copying"_s,          u"ThinningPostBackup"_s, u"Finishing"_s};

} // namespace

/// What the application relies on.
class TmutilContract : public testing::TestWithParam<MakeSubject> {
protected:
    /// Exit status of a call.
    int call(const QStringList& arguments) const { return subject_->call(arguments).status; }
    QVariantMap status() const
    {
        const Answer answer = subject_->call({u"status"_s});
        EXPECT_EQ(answer.status, 0) << answer.error.toStdString();
        const auto dictionary = parseStatus(answer.output);
        EXPECT_TRUE(dictionary) << answer.output.toStdString();
        return dictionary.value_or(QVariantMap());
    }
    bool isRunning() const { return propertylist::toBoolean(status().value(u"Running"_s)); }
    /// Follows a run to its end; gives the phases seen, each once in a row.
    QStringList phasesUntilEnd() const
    {
        QStringList seen;
        EXPECT_TRUE(eventually([&] {
            const QVariantMap now = status();
            if (!propertylist::toBoolean(now.value(u"Running"_s)))
                return true;
            const QString phase = now.value(u"BackupPhase"_s).toString();
            if (seen.isEmpty() || seen.last() != phase)
                seen.append(phase);
            EXPECT_TRUE(phase == "Copying"_L1 || !now.contains(u"Progress"_s)) << phase.toStdString();
            return false;
        }));
        return seen;
    }
    QVariantList destinations() const
    {
        const Answer answer = subject_->call({u"destinationinfo"_s, u"-X"_s});
        EXPECT_EQ(answer.status, 0);
        const QVariantMap dictionary = propertylist::parse(answer.output).value_or(QVariant()).toMap();
        EXPECT_TRUE(dictionary.contains(u"Destinations"_s));
        return dictionary.value(u"Destinations"_s).toList();
    }

    std::unique_ptr<ContractSubject> subject_ = GetParam()();
};

TEST_P(TmutilContract, WithoutDisksNothingStarts)
{
    EXPECT_TRUE(destinations().isEmpty());
    EXPECT_GT(call({u"startbackup"_s}), 0);
    EXPECT_FALSE(isRunning());
    EXPECT_EQ(call({u"stopbackup"_s}), 0);
}

TEST_P(TmutilContract, AnUnknownDiskIsRefused)
{
    subject_->addDisk(u"disk"_s);
    EXPECT_GT(call({u"startbackup"_s, u"-d"_s, u"00000000-0000-0000-0000-000000000000"_s}), 0);
    EXPECT_FALSE(isRunning());
}

TEST_P(TmutilContract, ARunIsShownFromTheStartUntilItsEndHasBeenSeen)
{
    const QString id = subject_->addDisk(u"disk"_s);
    ASSERT_EQ(call({u"startbackup"_s}), 0);
    const QVariantMap first = status();
    EXPECT_TRUE(propertylist::toBoolean(first.value(u"Running"_s)));
    EXPECT_EQ(first.value(u"DestinationID"_s).toString(), id);

    const QStringList seen = phasesUntilEnd();
    ASSERT_FALSE(seen.isEmpty());
    EXPECT_EQ(seen.last(), u"Finishing"_s);
    EXPECT_TRUE(std::ranges::all_of(seen, [](const QString& phase) { return phases.contains(phase); }));
    EXPECT_TRUE(std::ranges::is_sorted(seen, {}, [](const QString& phase) { return phases.indexOf(phase); }))
        << seen.join(u' ').toStdString();
    EXPECT_FALSE(status().contains(u"LastFailure"_s));
}

TEST_P(TmutilContract, TheDiskAskedForIsUsedAndRemembered)
{
    subject_->addDisk(u"first"_s);
    const QString second = subject_->addDisk(u"second"_s);
    ASSERT_EQ(call({u"startbackup"_s, u"-d"_s, second}), 0);
    EXPECT_EQ(status().value(u"DestinationID"_s).toString(), second);
    phasesUntilEnd();

    for (const QVariant& entry : destinations()) {
        const QVariantMap destination = entry.toMap();
        const bool isSecond = destination.value(u"ID"_s) == second;
        EXPECT_EQ(destination.value(u"Name"_s).toString(), isSecond ? u"second"_s : u"first"_s);
        EXPECT_EQ(propertylist::toInteger(destination.value(u"LastDestination"_s)), isSecond ? 1 : 0);
    }
    // Rotation takes the other one, which has no backup yet.
    ASSERT_EQ(call({u"startbackup"_s, u"-r"_s}), 0);
    EXPECT_NE(status().value(u"DestinationID"_s).toString(), second);
    EXPECT_EQ(call({u"stopbackup"_s}), 0);
}

TEST_P(TmutilContract, AStoppedRunEndsWithoutFinishing)
{
    subject_->addDisk(u"disk"_s);
    subject_->makeBackupLong();
    ASSERT_EQ(call({u"startbackup"_s}), 0);
    EXPECT_GT(call({u"startbackup"_s}), 0) << "a second one beside it";
    ASSERT_TRUE(eventually([this] { return status().value(u"BackupPhase"_s).toString() == "Copying"_L1; }));
    EXPECT_EQ(call({u"stopbackup"_s}), 0);
    const QVariantMap after = status();
    EXPECT_TRUE(!propertylist::toBoolean(after.value(u"Running"_s)) ||
                propertylist::toBoolean(after.value(u"Stopping"_s)));
    const QStringList seen = phasesUntilEnd();
    EXPECT_FALSE(seen.contains(u"ThinningPostBackup"_s) || seen.contains(u"Finishing"_s));
}

TEST_P(TmutilContract, ARunThatFailsAtOnceIsSeenRunningFirst)
{
    const QString id = subject_->addDisk(u"disk"_s);
    subject_->makeBackupFail(id);
    ASSERT_EQ(call({u"startbackup"_s}), 0);
    const QVariantMap first = status();
    EXPECT_TRUE(propertylist::toBoolean(first.value(u"Running"_s)));
    EXPECT_EQ(first.value(u"DestinationID"_s).toString(), id);

    const QStringList seen = phasesUntilEnd();
    EXPECT_FALSE(seen.contains(u"ThinningPostBackup"_s) || seen.contains(u"Finishing"_s));
    const QVariantMap failure = status().value(u"LastFailure"_s).toMap();
    EXPECT_EQ(failure.value(u"DestinationID"_s).toString(), id);
    EXPECT_FALSE(failure.value(u"Description"_s).toString().isEmpty());
}

INSTANTIATE_TEST_SUITE_P(Tools, TmutilContract, testing::Values(&make<OverRestic>, &make<OverSimulation>),
                         [](const auto& tool) { return tool.index == 0 ? "Restic" : "Simulation"; });

} // namespace quillon
