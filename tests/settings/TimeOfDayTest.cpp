#include "SettingsViewController.h"
#include "TimePicker.h"

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

TEST(TimePickerFormat, KeepsOrderAndSeparatorsOfThePattern)
{
    const std::pair<QString, QString> table[] = {
        {u"HH:mm"_s, u"HH:mm"_s},           {u"h:mm\u202fa"_s, u"h:mm Ap"_s}, {u"ah:mm"_s, u"Aph:mm"_s},
        {u"Bh:mm"_s, u"Aph:mm"_s},          {u"HH 'h' mm"_s, u"HH 'h' mm"_s}, {u"H.mm"_s, u"H.mm"_s},
        {u"kk:mm"_s, u"HH:mm"_s},           {u"HH:mm zzzz"_s, u"HH:mm"_s},    {u"K:mm b"_s, u"h:mm Ap"_s},
        {u"HH:mm ZZ"_s, u"HH:mm"_s},        {u"A H:mm"_s, u"H:mm"_s},         {u"{H}:mm"_s, u"{H}:mm"_s},
        {u"H\u00e9mm"_s, u"Hémm"_s},        {u"[H]@mm"_s, u"[H]@mm"_s},       {u"ss'ss'H"_s, u"'ss'H"_s},
        {u"'Uhr' HHmm"_s, u"'Uhr' HHmm"_s},
    };
    for (const auto& [pattern, format] : table)
        EXPECT_EQ(timePickerFormat(pattern), format) << pattern.toStdString();
}

TEST(TimeOfARule, IsWholeMinutesOfADay)
{
    for (const auto& [seconds, time] : {std::pair{0, QTime(0, 0)},
                                        {27931, QTime(7, 45)},
                                        {43200, QTime(12, 0)},
                                        {86399, QTime(23, 59)},
                                        {90000, QTime(1, 0)}}) {
        EXPECT_EQ(SettingsViewController::todayWithIntervalSinceMidnight(seconds), time) << seconds;
        EXPECT_EQ(SettingsViewController::secondsSinceMidnightFromDate(time), seconds % 86400 / 60 * 60);
    }
}

} // namespace quillon
