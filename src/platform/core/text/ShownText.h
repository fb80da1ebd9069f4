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

/// A text from outside, such as the name of a disk, as it can stand among texts of ours: on one line, without marks
/// that would turn around or hide what stands beside it, and no longer than so many characters, of which those in the
/// middle go.
QString shownText(const QString& text, qsizetype longest = 80);

/// The same of a path, or of a sentence that may hold one.
QString shownLongText(const QString& text);

/// The same of a disk's name as Time Machine gives it, without its percent-encoding, and with the spaces at its ends.
QString displayedName(const QString& name);

} // namespace quillon
