#include "Text.h"

#include <gtest/gtest.h>
#include <initializer_list>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

TEST(ShownText, IsWhatPeopleCanReadOnOneLine)
{
    const auto writing = u"نسخه‌پشتیبان 👨‍👩‍👧"_s; // its joiners belong to it
    const std::pair<QString, QString> rows[] = {
        {u"Büro & Archiv 💾"_s, u"Büro & Archiv 💾"_s},
        {writing, writing},
        {u"A%0AB%1B%5B2J"_s, u"A B [2J"_s},
        {u"\u009b2J\a\u001b]0;title\u0007"_s, u" 2J  ]0;title "_s},
        {u"photo\u202egpj.exe\u2066\u200f"_s, u"photogpj.exe"_s},
        {QString(3000, u'x') + u"end"_s, QString(40, u'x') + u'\u2026' + QString(37, u'x') + u"end"_s},
        {u"💾"_s.repeated(81), u"💾"_s.repeated(40) + u'\u2026' + u"💾"_s.repeated(40)},
    };
    for (const auto& [name, shown] : rows)
        EXPECT_EQ(displayedName(name), shown) << name.toStdString();
    EXPECT_EQ(shownText(u"\n 100%25 \n"_s, 10), u"100%25"_s) << "a text is no name";
    EXPECT_EQ(shownLongText(QString(501, u'x')), QString(250, u'x') + u'\u2026' + QString(250, u'x'));
}

TEST(TextComparison, RunsOfDigitsCompareAsNumbersOfAnyLength)
{
    for (const auto& [a, b, order] : std::initializer_list<std::tuple<QString, QString, std::strong_ordering>>{
             {u"2.9"_s, u"2.10"_s, std::strong_ordering::less},
             {u"2.0"_s, u"2.0b1"_s, std::strong_ordering::less},
             {u"1.99999999999999999999999"_s, u"1.100000000000000000000000"_s, std::strong_ordering::less},
             {u"\uFFFD"_s, u"\U0001F600"_s, std::strong_ordering::less},
             {u"1.07"_s, u"1.7"_s, std::strong_ordering::equal},
         }) {
        EXPECT_EQ(compareNumerically(a, b), order) << a.toStdString() << " " << b.toStdString();
        // NOLINTNEXTLINE(modernize-use-nullptr): a number
        EXPECT_EQ(compareNumerically(b, a), 0 <=> order) << b.toStdString() << " " << a.toStdString();
    }
}

TEST(TextComparison, CodePointOrderIsNeitherALocalesNorThatOfUtf16)
{
    const std::initializer_list<QString> ordered = {u"A"_s, u"AB"_s, u"a"_s, u"Ä"_s, u"\uFFFD"_s, u"\U0001F600"_s};
    for (const auto* a = ordered.begin(); a != ordered.end(); ++a) {
        for (const auto* b = ordered.begin(); b != ordered.end(); ++b)
            EXPECT_EQ(precedesByCodePoint(*a, *b), a < b) << a->toStdString() << " " << b->toStdString();
    }
}

TEST(TextComparison, PercentEncodingIsRemovedOnceAndWholeOrNotAtAll)
{
    EXPECT_EQ(removePercentEncoding(u"Back%20up+%C3%a9 日%F0%9F%98%80"_s), u"Back up+é 日😀"_s);
    EXPECT_EQ(removePercentEncoding(u"100%2525"_s), u"100%25"_s);
    for (const QString& text : {u"A%20100%"_s, u"%2"_s, u"%G0"_s, u"%0g"_s, u"%FF"_s, u"%C3x"_s})
        EXPECT_FALSE(removePercentEncoding(text)) << text.toStdString();
}

} // namespace quillon
