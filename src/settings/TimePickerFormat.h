#pragma once

#include <QString>

namespace quillon {

/// The display format of a QTimeEdit for the Unicode date pattern (UTS 35) of a time of day: hours and minutes in the
/// pattern's order and with its separators, "Ap" where the pattern has a day period. Nothing else that a pattern may
/// hold is a part of a time picker.
QString timePickerFormat(const QString& pattern);

} // namespace quillon
