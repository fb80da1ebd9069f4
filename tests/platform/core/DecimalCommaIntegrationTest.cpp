#include "DateComponentsFormatter.h"
#include "DateFormatter.h"
#include "DecimalCommaLocale.h"
#include "ScopedEnvironment.h"

#include <clocale>
#include <cstdio>
#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

class DecimalCommaIntegrationTest : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(std::setlocale(LC_NUMERIC, DecimalCommaLocale::name));
        char number[8];
        std::snprintf(number, sizeof number, "%.1f", 0.5);
        ASSERT_STREQ(number, "0,5");
    }
    void TearDown() override { std::setlocale(LC_NUMERIC, "C"); }

    DecimalCommaLocale comma;
    ScopedEnvironment locales{"LOCPATH", comma.folder().toLocal8Bit()};
    ScopedEnvironment language{"LC_ALL", "en_US.UTF-8"};
};

TEST_F(DecimalCommaIntegrationTest, DateAndDurationTextsStayThoseOfTheUsersLocale)
{
    DateComponentsFormatter formatter;
    formatter.allowedUnits = DateComponentsFormatter::Minutes | DateComponentsFormatter::SecondsUnit;
    EXPECT_EQ(formatter.string(3909.5), u"65:09"_s);
    formatter.unitsStyle = DateComponentsFormatter::UnitsStyle::Abbreviated;
    EXPECT_EQ(formatter.string(3909.5), u"65m 9s"_s);
    const ScopedEnvironment zone("TZ", "UTC");
    const auto date = DateFormatter::date(u"1970-01-01 00:00:01.500"_s, u"yyyy-MM-dd HH:mm:ss.SSS"_s);
    ASSERT_EQ(date, Date(std::chrono::milliseconds(1500)));
    EXPECT_EQ(DateFormatter::string(*date, u"s.SSS"_s), u"1.500"_s);
}

} // namespace
} // namespace quillon
