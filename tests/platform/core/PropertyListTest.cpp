#include "PropertyList.h"

#include <QDateTime>
#include <QVariantList>
#include <QVariantMap>

#include <cmath>
#include <gtest/gtest.h>
#include <initializer_list>
#include <limits>
#include <tuple>

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

/// Arrays in one another, each with the next one twice: few bytes that come to 2^levels entries.
QByteArray sharedWithoutEnd(char levels)
{
    QByteArray list = "bplist00";
    QByteArray offsets;
    for (char level = 0; level < levels; ++level) {
        offsets += static_cast<char>(list.size());
        list += QByteArray{"\xA2"} + QByteArray(2, static_cast<char>(level + 1));
    }
    offsets += static_cast<char>(list.size());
    list += '\x09';
    const QByteArray trailer = QByteArray(6, '\0') + QByteArray(2, '\x01') + QByteArray(7, '\0') +
                               static_cast<char>(offsets.size()) + QByteArray(15, '\0') +
                               static_cast<char>(list.size());
    return list + offsets + trailer;
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
    const auto date = utc(u"1999-12-31T23:59:59.750Z"_s);
    EXPECT_EQ(inBinary(date), date);
    EXPECT_EQ(inXml(date), utc(u"1999-12-31T23:59:59Z"_s));
}

TEST(PropertyList, WritersRefuseWhatTheFormatCannotHold)
{
    const std::tuple<QVariant, bool, bool, bool> rows[] = {
        {QVariant(), false, false, false}, {QString(QChar(u'\xD83D')), false, false, false},
        {u"a\0b"_s, false, false, true},   {utc(u"4001-01-01T00:00:00Z"_s), true, false, true},
        {QDateTime(), false, false, true}, {u"bell \a"_s, false, true, true}};
    for (const auto& [value, inXmlToo, inBinaryToo, inOldStyleToo] : rows) {
        SCOPED_TRACE(propertylist::toOldStyle(value).value_or(value.typeName()).left(80).toStdString());
        EXPECT_EQ(propertylist::toXml(value).has_value(), inXmlToo);
        EXPECT_EQ(propertylist::toBinary(value).has_value(), inBinaryToo);
        EXPECT_EQ(propertylist::toOldStyle(value).has_value(), inOldStyleToo);
    }
}

TEST(PropertyList, EveryFormatIsRecognisedByItsBeginningAndWhatCannotBeHeldIsLeftOut)
{
    const std::pair<QByteArray, QVariant> rows[] = {
        {"\xEF\xBB\xBF" + xml("<integer> 7 </integer>"), 7LL},
        {"<plist><dict><key>a</key><false/><key>a</key><true/></dict></plist>", QVariantMap{{u"a"_s, true}}},
        {xml("<dict><key>size</key><integer>9223372036854775808</integer><key>rules</key><array><integer>1</integer>"
             "<date>0000-12-30T00:00:00Z</date></array><key>end</key><date>4001-01-01T00:00:00Z</date></dict>"),
         QVariantMap{{u"rules"_s, QVariantList{1LL}}, {u"end"_s, utc(u"4001-01-01T00:00:00Z"_s)}}},
        {"<0fb0>", QByteArray::fromHex("0fb0")},
        {"{ a = b; }", QVariantMap{{u"a"_s, u"b"_s}}},
    };
    for (const auto& [bytes, value] : rows) {
        propertylist::ParseError error;
        EXPECT_EQ(propertylist::parse(bytes, &error), value) << bytes.toStdString() << error.message.toStdString();
    }
}

TEST(PropertyList, DamagedListsAreRefusedAndNeverGuessedAt)
{
    const QByteArray contents =
        "<integer>abc</integer> <integer/> <integer>010</integer> <real>1,5</real> <foo/> <date>yesterday</date> "
        "<data>QUJ</data> <string>\xFF</string> <string>a<b/></string> <string>x</array> <true/><true/> "
        "<dict><key>a</key></dict> <dict><string>a</string></dict> <dict><key>a</key><key>b</key><true/></dict>";
    for (const QByteArray& content : contents.split(' ') + QByteArrayList{""})
        EXPECT_FALSE(propertylist::parse(xml(content))) << content.toStdString();
    const auto small = propertylist::toBinary(QVariantMap{{u"k"_s, QVariantList{u"x"_s}}}).value_or("");
    const std::pair<QByteArray, QByteArray> damages[] = {
        {"\x51k", QByteArray("\x51\0", 2)},    // a key that ends before it begins
        {"\x51k", "\x09\x09"},                 // a key that is no text
        {"\xA1\x03", QByteArray("\xA1\0", 2)}, // a list inside itself
        {"\xA1\x03", "\xA1\x09"}};             // a reference to nothing
    for (const auto& [found, damage] : damages) {
        EXPECT_EQ(small.count(found), 1);
        EXPECT_FALSE(propertylist::parse(QByteArray(small).replace(found, damage))) << damage.toHex().toStdString();
    }
    propertylist::ParseError error;
    EXPECT_FALSE(propertylist::parse("<plist>\n<array>\n  <integer>1x</integer>\n</array></plist>", &error));
    EXPECT_EQ(error.line, 3);
    EXPECT_FALSE(error.message.isEmpty());

    EXPECT_TRUE(propertylist::parse(sharedWithoutEnd(2)));
    EXPECT_FALSE(propertylist::parse(sharedWithoutEnd(40)));
    constexpr int tooDeep = 200'000;
    EXPECT_FALSE(
        propertylist::parse(xml(QByteArray("<array>").repeated(tooDeep) + QByteArray("</array>").repeated(tooDeep))));
    const QByteArray whole = propertylist::toBinary(everyKind()).value_or("");
    for (qsizetype length = 6; length < whole.size(); ++length) // a shorter one is an old-style word
        EXPECT_FALSE(propertylist::parse(whole.first(length))) << length;
}

