#pragma once

#include <QByteArray>
#include <QStringList>
#include <QVariant>

namespace quillon {

/// To standard output, at once. Throws Failure.
void print(const QByteArray& text);
void print(const QStringList& lines);

/// As an XML property list, for programs. Throws Failure also where it holds what no property list can.
void printXml(const QVariant& value);

/// Sentences and the like, which may hold names from a disk: each on one line, without what a terminal would obey.
void printForPeople(const QStringList& lines);

/// To standard error, in the same way, with the program's name.
void printError(const QString& sentence);

} // namespace quillon
