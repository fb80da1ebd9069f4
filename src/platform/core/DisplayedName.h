#pragma once

#include <QString>

namespace quillon {

/// A name from outside, a disk's for example, as it is shown on one line of a menu, a text or a terminal: without
/// percent-encoding, line breaks, what terminals take for commands and marks that turn the direction of writing; its
/// middle is left out where it is too long.
QString displayedName(const QString& name);

} // namespace quillon
