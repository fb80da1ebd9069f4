#include "DateComponentsFormatter.h"
#include "DateFormatter.h"
#include "ScopedEnvironment.h"

#include <QProcess>
#include <QTemporaryDir>

#include <clocale>
#include <cstdio>
#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// A C library whose numbers have a decimal comma: the locale is made on the spot, so that it need not be installed.
class DecimalCommaIntegrationTest : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_EQ(QProcess::execute(u"localedef"_s,
                                    {u"-i"_s, u"de_DE"_s, u"-f"_s, u"UTF-8"_s, folder.filePath(u"de_DE.UTF-8"_s)}),
                  0);
        ASSERT_TRUE(std::setlocale(LC_NUMERIC, "de_DE.UTF-8"));
        char number[8];
        std::snprintf(number, sizeof number, "%.1f", 0.5);
        ASSERT_STREQ(number, "0,5");
    }
    void TearDown() override { std::setlocale(LC_NUMERIC, "C"); }

    QTemporaryDir folder;
    ScopedEnvironment locales{"LOCPATH", folder.path().toLocal8Bit()};
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
