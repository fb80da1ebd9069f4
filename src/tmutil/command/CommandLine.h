#pragma once

#include "Placement.h"
#include "Retention.h"

#include <QString>
#include <QStringList>

namespace quillon {

enum class Command {
    Status,
    DestinationInfo,
    SetDestination,
    StartBackup,
    StopBackup,
    LatestBackup,
    ListBackups,
    ListFiles,
    FindFiles,
    Versions,
    Restore,
    RemoveDestination,
    AddSource,
    RemoveSource,
    ListSources,
    AddExclusion,
    RemoveExclusion,
    ListExclusions,
    IsExcluded,
    Verify,
    RecoveryKey,
    Adopt,
    DeleteBackup,
    Log,
    ListUnread,
    Retention,
    ExcludeName,
    IncludeName,
    ExcludeLarger,
    DiskUsage,
    RunBackup, ///< the worker that startbackup starts; not for people
    Help,
};

/// A command line that makes sense.
struct CommandLine {
    Command command = Command::Help;
    bool xml = false;              ///< -X
    bool append = false;           ///< -a; with listexclusions: all
    bool block = false;            ///< -b, --block
    bool rotate = false;           ///< -r, --rotation
    bool all = false;              ///< --all
    bool trial = false;            ///< --try
    bool json = false;             ///< --json
    bool recursive = false;        ///< listfiles -r
    RestoreRule rule = {};         ///< --keep-both, --replace, --skip
    bool inPlace = false;          ///< --in-place
    QString backup;                ///< findfiles -b BACKUP; empty for all
    QString destination;           ///< -d ID; empty when absent
    QString keptKey;               ///< --kept KEYID; empty when absent
    QString credentials;           ///< --credentials FILE; empty when absent
    QString hostKey;               ///< --accept-host-key FINGERPRINT; empty when absent
    int uploadLimit = -1;          ///< --upload-limit; -1 when absent
    int downloadLimit = -1;        ///< --download-limit; -1 when absent
    KeepRules keep = {-1, -1, -1}; ///< --hourly, --daily, --weekly; -1 where absent
    QStringList operands;

    /// Reads the arguments after the program's name. Throws Failure with ExitStatus::Usage.
    static CommandLine parse(const QStringList& arguments);

    static QString usage();
};

} // namespace quillon
