#include "BackupPhase.h"

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
