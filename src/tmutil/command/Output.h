#pragma once

#include "Failure.h"

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QVariant>

namespace quillon {

/// The worker's end of the line to the `startbackup` that has started it. The caller may hang up at any time.
class CallerChannel {
public:
    /// The descriptor at which a worker finds its channel.
    static constexpr int descriptor = 3;

    /// The lock is held, and the status shows the run.
    void tellReady() const;

    /// The worker ends.
    void tellEnd(ExitStatus status, const QString& message) const;

private:
    static void send(const QByteArray& line);
};

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

} // namespace quillon
