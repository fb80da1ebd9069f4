#include "PropertyList.h"

#include <QDateTime>
#include <QVariantList>
#include <QVariantMap>

#include <cmath>
#include <gtest/gtest.h>
#include <initializer_list>
#include <limits>
#include <tuple>
#include <vector>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr float infinity = std::numeric_limits<float>::infinity();
constexpr auto largest = std::numeric_limits<qlonglong>::max();
constexpr auto smallest = std::numeric_limits<qlonglong>::min();

QDateTime utc(const QString& text)
{
    return QDateTime::fromString(text, Qt::ISODateWithMs);
}

QVariantMap everyKind()
{
    return {{u"array"_s, QVariantList{u"a"_s, QVariantList(), QVariantMap{{u"k"_s, true}}}},
            {u"data"_s, QByteArray::fromHex("00ff10")},
            {u"date"_s, utc(u"2024-05-20T11:39:06Z"_s)},
            {u"before 2001"_s, utc(u"1985-10-26T01:21:00Z"_s)},
            {u"empty"_s, QString()},
            {u"false"_s, false},
            {u"<key> & \u00E9 \"'\r\n"_s, u" <text> & \u65E5\u672C \U0001F600 \n \r\uFFFD"_s},
            {u"integers"_s, QVariantList{largest, smallest, -5LL}},
            {u"reals"_s, QVariantList{0.1, -1e-300, double(infinity), double(-infinity)}},
            {u"mark"_s, u"\uFEFFx"_s}};
}

QByteArray xml(const QByteArray& content)
{
    return R"(<?xml version="1.0" encoding="UTF-8"?><plist version="1.0">)" + content + "</plist>";
}

std::optional<QVariant> inXml(const QVariant& value)
{
    return propertylist::parse(propertylist::toXml(value).value_or(""));
}

std::optional<QVariant> inBinary(const QVariant& value)
{
    return propertylist::parse(propertylist::toBinary(value).value_or(""));
}

/// A binary list of the given objects, the first one outermost; offsets and references take one byte.
QByteArray binary(const QByteArrayList& objects)
{
    QByteArray bytes = "bplist00";
    QByteArray offsets;
    for (const QByteArray& object : objects) {
        offsets.append(static_cast<char>(bytes.size()));
        bytes.append(object);
    }
    const auto offsetTable = static_cast<char>(bytes.size());
    return bytes + offsets + QByteArray(6, '\0') + "\x01\x01" + QByteArray(7, '\0') +
           static_cast<char>(objects.size()) + QByteArray(15, '\0') + offsetTable;
}

using Place = std::pair<qsizetype, qsizetype>; // line and column

Place refusal(QByteArrayView text)
{
    propertylist::ParseError error;
    EXPECT_FALSE(propertylist::parseOldStyle(text, &error));
    EXPECT_FALSE(error.message.isEmpty());
    return {error.line, error.column};
}

} // namespace

TEST(PropertyList, XmlAndBinaryListsGiveBackWhatWasWrittenInXmlWithoutFractionsOfASecond)
{
    EXPECT_EQ(inXml(everyKind()), everyKind());
    EXPECT_EQ(inBinary(everyKind()), everyKind());
    EXPECT_TRUE(std::isnan(inXml(std::nan(""))->toDouble()));
    EXPECT_TRUE(std::isnan(inBinary(std::nan(""))->toDouble()));
    for (const auto& [date, whole] : {std::pair(u"2024-05-20T11:39:06.750Z"_s, u"2024-05-20T11:39:06Z"_s),
                                      std::pair(u"1999-12-31T23:59:59.250Z"_s, u"1999-12-31T23:59:59Z"_s)}) {
        EXPECT_EQ(inBinary(utc(date)), utc(date));
        EXPECT_EQ(inXml(utc(date)), utc(whole));
    }
}

