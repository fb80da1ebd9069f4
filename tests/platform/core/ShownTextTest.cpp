#include "ShownText.h"

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

TEST(ShownText, IsWhatPeopleCanReadOnOneLine)
{
    const struct {
        QString name, shown;
    } cases[] = {
        {u"Büro & Archiv 💾"_s, u"Büro & Archiv 💾"_s},
        {u"نسخه‌پشتیبان 👨‍👩‍👧"_s,
         u"نسخه‌پشتیبان 👨‍👩‍👧"_s}, // joiners belong to the writing
        {u"A%20100%"_s, u"A%20100%"_s},
        {u"A%0AB%1B%5B2J"_s, u"A B [2J"_s},
        {u"\u009b2J\a\u001b]0;title\u0007"_s, u" 2J  ]0;title "_s},
        {u"one\r\ntwo\tthree\u2028four"_s, u"one  two three four"_s},
        {u"photo\u202egpj.exe\u2066\u200f"_s, u"photogpj.exe"_s},
        {QString(3000, u'x') + u"end"_s, QString(40, u'x') + u'\u2026' + QString(37, u'x') + u"end"_s},
        {u"💾"_s.repeated(81), u"💾"_s.repeated(40) + u'\u2026' + u"💾"_s.repeated(40)},
        {u"\u202e"_s, u""_s},
    };
    for (const auto& [name, shown] : cases)
        EXPECT_EQ(displayedName(name), shown) << name.toStdString();
}

} // namespace quillon
