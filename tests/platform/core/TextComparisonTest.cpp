#include "TextComparison.h"

#include <gtest/gtest.h>
#include <initializer_list>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

TEST(TextComparison, RunsOfDigitsCompareAsNumbersOfAnyLength)
{
    for (const auto& [earlier, later] : std::initializer_list<std::pair<QString, QString>>{
             {u"2.9"_s, u"2.10"_s},
             {u"13.0"_s, u"13.0.0"_s},
             {u"2.0"_s, u"2.0b1"_s},
             {u"9.1"_s, u"13.0"_s},
             {u""_s, u"0"_s},
             {u"1.99999999999999999999999"_s, u"1.100000000000000000000000"_s},
             {u"1a"_s, u"1b"_s},
             {u"1.0"_s, u"1a"_s},
             {u"\uFFFD"_s, u"\U0001F600"_s},
         }) {
        EXPECT_EQ(compareNumerically(earlier, later), std::strong_ordering::less)
            << earlier.toStdString() << " " << later.toStdString();
        EXPECT_EQ(compareNumerically(later, earlier), std::strong_ordering::greater)
            << later.toStdString() << " " << earlier.toStdString();
    }
    for (const auto& [a, b] :
         {std::pair(u"14.0"_s, u"14.0"_s), std::pair(u"1.07"_s, u"1.7"_s), std::pair(u""_s, u""_s)})
        EXPECT_EQ(compareNumerically(a, b), std::strong_ordering::equal) << a.toStdString();
}

TEST(TextComparison, CodePointOrderIsNeitherALocalesNorThatOfUtf16)
{
    const std::initializer_list<QString> ordered = {u""_s,  u"A"_s, u"AB"_s,     u"B"_s,         u"a"_s,
                                                    u"z"_s, u"Ä"_s, u"\uFFFD"_s, u"\U0001F600"_s};
    for (const auto* a = ordered.begin(); a != ordered.end(); ++a) {
        for (const auto* b = ordered.begin(); b != ordered.end(); ++b)
            EXPECT_EQ(precedesByCodePoint(*a, *b), a < b) << a->toStdString() << " " << b->toStdString();
    }
}

TEST(TextComparison, PercentEncodingIsRemovedWholeOrNotAtAll)
{
    EXPECT_EQ(removePercentEncoding(u"Back%20up+%C3%a9 日%F0%9F%98%80"_s), u"Back up+é 日😀"_s);
    EXPECT_EQ(removePercentEncoding(u"100%2525"_s), u"100%25"_s) << "decoded once";
    EXPECT_EQ(removePercentEncoding(u"%EF%BB%BFx"_s), u"\uFEFFx"_s);
    for (const QString& text : {u"A%20100%"_s, u"%2"_s, u"%G0"_s, u"%0g"_s, u"%%20"_s, u"%FF"_s, u"%C3"_s, u"%C3x"_s})
        EXPECT_FALSE(removePercentEncoding(text)) << text.toStdString();
}

} // namespace quillon
