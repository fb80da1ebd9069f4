#include "TimePickerFormat.h"

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

TEST(TimePickerFormat, KeepsOrderAndSeparatorsOfThePattern)
{
    const struct {
        QString pattern;
        QString format;
    } table[] = {
        {u"HH:mm"_s, u"HH:mm"_s},  {u"h:mm\u202fa"_s, u"h:mm Ap"_s}, {u"ah:mm"_s, u"Aph:mm"_s},
        {u"Bh:mm"_s, u"Aph:mm"_s}, {u"HH 'h' mm"_s, u"HH 'h' mm"_s}, {u"H.mm"_s, u"H.mm"_s},
        {u"kk:mm"_s, u"HH:mm"_s},  {u"HH:mm zzzz"_s, u"HH:mm"_s},
    };
    for (const auto& [pattern, format] : table)
        EXPECT_EQ(timePickerFormat(pattern), format) << pattern.toStdString();
}

} // namespace quillon
