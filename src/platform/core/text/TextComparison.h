#pragma once

#include <QString>

#include <compare>
#include <optional>

namespace quillon {

/// Compares texts as version numbers are compared: runs of digits as numbers, everything else by code point; of two
/// texts with an equal beginning the longer one is the later.
std::strong_ordering compareNumerically(QStringView a, QStringView b);

/// Orders texts by code point, whatever the locale.
bool precedesByCodePoint(QStringView a, QStringView b);

/// Removes percent-encoding; nothing when a sequence is malformed or the bytes are not UTF-8.
std::optional<QString> removePercentEncoding(const QString& text);

} // namespace quillon
