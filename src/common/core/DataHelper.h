#pragma once

#include "DateFormatter.h"
#include "ProcessInfo.h"

#include <QString>
#include <QStringView>

namespace quillon {

/// Short texts for dates and versions, and the date of a retry. Texts are in the user's locale and current time zone.
class DataHelper {
public:
    /// The current year, four digits.
    static QString getCurrentYear(Date now);

    /// The date that a text stands for; nothing when it does not match `format`, a Unicode date pattern.
    static std::optional<Date> convertDateString(const QString& text, const QString& format);

    /// A day relative to today: "Tomorrow", "Today", "Yesterday", the weekday's name for two to six days ago, and for
    /// every other day the date in the given style.
    static QString getDayFrom(Date date, DateFormatterStyle style, Date now);

    /// Such as "Tomorrow, 12:00".
    static QString dayAndTime(Date date, DateFormatterStyle dayStyle, Date now);

    static QString getDateTimeFrom(Date date, DateFormatterStyle dateStyle, DateFormatterStyle timeStyle);

    /// The start of the next whole minute after now plus `interval`, both in whole seconds: one minute on even when
    /// that moment is the start of a minute itself.
    static Date dateSinceNowWithCeiledMinutes(Seconds interval, Date now);

    /// Version and build of the application, such as "1.0.0 (Build 1)".
    static QString bundleVersionString();

    /// Such as "14.2.1".
    static QString stringFromSystemVersion(const OperatingSystemVersion& version);
};

/// Version of the system that runs this program, such as "14.2.1", unless the environment variable
/// QUILLON_SYSTEM_VERSION says otherwise.
QString systemVersion();

/// Whether the system that runs this program has this version or a later one, compared number by number: "13.10" is
/// later than "13.9".
bool systemIsAtLeast(QStringView version);

/// How to switch Time Machine's own automatic backups off, in the words of this system's settings.
QString disableTimeMachineInstruction();

} // namespace quillon
