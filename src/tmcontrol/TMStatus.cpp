#include "TMStatus.h"

#include "PropertyList.h"

#include <QVariantMap>

#include <algorithm>
#include <array>

namespace quillon::backupphase {

using namespace Qt::StringLiterals;

namespace {

struct Phase {
    QLatin1StringView raw;
    QLatin1StringView phrase;
    const char* key;
};

// The raw words are the system tool's; several of them are one step to a user.
constexpr std::array phases = {
    Phase{""_L1, "N/A"_L1, "notAvailableAbbreviation"},
    Phase{"Starting"_L1, "Starting"_L1, "tmPhaseStarting"},
    Phase{"FindingBackupVol"_L1, "Looking For Backup Disk"_L1, "tmPhaseLookingForDisk"},
    Phase{"MountingBackupVol"_L1, "Connecting To Backup Disk"_L1, "tmPhaseConnectingToDisk"},
    Phase{"MountingDiskImage"_L1, "Connecting To Backup Disk"_L1, "tmPhaseConnectingToDisk"},
    Phase{"ThinningPreBackup"_L1, "Preparing Backup"_L1, "tmPhasePreparingBackup"},
    Phase{"PreparingSourceVolumes"_L1, "Preparing Backup"_L1, "tmPhasePreparingBackup"},
    Phase{"FindingChanges"_L1, "Preparing Backup"_L1, "tmPhasePreparingBackup"},
    Phase{"Copying"_L1, "Copying"_L1, "tmPhaseCopying"},
    Phase{"ThinningPostBackup"_L1, "Cleaning Up"_L1, "tmPhaseCleaningUp"},
    Phase{"MountingBackupVolForHealthCheck"_L1, "Performing Health Check"_L1, "tmPhaseHealthCheck"},
    Phase{"HealthCheckCopyHFSMeta"_L1, "Performing Health Check"_L1, "tmPhaseHealthCheck"},
    Phase{"HealthCheckFsck"_L1, "Performing Health Check"_L1, "tmPhaseHealthCheck"},
    Phase{"Finishing"_L1, "Finishing"_L1, "tmPhaseFinishing"},
    Phase{"Not Running"_L1, "Not Running"_L1, "tmPhaseDefault"},
    Phase{"Unknown"_L1, "Unknown"_L1, "tmPhaseUnknown"},
};

} // namespace

QString phrase(const QString& rawPhase)
{
    const auto found =
        std::find_if(phases.begin(), phases.end(), [&](const Phase& phase) { return rawPhase == phase.raw; });
    return found == phases.end() ? rawPhase : QString(found->phrase);
}

const char* localizationKey(const QString& phrase)
{
    const auto found =
        std::find_if(phases.begin(), phases.end(), [&](const Phase& phase) { return phrase == phase.phrase; });
    return found == phases.end() ? nullptr : found->key;
}

} // namespace quillon::backupphase

namespace quillon {

using namespace Qt::StringLiterals;
using namespace propertylist;

namespace {

/// The property list in the tool's text: from the first "{" to the last "}", whatever stands around it.
QByteArray cutPropertyList(const QByteArray& output)
{
    const auto first = output.indexOf('{');
    const auto last = output.lastIndexOf('}');
    return first < 0 || last < first ? QByteArray() : output.mid(first, last - first + 1);
}

/// Read in single precision, as the tool's own clients do, then widened; negative or not a number is 0.
double fraction(const QVariant& value)
{
    const double number = toFloat(value);
    return number >= 0 ? number : 0.0;
}

/// Scales the progress of the current stage to the whole backup.
double scaleToWholeBackup(double stage, const QVariantMap& status)
{
    if (const auto event = scalar(status, u"EventFractionOfTotalProgressBar"_s); event.isValid()) {
        const double e = fraction(event);
        return (1 - e) * stage + e;
    }
    if (const auto share = scalar(status, u"FractionOfProgressBar"_s); share.isValid()) {
        const double f = fraction(share);
        return f * stage + (1 - f);
    }
    return stage;
}

void readProgress(const QVariantMap& progress, const QVariantMap& status, TMStatus& result)
{
    if (const auto percent = scalar(progress, u"Percent"_s); percent.isValid())
        result.percent = scaleToWholeBackup(fraction(percent), status);
    result.timeRemaining = fraction(scalar(progress, u"TimeRemaining"_s));
    result.bytesCopied = std::max<qlonglong>(toInteger(scalar(progress, u"bytes"_s)), 0);
}

TMStatus runningStatus(const QVariantMap& status)
{
    const auto phase = scalar(status, u"BackupPhase"_s);
    if (!phase.isValid())
        return TMStatus::failure();
    TMStatus result;
    result.phase = phase.toString();
    result.destinationID = scalar(status, u"DestinationID"_s).toString();
    result.state = toBoolean(scalar(status, u"Stopping"_s)) ? TMState::Stopping : TMState::Running;
    if (const auto progress = dictionary(status, u"Progress"_s)) {
        readProgress(*progress, status, result);
    } else {
        const auto share = scalar(status, u"FractionOfProgressBar"_s);
        const auto done = scalar(status, u"FractionDone"_s);
        if (share.isValid() && done.isValid()) // one of the two may be infinite, which times 0 is not 0
            result.percent = fraction(share) * fraction(done);
    }
    return result;
}

} // namespace

TMStatus TMStatus::failure()
{
    TMStatus status;
    status.failed = true;
    status.state = TMState::Unknown;
    status.phase = u"Unknown"_s;
    return status;
}

TMStatus TMStatus::notRunning()
{
    TMStatus status;
    status.phase = u"Not Running"_s;
    return status;
}

TMStatus TMStatus::fromOutput(const std::optional<QByteArray>& output)
{
    if (!output)
        return failure();
    const auto list = parse(cutPropertyList(*output));
    if (!list || list->typeId() != QMetaType::QVariantMap)
        return failure();
    QVariantMap status = list->toMap();
    if (const auto report = dictionary(status, u"lastReport"_s))
        status = *report;
    const auto running = scalar(status, u"Running"_s);
    if (!running.isValid())
        return failure();
    return toBoolean(running) ? runningStatus(status) : notRunning();
}

} // namespace quillon
