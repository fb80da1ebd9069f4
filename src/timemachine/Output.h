#pragma once

#include <QByteArray>
#include <QStringList>

namespace quillon {

/// To standard output, at once. Throws Failure.
void print(const QByteArray& text);
void print(const QStringList& lines);

} // namespace quillon
