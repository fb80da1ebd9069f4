#pragma once

#include <QByteArray>
#include <QStringList>

namespace quillon {

/// To standard output, at once. Throws Failure.
void print(const QByteArray& text);
void print(const QStringList& lines);

/// To standard error, with the program's name.
void printError(const QString& sentence);

} // namespace quillon
