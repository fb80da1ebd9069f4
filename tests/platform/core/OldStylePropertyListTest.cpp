#include "PropertyList.h"

#include <QDateTime>
#include <QVariantList>
#include <QVariantMap>

#include <gtest/gtest.h>
#include <vector>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

using Place = std::pair<qsizetype, qsizetype>; // line and column

Place refusal(QByteArrayView text)
{
    propertylist::ParseError error;
    EXPECT_FALSE(propertylist::parseOldStyle(text, &error));
    EXPECT_FALSE(error.message.isEmpty());
    return {error.line, error.column};
}

} // namespace

TEST(OldStylePropertyList, TextsReadAsTheyAreMeant)
{
    const std::pair<QByteArrayView, QVariant> rows[] = {
        {R"("\a\b\f\n\r\t\v\\\"\'")", u"\a\b\f\n\r\t\v\\\"'"_s},
        {"\"one\\\ntwo\"", u"one\ntwo"_s},
        {R"('it\'s "here"')", u"it's \"here\""_s},
        {R"("\101\60\7x\1010")", u"A0\ax"_s + u"A0"_s},
        {R"("\200\344\240\256\341")", u"\u00A0\u00EE\u00A9\uFB01\u00C6"_s}, // bytes are NEXTSTEP, not Latin-1
        {R"("\U00e9t\U00C9 \Ud83d\UDE00x")", u"\u00E9t\u00C9 \U0001F600x"_s},
        {"\"a\\\\\"", uR"(a\)"_s}, // an escaped backslash does not escape the quote behind it
        {"\"Übung\n 日本 \xF0\x9F\x98\x80\"", u"Übung\n 日本 😀"_s},
        {"\xEF\xBB\xBF\"x\"", u"x"_s}, // a byte order mark in front is no part of the text, but in a string it is
        {"\"\xEF\xBB\xBF\\n\xEF\xBB\xBF\"", u"\uFEFF\n\uFEFF"_s},
        {"\"\"", u""_s},
        {"/Volumes/$HOME_x-1.0:2", u"/Volumes/$HOME_x-1.0:2"_s},
        {"http://host", u"http://host"_s}, // within a word two slashes begin no comment
        {"<0fb d77\n1c27 35AE>", QByteArray::fromHex("0fbd771c2735ae")},
        {"<>", QByteArray()},
        {"// heading\r/* a { */ {/**/a //}\n=/* = */(/*,*/ b /***/,\v\f 'c')//\n;}\r\n// end",
         QVariantMap{{u"a"_s, QVariantList{u"b"_s, u"c"_s}}}},
        {"{}", QVariantMap()},
        {"( a, )", QVariantList{u"a"_s}},
        {"{ b = 1; a = 2; b = 3; a = 4; }", QVariantMap{{u"a"_s, u"4"_s}, {u"b"_s, u"3"_s}}},
    };
    for (const auto& [text, value] : rows) {
        propertylist::ParseError error;
        EXPECT_EQ(propertylist::parseOldStyle(text, &error), value)
            << text.toByteArray().toStdString() << ": " << error.message.toStdString();
    }
}

TEST(OldStylePropertyList, RefusalsNameTheLineAndColumn)
{
    // Each is at the mark, which is no part of the text.
    const QByteArray refused =
        "^|{\n  a = 1\n  ^b = 2;\n}|{\n  a  ^1;\n}|{ a = 1; ^|{ a^; }|{ ^(a) = 1; }|a ^= 1;|( a ^b )|"
        "( a,^, b )|( a ^}|^\"never\nclosed|( ^'never closed\\')|\n \"un^\\known\"|\"^\\400\"|"
        "\"^\\U12\"|\"^\\U12g4\"|\"^\\Ud83d\"|\"^\\Ud83d\\n\"|\"^\\Ud83d\\U0041\"|\"x^\\Ude00\"|"
        "<0^g>|<012^>|^<01|^/* never closed|a ^/|caf^\xC3\xA9|\n\"\xC3\xA9^\xFF\"|"
        "\"^\xED\xA0\x80\"|\"^\xC3";
    for (const QByteArray& marked : refused.split('|') + QByteArrayList{QByteArray("a^\0", 3)}) {
        const QByteArray before = marked.first(marked.indexOf('^'));
        const Place place(1 + before.count('\n'), before.size() - before.lastIndexOf('\n'));
        EXPECT_EQ(refusal(QByteArray(marked).remove(before.size(), 1)), place) << marked.toStdString();
    }
    const auto nested = [](qsizetype depth, const char* open, const char* close) {
        return QByteArray(open).repeated(depth) + "x" + QByteArray(close).repeated(depth);
    };
    EXPECT_TRUE(propertylist::parseOldStyle(nested(512, "(", ")")));
    EXPECT_TRUE(propertylist::parseOldStyle(nested(512, "{a=", ";}")));
    EXPECT_EQ(refusal(nested(513, "(", ")")), Place(1, 513));
    EXPECT_EQ(refusal(nested(200'000, "{a=", ";}")), Place(1, 3 * 512 + 1));
    EXPECT_EQ(refusal(QByteArray(1'000'000, '(')), Place(1, 513));
    const QByteArray whole = R"({ "a\101\U0041" = ( <0f>, 'b', /* c */ { d = e; } ); })";
    for (qsizetype length = 0; length < whole.size(); ++length) {
        // A buffer of exactly this size: the sanitizer sees any byte read behind it.
        const std::vector<char> part(whole.begin(), whole.begin() + length);
        EXPECT_FALSE(propertylist::parseOldStyle(QByteArrayView(part.data(), length))) << length;
    }
}

TEST(OldStylePropertyList, WrittenListsLookLikeTheSystemToolsOwnAndReadTheSame)
{
    const QVariantMap value{
        {u"BackupPhase"_s, u"Copying"_s},
        {u"Data"_s, QByteArray::fromHex("0fbd771c2735ae")},
        {u"Empty"_s, QString()},
        {u"Progress"_s, QVariantMap{{u"Percent"_s, 0.25}, {u"_raw_totalBytes"_s, 12LL}, {u"bytes"_s, -1}}},
        {u"Running"_s, true},
        {u"Sources"_s, QVariantList{u"/"_s, QVariantMap{{u"a"_s, u"\u00E9\"\\\n\a\b\f\r\t\v\x01\x7F ~"_s}}}},
        {u"When"_s, QDateTime::fromString(u"2024-05-20T13:39:06+02:00"_s, Qt::ISODate)},
    };
    const QByteArray text = R"({
    BackupPhase = Copying;
    Data = <0fbd771c 2735ae>;
    Empty = "";
    Progress =     {
        Percent = "0.25";
        "_raw_totalBytes" = 12;
        bytes = "-1";
    };
    Running = 1;
    Sources =     (
        "/",
                {
            a = "\U00e9\"\\\n\a\b\f\r\t\v\001\177 ~";
        }
    );
    When = "2024-05-20 11:39:06 +0000";
}
)";
    EXPECT_EQ(propertylist::toOldStyle(value).value_or("refused").toStdString(), text.toStdString());
    EXPECT_EQ(propertylist::toOldStyle(propertylist::parse(text).value_or(QVariant())), text);
}

} // namespace quillon
