#include "TMReports.h"

#include "PropertyList.h"
#include "Text.h"

#include <QVariantMap>

#include <algorithm>
#include <array>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace propertylist;

namespace {

/// The server's name in an address such as "smb://user@Server._smb._tcp.local/Share": what follows the "@" up to the
/// next "."; empty when there is none.
QString serverName(const QString& url)
{
    const QString behind = url.section(u'@', 1);
    return behind.contains(u'.') ? behind.section(u'.', 0, 0) : QString();
}

std::optional<BackupDestination> readDestination(const QVariantMap& entry)
{
    const auto name = scalar(entry, u"Name"_s);
    if (!name.isValid())
        return std::nullopt;
    BackupDestination destination;
    destination.name = name.toString();
    if (scalar(entry, u"Kind"_s).toString() == "Network"_L1) {
        const auto server = serverName(scalar(entry, u"URL"_s).toString());
        if (!server.isEmpty())
            destination.name += u" - "_s + server + u".local"_s;
    }
    destination.id = scalar(entry, u"ID"_s).toString();
    destination.isLast = toInteger(scalar(entry, u"LastDestination"_s)) == 1;
    destination.isMounted = entry.contains(u"MountPoint"_s);
    return destination;
}

} // namespace

BackupDestinations BackupDestinations::fromOutput(const std::optional<QByteArray>& output)
{
    if (!output || output->isEmpty())
        return {};
    const auto list = parse(*output);
    const auto entries = list ? list->toMap().value(u"Destinations"_s) : QVariant();
    if (entries.typeId() != QMetaType::QVariantList)
        return {false, {}};
    BackupDestinations result;
    for (const auto& entry : entries.toList()) {
        if (auto destination = readDestination(entry.toMap()))
            result.list.append(std::move(*destination));
    }
    std::stable_sort(result.list.begin(), result.list.end(),
                     [](const auto& a, const auto& b) { return precedesByCodePoint(a.id, b.id); });
    return result;
}

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
        if (share.isValid() && done.isValid()) // a missing one would read as 0, which times infinity is not 0
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
    if (toBoolean(running))
        return runningStatus(status);
    TMStatus idle = notRunning();
    if (const auto failure = dictionary(status, u"LastFailure"_s)) { // our tool has it
        idle.lastFailure = scalar(*failure, u"Description"_s).toString();
        idle.damageIsKnown = scalar(*failure, u"Cause"_s).toString() == "Damaged"_L1;
    }
    return idle;
}

} // namespace quillon

namespace quillon::backupphase {

namespace {

// The raw words are the system tool's; several of them are one step to a user.
constexpr std::array phrases = {
    std::pair{""_L1, "N/A"_L1},
    std::pair{"FindingBackupVol"_L1, "Looking For Backup Disk"_L1},
    std::pair{"MountingBackupVol"_L1, "Connecting To Backup Disk"_L1},
    std::pair{"MountingDiskImage"_L1, "Connecting To Backup Disk"_L1},
    std::pair{"ThinningPreBackup"_L1, "Preparing Backup"_L1},
    std::pair{"PreparingSourceVolumes"_L1, "Preparing Backup"_L1},
    std::pair{"FindingChanges"_L1, "Preparing Backup"_L1},
    std::pair{"ThinningPostBackup"_L1, "Cleaning Up"_L1},
    std::pair{"MountingBackupVolForHealthCheck"_L1, "Performing Health Check"_L1},
    std::pair{"HealthCheckCopyHFSMeta"_L1, "Performing Health Check"_L1},
    std::pair{"HealthCheckFsck"_L1, "Performing Health Check"_L1},
};

constexpr std::array keys = {
    std::pair{"N/A"_L1, "notAvailableAbbreviation"},
    std::pair{"Starting"_L1, "tmPhaseStarting"},
    std::pair{"Looking For Backup Disk"_L1, "tmPhaseLookingForDisk"},
    std::pair{"Connecting To Backup Disk"_L1, "tmPhaseConnectingToDisk"},
    std::pair{"Preparing Backup"_L1, "tmPhasePreparingBackup"},
    std::pair{"Copying"_L1, "tmPhaseCopying"},
    std::pair{"Cleaning Up"_L1, "tmPhaseCleaningUp"},
    std::pair{"Performing Health Check"_L1, "tmPhaseHealthCheck"},
    std::pair{"Finishing"_L1, "tmPhaseFinishing"},
    std::pair{"Not Running"_L1, "tmPhaseDefault"},
    std::pair{"Unknown"_L1, "tmPhaseUnknown"},
};

} // namespace

QString phrase(const QString& rawPhase)
{
    const auto found = std::ranges::find(phrases, rawPhase, &decltype(phrases)::value_type::first);
    return found == phrases.end() ? rawPhase : QString(found->second);
}

const char* localizationKey(const QString& phrase)
{
    const auto found = std::ranges::find(keys, phrase, &decltype(keys)::value_type::first);
    return found == keys.end() ? nullptr : found->second;
}

} // namespace quillon::backupphase
