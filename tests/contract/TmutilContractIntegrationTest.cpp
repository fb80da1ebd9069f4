#include "PropertyList.h"
#include "TmutilContract.h"

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

// In the order in which a run goes through them; it may pass one by unseen.
const QStringList phases{
    u"Starting"_s,       u"FindingBackupVol"_s, u"MountingBackupVol"_s,  u"PreparingSourceVolumes"_s,
    u"FindingChanges"_s, u"Copying"_s,          u"ThinningPostBackup"_s, u"Finishing"_s};

} // namespace

int TmutilContract::call(const QStringList& arguments) const
{
    return subject_->call(arguments).status;
}

QVariantMap TmutilContract::status() const
{
    const Answer answer = subject_->call({u"status"_s});
    EXPECT_EQ(answer.status, 0) << answer.error.toStdString();
    const auto dictionary = parseStatus(answer.output);
    EXPECT_TRUE(dictionary) << answer.output.toStdString();
    return dictionary.value_or(QVariantMap());
}

bool TmutilContract::isRunning() const
{
    return propertylist::toBoolean(status().value(u"Running"_s));
}

QStringList TmutilContract::phasesUntilEnd() const
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

QVariantList TmutilContract::destinations() const
{
    const Answer answer = subject_->call({u"destinationinfo"_s, u"-X"_s});
    EXPECT_EQ(answer.status, 0);
    const QVariantMap dictionary = propertylist::parse(answer.output).value_or(QVariant()).toMap();
    EXPECT_TRUE(dictionary.contains(u"Destinations"_s));
    return dictionary.value(u"Destinations"_s).toList();
}

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

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(TmutilContract);

} // namespace quillon
