#pragma once

#include "Destination.h"
#include "Folders.h"
#include "Paths.h"
#include "RunState.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

namespace quillon {

/// How the worker learns what `status` has told its callers: an empty file per run and kind of report. Making a file
/// that exists already changes nothing, so any number of callers may mark at once.
class ReportMarks {
public:
    explicit ReportMarks(const QString& stateFolder);

    /// Throws Failure when the folder cannot be made.
    void clear() const;

    /// A caller has been told that this run runs, or that it is finishing.
    void mark(const QString& runId, bool finishing) const;

    bool isReported(const QString& runId) const;
    bool isFinishingReported(const QString& runId) const;

private:
    QString path(const QString& runId, bool finishing) const;

    QString folder_;
};

class Configuration;
class History;

/// What `destinationinfo` says, for people and, as an XML property list, for programs, which are told "Path" and, where
/// there is one, the date "LastBackup" besides what the system tool tells; of a disk that is there also "BytesFree" and
/// "BytesTotal", of one with a failure "LastFailure", "RecoveryKeyMissing" where the user is not known to have one, and
/// "SourceOnDisk", a folder that is backed up and would be lost with the disk.
/// A disk that is not there is listed without its mount point. A network place, which is not asked, is told by its URL
/// in the place of all that, with what is set for it. Throws Failure for names that no property list can hold.
QByteArray destinationText(const std::vector<Destination>& destinations, const History& history,
                           const Folders& folders);
QByteArray destinationXml(const Configuration& configuration, const History& history, const Folders& folders,
                          const MountTable& mounts = MountTable::current());

/// What `status` says, in the system tool's words.
class StatusReport {
public:
    /// Throws Failure where it cannot be told whether a backup runs.
    explicit StatusReport(const Folders& folders);

    /// A heading line and an old-style property list. Progress is there while copying only; the cause of the last
    /// failure stands under "LastFailure" until a backup has succeeded. Throws Failure.
    QByteArray text() const;

    /// To be called once the caller has the text: the worker waits to be seen before it ends a run.
    void markReported() const;

private:
    QVariantMap dictionary() const;

    QVariantMap failure() const;

    Folders folders_;
    std::optional<RunState> run_;
};

} // namespace quillon
