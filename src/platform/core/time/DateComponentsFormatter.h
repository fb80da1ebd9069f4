#pragma once

#include <QFlags>
#include <QString>

namespace quillon {

/// Texts for lengths of time, such as "1h 30m", in the user's locale.
///
/// Values are cut off, never rounded; a day has 24 hours.
class DateComponentsFormatter {
public:
    enum Unit { Days = 1, Hours = 2, Minutes = 4, SecondsUnit = 8 };
    Q_DECLARE_FLAGS(Units, Unit)

    /// Raw values of macOS.
    enum class UnitsStyle { Positional = 0, Abbreviated = 1 };
    enum class ZeroFormatting { None = 0, DropLeading = 2 };

    Units allowedUnits = SecondsUnit;
    UnitsStyle unitsStyle = UnitsStyle::Positional;
    ZeroFormatting zeroFormatting = ZeroFormatting::DropLeading;

    /// A NaN reads as 0, more than 1e15 seconds as 1e15. Of a negative length the first unit carries the sign.
    QString string(double seconds) const;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(DateComponentsFormatter::Units)

} // namespace quillon