TEST(PropertyList, WritersRefuseWhatTheFormatCannotHold)
{
    const auto nested = [](int depth) {
        QVariant value = u"x"_s;
        for (int i = 0; i < depth; ++i)
            value = i % 2 == 0 ? QVariant(QVariantMap{{u"k"_s, value}}) : QVariant(QVariantList{value});
        return value;
    };
    const QString half(QChar(u'\xD83D'));
    const auto year0 = utc(u"-0001-01-01T00:00:00Z"_s);
    const auto year4001 = utc(u"4001-01-01T00:00:00Z"_s);
    const std::tuple<QVariant, bool, bool, bool> rows[] = {
        {nested(512), true, true, true},    {nested(513), false, false, false},
        {QVariant(), false, false, false},  {QVariant::fromValue(QChar(u'x')), false, false, false},
        {half, false, false, false},        {QVariantMap{{half, 1}}, false, false, false},
        {u"a\0b"_s, false, false, true},    {QVariantList{QVariant()}, false, false, false},
        {year0, false, false, true},        {QDateTime(), false, false, true},
        {year4001, true, false, true},      {u"bell \a"_s, false, true, true},
        {u"no \uFFFE"_s, false, true, true}};
    for (const auto& [value, inXmlToo, inBinaryToo, inOldStyleToo] : rows) {
        SCOPED_TRACE(propertylist::toOldStyle(value).value_or(value.typeName()).left(80).toStdString());
        EXPECT_EQ(propertylist::toXml(value).has_value(), inXmlToo);
        EXPECT_EQ(propertylist::toBinary(value).has_value(), inBinaryToo);
        EXPECT_EQ(propertylist::toOldStyle(value).has_value(), inOldStyleToo);
    }
}

TEST(PropertyList, EveryFormatIsRecognisedByItsBeginningAndWhatCannotBeHeldIsLeftOut)
{
    const QByteArray in2137("\x33\x41\xF0\0\0\0\0\0\0", 9); // a double, 2 to the 32nd seconds
    const std::pair<QByteArray, QVariant> rows[] = {
        {"\xEF\xBB\xBF" + xml("<integer> 7 </integer>"), 7LL},
        {"<!DOCTYPE plist><plist><string>a<![CDATA[<b>]]>&#233;<!-- c --></string></plist>", u"a<b>\u00E9"_s},
        {"<plist><dict><key>a</key><integer>0x10</integer><key>b</key><false/><key>a</key><true/></dict></plist>",
         QVariantMap{{u"a"_s, true}, {u"b"_s, false}}},
        {xml("<dict><key>size</key><integer>9223372036854775808</integer><key>rules</key><array><integer>1</integer>"
             "<date>0000-12-30T00:00:00Z</date></array><key>end</key><date>4001-01-01T00:00:00Z</date></dict>"),
         QVariantMap{{u"rules"_s, QVariantList{1LL}}, {u"end"_s, utc(u"4001-01-01T00:00:00Z"_s)}}},
        {xml("<array><integer>-0x10</integer><real> -infinity </real></array>"),
         QVariantList{-16LL, double(-infinity)}},
        {"<0fb0>", QByteArray::fromHex("0fb0")},
        {"{ a = b; }", QVariantMap{{u"a"_s, u"b"_s}}},
        {binary({"\xA2\x01\x01", "\x51x"}), QVariantList{u"x"_s, u"x"_s}},
        {binary({"\xA2\x01\x02", in2137, "\x51x"}), QVariantList{u"x"_s}},
        {binary({"\xD1\x01\x02", "\x51k", "\x09"}), QVariantMap{{u"k"_s, true}}},
    };
    for (const auto& [bytes, value] : rows) {
        propertylist::ParseError error;
        EXPECT_EQ(propertylist::parse(bytes, &error), value) << bytes.toStdString() << error.message.toStdString();
    }
}

TEST(PropertyList, DamagedListsAreRefusedAndNeverGuessedAt)
{
    const QByteArray numbers =
        "<integer>abc</integer> <integer/> <integer>010</integer> <integer>18446744073709551615</integer> "
        "<integer>9223372036854775808</integer> <real>1,5</real> <real/>";
    const QByteArray others =
        "<foo/> <date>yesterday</date> <date>2024-02-30T00:00:00Z</date> <data>!!!!</data> <data>QUJ</data> "
        "<string>&foo;</string> <string>\xFF</string> <string>&#0;</string> <string>a<b/></string> <string>x</array>";
    const QByteArray lists = "<true/><true/> <dict><key>a</key></dict> <dict><string>a</string></dict> "
                             "<dict><key>a</key><key>b</key><true/></dict> <array><string>x</string>";
    for (const QByteArray& content : numbers.split(' ') + others.split(' ') + lists.split(' ') + QByteArrayList{""})
        EXPECT_FALSE(propertylist::parse(xml(content))) << content.toStdString();
    const QByteArray value = "\x09";
    for (const QByteArrayList& objects : std::initializer_list<QByteArrayList>{
             {"\xD1\x01\x02", QByteArray("\x52k\0", 3), value},
             {"\xD1\x01\x02", QByteArray("\x61\0\0", 3), value},
             {"\xD1\x01\x02", value, value}, // a key that is no text
             {QByteArray("\x62\0a\0\0", 5)}, // a text that could not be written
             {QByteArray("\xA1\0", 2)},      // a list inside itself
             {"\xA1\x01", QByteArray("\xA1\0", 2)},
             {"\xA1\x09"}, // a reference to nothing
         })
        EXPECT_FALSE(propertylist::parse(binary(objects))) << objects.join(' ').toHex().toStdString();

    propertylist::ParseError error;
    EXPECT_FALSE(propertylist::parse("<plist>\n<array>\n  <integer>1x</integer>\n</array></plist>", &error));
    EXPECT_EQ(error.line, 3);
    EXPECT_FALSE(error.message.isEmpty());

    const QByteArray text = propertylist::toXml(everyKind()).value_or("");
    for (qsizetype length = 0; length < text.trimmed().size(); length += 7)
        EXPECT_FALSE(propertylist::parse(text.first(length))) << length;
    const QByteArray whole = propertylist::toBinary(everyKind()).value_or("");
    for (qsizetype length = 6; length < whole.size(); ++length) // a shorter one is an old-style word
        EXPECT_FALSE(propertylist::parse(whole.first(length))) << length;
}

