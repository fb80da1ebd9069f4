#pragma once

#include <QFont>

namespace quillon {

/// The font with colour emoji: Qt 6.4 prefers any font that has a glyph to the one that has it in colour.
QFont withColorEmoji(QFont font);

} // namespace quillon
