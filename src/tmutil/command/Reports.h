#pragma once

#include "Destination.h"
#include "Failure.h"
#include "Paths.h"
#include "RunState.h"

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <optional>
#include <vector>

namespace quillon {

class Configuration;
class History;

/// To standard output, at once. Throws Failure.
void print(const QByteArray& text);
void print(const QStringList& lines);

/// As an XML property list, for programs. Throws Failure also where it holds what no property list can.
void printXml(const QVariant& value);

/// An object on a line of its own, for programs.
void printJson(const QJsonObject& object);

struct ListedFile;

/// A file of a backup for programs: what is known of it, each where it applies.
QJsonObject jsonOf(const ListedFile& file);
/// The same for people, by that name: size, time of the last change, name.
QByteArray lineOf(const ListedFile& file, const QString& name);

/// Sentences and the like, which may hold names from a disk: each on one line, without what a terminal would obey.
void printForPeople(const QStringList& lines);

/// To standard error, in the same way, with the program's name.
void printError(const QString& sentence);

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