TEST(PropertyList, ListsThatNestOrGrowWithoutEndAreRefusedInEveryFormat)
{
    const auto nestedXml = [](qsizetype depth) {
        return xml(QByteArray("<array>").repeated(depth) + QByteArray("</array>").repeated(depth));
    };
    EXPECT_TRUE(propertylist::parse(nestedXml(512)));
    EXPECT_FALSE(propertylist::parse(nestedXml(513)));
    EXPECT_FALSE(propertylist::parse(nestedXml(200'000)));
    QByteArrayList doubling;
    for (char i = 1; i <= 40; ++i)
        doubling.append(QByteArray("\xA2") + i + i);
    EXPECT_FALSE(propertylist::parse(binary(doubling << "\x51x"))) << "2 to the 40th strings";
}

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

TEST(PropertyListScalars, TheLongestNumericPrefixOfATextCountsAndOtherKindsReadAsNothing)
{
    for (const QString& row :
         u"5.=5|1e=1|1e+=1|1,5=1|+.5=.5|1.2.3=1.2|0.5x=.5|1e-999=0| \t\n-1.25E2 =-125"_s.split(u'|'))
        EXPECT_EQ(propertylist::toFloat(row.section(u'=', 0, 0)), row.section(u'=', 1).toFloat()) << row.toStdString();
    EXPECT_EQ(propertylist::toFloat(u"-1e999"_s), -infinity);
    EXPECT_EQ(propertylist::toFloat(0.1), 0.1F);
    EXPECT_EQ(propertylist::toFloat(2LL), 2.0F);
    for (const QString& row : u"12.7=12|  -42abc=-42|1e3=1| \n+7=7|9223372036854775808=9223372036854775807|"
                              "-9223372036854775809=-9223372036854775808"_s.split(u'|'))
        EXPECT_EQ(propertylist::toInteger(row.section(u'=', 0, 0)), row.section(u'=', 1).toLongLong())
            << row.toStdString();
    EXPECT_EQ(propertylist::toInteger(1.9), 1);
    EXPECT_EQ(propertylist::toInteger(1e30), largest);
    EXPECT_EQ(propertylist::toInteger(-1e30), smallest);
    EXPECT_EQ(propertylist::toInteger(std::nan("")), 0);
    EXPECT_EQ(propertylist::toInteger(true), 1);
    const QVariantList others{0.5, 0.5F, -2, true};
    for (const QVariant& value : QVariant(u"1|YES|yes|True|t| \n+007|-1|9 lives"_s.split(u'|')).toList() + others)
        EXPECT_TRUE(propertylist::toBoolean(value)) << value.toString().toStdString();
    const QVariantMap kinds{{u"list"_s, QVariantList{1}},
                            {u"map"_s, QVariantMap{{u"a"_s, 1}}},
                            {u"data"_s, QByteArray("1")},
                            {u"date"_s, utc(u"2024-05-20T11:39:06Z"_s)},
                            {u"none"_s, {}},
                            {u"zero"_s, 0U},
                            {u"0.0"_s, 0.0}};
    const auto texts = u"-|.|e5||nan|inf|0x10|- 1|--1|x1|\u0661|000|NO|on"_s.split(u'|');
    for (const QVariant& value : QVariant(texts).toList() + kinds.values()) {
        SCOPED_TRACE(value.toString().toStdString() + ' ' + std::to_string(value.typeId()));
        EXPECT_EQ(propertylist::toFloat(value), 0);
        EXPECT_EQ(propertylist::toInteger(value), 0);
        EXPECT_FALSE(propertylist::toBoolean(value));
    }
}

} // namespace quillon
