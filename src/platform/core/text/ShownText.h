#pragma once

#include <QString>

namespace quillon {

/// A text from outside, such as the name of a disk, as it can stand among texts of ours: on one line, without marks
/// that would turn around or hide what stands beside it, and no longer than so many characters, of which those in the
/// middle go.
QString shownText(const QString& text, qsizetype longest = 80);

/// The same of a path, or of a sentence that may hold one.
QString shownLongText(const QString& text);

/// The same of a disk's name as Time Machine gives it, without its percent-encoding, and with the spaces at its ends.
QString displayedName(const QString& name);

} // namespace quillon