TEST(OldStylePropertyList, TextsReadAsTheyAreMeant)
{
    const std::pair<QByteArrayView, QVariant> rows[] = {
        {R"("\a\b\f\n\r\t\v\\\"\'")", u"\a\b\f\n\r\t\v\\\"'"_s},
        {"\"one\\\ntwo\"", u"one\ntwo"_s},
        {R"("\101\60\7x\1010")", u"A0\ax"_s + u"A0"_s},
        {R"("\200\344\240\256\341")", u"\u00A0\u00EE\u00A9\uFB01\u00C6"_s}, // bytes are NEXTSTEP, not Latin-1
        {R"("\U00e9t\U00C9 \Ud83d\UDE00x")", u"\u00E9t\u00C9 \U0001F600x"_s},
        {"\"Übung\n 日本 \xF0\x9F\x98\x80\"", u"Übung\n 日本 😀"_s},
        {"\xEF\xBB\xBF\"x\"", u"x"_s}, // a byte order mark in front is no part of the text, but in a string it is
        {"/Volumes/$HOME_x-1.0:2", u"/Volumes/$HOME_x-1.0:2"_s},
        {"<0fb d77\n1c27 35AE>", QByteArray::fromHex("0fbd771c2735ae")},
        {"// heading\r/* a { */ {/**/a //}\n=/* = */(/*,*/ b /***/,\v\f 'c')//\n;}\r\n// end",
         QVariantMap{{u"a"_s, QVariantList{u"b"_s, u"c"_s}}}},
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
        "^|{\n  a = 1\n  ^b = 2;\n}|{ a = 1; ^|{ a^; }|{ ^(a) = 1; }|a ^= 1;|( a,^, b )|( a ^}|^\"never\nclosed|"
        "\n \"un^\\known\"|\"^\\400\"|\"^\\U12g4\"|\"^\\Ud83d\\U0041\"|\"x^\\Ude00\"|<0^g>|<012^>|"
        "^/* never closed|caf^\xC3\xA9|\n\"\xC3\xA9^\xFF\"";
    for (const QByteArray& marked : refused.split('|') + QByteArrayList{QByteArray("a^\0", 3)}) {
        const QByteArray before = marked.first(marked.indexOf('^'));
        const Place place(1 + before.count('\n'), before.size() - before.lastIndexOf('\n'));
        EXPECT_EQ(refusal(QByteArray(marked).remove(before.size(), 1)), place) << marked.toStdString();
    }
    EXPECT_EQ(refusal(QByteArray(1'000'000, '(')), Place(1, 513));
}

TEST(OldStylePropertyList, WrittenListsLookLikeTheSystemToolsOwnAndReadTheSame)
{
    const QVariantMap value{
        {u"BackupPhase"_s, u"Copying"_s},
        {u"Progress"_s, QVariantMap{{u"Percent"_s, 0.25}, {u"_raw_totalBytes"_s, 12LL}, {u"bytes"_s, -1}}},
        {u"Running"_s, true},
        {u"Sources"_s, QVariantList{u"/"_s, QVariantMap{{u"a"_s, u"\u00E9\"\\\n\a\b\f\r\t\v\x01\x7F ~"_s}}}},
        {u"When"_s, QDateTime::fromString(u"2024-05-20T13:39:06+02:00"_s, Qt::ISODate)},
    };
    const QByteArray text = R"({
    BackupPhase = Copying;
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
    for (const QString& row : u"1e+=1|1,5=1|+.5=.5|1.2.3=1.2|0.5x=.5| \t\n-1.25E2 =-125"_s.split(u'|'))
        EXPECT_EQ(propertylist::toFloat(row.section(u'=', 0, 0)), row.section(u'=', 1).toFloat()) << row.toStdString();
    EXPECT_EQ(propertylist::toFloat(0.1), 0.1F);
    for (const QString& row : u"12.7=12|  -42abc=-42|1e3=1| \n+7=7|9223372036854775808=9223372036854775807|"
                              "-9223372036854775809=-9223372036854775808"_s.split(u'|'))
        EXPECT_EQ(propertylist::toInteger(row.section(u'=', 0, 0)), row.section(u'=', 1).toLongLong())
            << row.toStdString();
    EXPECT_EQ(propertylist::toInteger(1.9), 1);
    EXPECT_EQ(propertylist::toInteger(1e30), largest);
    EXPECT_EQ(propertylist::toInteger(std::nan("")), 0);
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
