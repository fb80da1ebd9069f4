#pragma once

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
    Restore,
    RemoveDestination,
    AddSource,
    RemoveSource,
    ListSources,
    AddExclusion,
    RemoveExclusion,
    ListExclusions,
    IsExcluded,
    RunBackup, ///< the worker that startbackup starts; not for people
    Help,
};

/// A command line that makes sense.
struct CommandLine {
    Command command = Command::Help;
    bool xml = false;    ///< -X
    bool append = false; ///< -a
    bool block = false;  ///< -b, --block
    bool rotate = false; ///< -r, --rotation
    QString destination; ///< -d ID; empty when absent
    QStringList operands;

    /// Reads the arguments after the program's name. Throws Failure with ExitStatus::Usage.
    static CommandLine parse(const QStringList& arguments);

    static QString usage();
};

} // namespace quillon
