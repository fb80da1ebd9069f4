#pragma once

#include "Date.h"

#include <QFlags>
#include <QString>

#include <optional>

namespace quillon {

/// Lengths of a date or time text, with the raw values of macOS.
enum class DateFormatterStyle { None = 0, Short = 1, Medium = 2, Long = 3, Full = 4 };

/// Date and time texts in the user's locale and the host's current time zone.
class DateFormatter {
public:
    static QString string(Date date, DateFormatterStyle dateStyle, DateFormatterStyle timeStyle);

    /// The Unicode date pattern (UTS 35) of those styles, such as "h:mm a"; empty where both are None.
    static QString pattern(DateFormatterStyle dateStyle, DateFormatterStyle timeStyle);

    /// `pattern` is a Unicode date pattern (UTS 35), such as "yyyy".
    static QString string(Date date, const QString& pattern);

    /// Nothing when the text does not match the pattern as a whole.
    static std::optional<Date> date(const QString& text, const QString& pattern);

    /// Name of a weekday in the form used inside a date; 1 is Sunday.
    static QString weekdayName(int weekday);
};

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
