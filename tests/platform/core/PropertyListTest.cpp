#include "PropertyList.h"

#include <QDateTime>
#include <QVariantList>
#include <QVariantMap>

#include <cmath>
#include <gtest/gtest.h>
#include <initializer_list>
#include <limits>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

QDateTime utc(const QString& text)
{
    return QDateTime::fromString(text, Qt::ISODateWithMs);
}

QVariantMap everyKind()
{
    return {
        {u"array"_s, QVariantList{u"a"_s, QVariantList(), QVariantMap{{u"k"_s, true}}}},
        {u"data"_s, QByteArray::fromHex("00ff10")},
        {u"date"_s, utc(u"2024-05-20T11:39:06Z"_s)},
        {u"before 2001"_s, utc(u"1985-10-26T01:21:00Z"_s)},
        {u"empty"_s, QString()},
        {u"false"_s, false},
        {u"<key> & \u00E9 \"'"_s, u" <text> & \u65E5\u672C \U0001F600 \n "_s},
        {u"largest"_s, std::numeric_limits<qlonglong>::max()},
        {u"smallest"_s, std::numeric_limits<qlonglong>::min()},
        {u"minus"_s, -5LL},
        {u"real"_s, 0.1},
        {u"tiny"_s, -1e-300},
        {u"mark"_s, u"\uFEFFx"_s},
    };
}

QByteArray xml(const QByteArray& content)
{
    return R"(<?xml version="1.0" encoding="UTF-8"?><plist version="1.0">)" + content + "</plist>";
}

QVariant read(const QByteArray& bytes)
{
    propertylist::ParseError error;
    const auto value = propertylist::parse(bytes, &error);
    EXPECT_TRUE(value) << bytes.left(200).toStdString() << ": " << error.message.toStdString();
    return value.value_or(QVariant());
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
    bytes += offsets + QByteArray(6, '\0') + "\x01\x01" + QByteArray(7, '\0') + static_cast<char>(objects.size()) +
             QByteArray(15, '\0') + offsetTable;
    return bytes;
}

} // namespace

TEST(PropertyList, XmlAndBinaryListsGiveBackWhatWasWritten)
{
    EXPECT_EQ(read(propertylist::toXml(everyKind()).value_or("")), QVariant(everyKind()));
    EXPECT_EQ(read(propertylist::toBinary(everyKind()).value_or("")), QVariant(everyKind()));
}

TEST(PropertyList, FractionsOfASecondLastInBinaryListsAndAreRoundedDownInXml)
{
    for (const auto& [date, whole] : {std::pair(u"2024-05-20T11:39:06.750Z"_s, u"2024-05-20T11:39:06Z"_s),
                                      std::pair(u"1999-12-31T23:59:59.250Z"_s, u"1999-12-31T23:59:59Z"_s)}) {
        EXPECT_EQ(read(propertylist::toBinary(utc(date)).value_or("")), QVariant(utc(date)));
        EXPECT_EQ(read(propertylist::toXml(utc(date)).value_or("")), QVariant(utc(whole)));
    }
}

TEST(PropertyList, WritersRefuseWhatTheFormatCannotHold)
{
    const QVariantMap deep = [] {
        QVariant value = u"x"_s;
        for (int i = 0; i < 513; ++i)
            value = QVariantMap{{u"k"_s, value}};
        return value.toMap();
    }();
    const QString half(QChar(u'\xD83D'));
    for (const QVariant& value :
         std::initializer_list<QVariant>{QVariant(), QVariant::fromValue(QChar(u'x')), half, QVariantMap{{half, 1}},
                                         deep, QVariantList{QVariant()}}) {
        EXPECT_FALSE(propertylist::toXml(value)) << value.typeName();
        EXPECT_FALSE(propertylist::toBinary(value)) << value.typeName();
        EXPECT_FALSE(propertylist::toOldStyle(value)) << value.typeName();
    }
    for (const QVariant& value : std::initializer_list<QVariant>{u"a\0b"_s, QDateTime()}) {
        EXPECT_FALSE(propertylist::toXml(value)) << value.typeName();
        EXPECT_FALSE(propertylist::toBinary(value)) << value.typeName();
    }
    EXPECT_FALSE(propertylist::toXml(utc(u"-0001-01-01T00:00:00Z"_s)));
    EXPECT_FALSE(propertylist::toBinary(utc(u"4001-01-01T00:00:00Z"_s)));
    EXPECT_FALSE(propertylist::toXml(u"bell \a"_s));
    EXPECT_EQ(read(propertylist::toBinary(u"bell \a"_s).value_or("")), QVariant(u"bell \a"_s));
}

TEST(PropertyList, CarriageReturnsAndRealsThatAreNoNumbersSurvive)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const QVariantMap odd{{u"a\r\nb"_s, u"\rc\n"_s}, {u"most"_s, infinity}, {u"least"_s, -infinity}};
    for (const auto& write : {&propertylist::toXml, &propertylist::toBinary}) {
        EXPECT_EQ(read(write(odd).value_or("")), QVariant(odd));
        EXPECT_TRUE(std::isnan(read(write(std::nan("")).value_or("")).toDouble()));
    }
}

TEST(PropertyList, EveryFormatIsRecognisedByItsBeginning)
{
    EXPECT_EQ(read("\xEF\xBB\xBF" + xml("<integer> 7 </integer>")), QVariant(7LL));
    EXPECT_EQ(read("<!DOCTYPE plist><plist><string>a<![CDATA[<b>]]>&#233;<!-- c --></string></plist>"),
              QVariant(u"a<b>\u00E9"_s));
    EXPECT_EQ(read("<plist><dict><key>a</key><integer>0x10</integer><key>a</key><true/></dict></plist>"),
              QVariant(QVariantMap{{u"a"_s, true}}));
    EXPECT_EQ(read("<0fb0>"), QVariant(QByteArray::fromHex("0fb0")));
    EXPECT_EQ(read("{ a = b; }"), QVariant(QVariantMap{{u"a"_s, u"b"_s}}));
    EXPECT_EQ(read(binary({QByteArray("\xA2\x01\x01"), QByteArray("\x51x")})), QVariant(QVariantList{u"x"_s, u"x"_s}));
}

TEST(PropertyList, DamagedXmlIsRefusedAndNeverGuessedAt)
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

    propertylist::ParseError error;
    EXPECT_FALSE(propertylist::parse("<plist>\n<array>\n  <integer>1x</integer>\n</array></plist>", &error));
    EXPECT_EQ(error.line, 3);
    EXPECT_FALSE(error.message.isEmpty());

    const QByteArray whole = propertylist::toXml(everyKind()).value_or("");
    for (qsizetype length = 0; length < whole.trimmed().size(); length += 7)
        EXPECT_FALSE(propertylist::parse(whole.first(length))) << length;
}

TEST(PropertyList, OneValueThatCannotBeHeldCostsItselfAndNotTheList)
{
    const QVariantMap list = read(xml("<dict><key>size</key><integer>9223372036854775808</integer><key>rules</key>"
                                      "<array><integer>1</integer><date>0000-12-30T00:00:00Z</date></array>"
                                      "<key>end of time</key><date>4001-01-01T00:00:00Z</date></dict>"))
                                 .toMap();
    EXPECT_EQ(list, (QVariantMap{{u"rules"_s, QVariantList{1LL}}, {u"end of time"_s, utc(u"4001-01-01T00:00:00Z"_s)}}));
    EXPECT_EQ(read(propertylist::toXml(list).value_or("")), QVariant(list)) << "what is read can be written";
    const QByteArray in2137("\x33\x41\xF0\0\0\0\0\0\0", 9); // a double, 2 to the 32nd seconds
    EXPECT_EQ(read(binary({QByteArray("\xA2\x01\x02"), in2137, "\x51x"})), QVariant(QVariantList{u"x"_s}));
}

TEST(PropertyList, DamagedBinaryListsAreRefused)
{
    const QByteArray whole = propertylist::toBinary(everyKind()).value_or("");
    ASSERT_TRUE(propertylist::parse(whole));
    for (qsizetype length = 6; length < whole.size(); ++length) // a shorter one is an old-style word
        EXPECT_FALSE(propertylist::parse(whole.first(length))) << length;
    // Whatever a single damaged byte does to the value, it does no more than that.
    for (qsizetype at = 0; at < whole.size(); ++at) {
        for (const char byte : {'\0', '\x7F', '\xFF'}) {
            QByteArray damaged = whole;
            damaged[at] = byte;
            propertylist::parse(damaged);
        }
    }
    const QByteArray value = "\x09";
    EXPECT_TRUE(propertylist::parse(binary({QByteArray("\xD1\x01\x02"), "\x51k", value})));
    EXPECT_FALSE(propertylist::parse(binary({QByteArray("\xD1\x01\x02"), QByteArray("\x52k\0", 3), value})));
    EXPECT_FALSE(propertylist::parse(binary({QByteArray("\xD1\x01\x02"), QByteArray("\x61\0\0", 3), value})));
    EXPECT_FALSE(propertylist::parse(binary({QByteArray("\xD1\x01\x02"), value, value}))) << "a key that is no text";
    EXPECT_FALSE(propertylist::parse(binary({QByteArray("\x62\0a\0\0", 5)}))) << "a text that could not be written";
}

TEST(PropertyList, ListsThatNestOrGrowWithoutEndAreRefusedInEveryFormat)
{
    const auto nestedXml = [](qsizetype depth) {
        return xml(QByteArray("<array>").repeated(depth) + QByteArray("</array>").repeated(depth));
    };
    EXPECT_TRUE(propertylist::parse(nestedXml(512)));
    EXPECT_FALSE(propertylist::parse(nestedXml(513)));
    EXPECT_FALSE(propertylist::parse(nestedXml(200'000)));
    EXPECT_FALSE(propertylist::parse("<plist>" + QByteArray("<array>").repeated(200'000)));
    QByteArray bomb = "<?xml version=\"1.0\"?><!DOCTYPE plist [<!ENTITY e0 \"xxxxxxxxxx\">";
    for (int level = 1; level < 12; ++level)
        bomb += "<!ENTITY e" + QByteArray::number(level) + " \"" +
                ("&e" + QByteArray::number(level - 1) + ';').repeated(10) + "\">";
    EXPECT_FALSE(propertylist::parse(bomb + "]><plist><string>&e11;</string></plist>"));

    EXPECT_FALSE(propertylist::parse(binary({QByteArray("\xA1\x00", 2)}))) << "a list inside itself";
    EXPECT_FALSE(propertylist::parse(binary({"\xA1\x01", QByteArray("\xA1\x00", 2)})));
    EXPECT_FALSE(propertylist::parse(binary({"\xA1\x09"}))) << "a reference to nothing";
    QByteArrayList doubling;
    for (char i = 1; i <= 40; ++i)
        doubling.append(QByteArray("\xA2") + i + i);
    EXPECT_FALSE(propertylist::parse(binary(doubling << QByteArray("\x51x")))) << "2 to the 40th strings";
}

TEST(PropertyListScalars, TheLongestNumericPrefixOfATextCounts)
{
    const std::pair<QString, float> floats[] = {{u"0.5x"_s, 0.5F}, {u" \t\n-1.25e2 "_s, -125},
                                                {u"+.5"_s, 0.5F},  {u"5."_s, 5},
                                                {u"1e"_s, 1},      {u"1e+"_s, 1},
                                                {u"1,5"_s, 1},     {u"-"_s, 0},
                                                {u"."_s, 0},       {u"e5"_s, 0},
                                                {QString(), 0},    {u"nan"_s, 0},
                                                {u"inf"_s, 0},     {u"0x10"_s, 0},
                                                {u"- 1"_s, 0},     {u"1e-999"_s, 0},
                                                {u"\u0661"_s, 0},  {u"1.2.3"_s, 1.2F}};
    for (const auto& [text, number] : floats)
        EXPECT_EQ(propertylist::toFloat(text), number) << text.toStdString();
    EXPECT_EQ(propertylist::toFloat(u"-1e999"_s), -std::numeric_limits<float>::infinity());

    constexpr auto largest = std::numeric_limits<qlonglong>::max();
    constexpr auto smallest = std::numeric_limits<qlonglong>::min();
    const std::pair<QString, qlonglong> integers[] = {{u"12.7"_s, 12},
                                                      {u"  -42abc"_s, -42},
                                                      {u"1e3"_s, 1},
                                                      {u"+7"_s, 7},
                                                      {u"abc"_s, 0},
                                                      {u"0x10"_s, 0},
                                                      {u"9223372036854775807"_s, largest},
                                                      {u"9223372036854775808"_s, largest},
                                                      {u"-9223372036854775808"_s, smallest},
                                                      {u"-99999999999999999999"_s, smallest},
                                                      {u"--1"_s, 0}};
    for (const auto& [text, number] : integers)
        EXPECT_EQ(propertylist::toInteger(text), number) << text.toStdString();

    for (const QString& text : {u"1"_s, u"YES"_s, u"yes"_s, u"True"_s, u"t"_s, u" \n+007"_s, u"-1"_s, u"9 lives"_s})
        EXPECT_TRUE(propertylist::toBoolean(text)) << text.toStdString();
    for (const QString& text : {u"0"_s, u"NO"_s, u"false"_s, u""_s, u"000"_s, u"-"_s, u"x1"_s, u"0.5"_s, u"on"_s})
        EXPECT_FALSE(propertylist::toBoolean(text)) << text.toStdString();
}

TEST(PropertyListScalars, NumbersAndBooleansAreTakenAsTheyAreAndOtherKindsReadAsNothing)
{
    EXPECT_EQ(propertylist::toInteger(1.9), 1);
    EXPECT_EQ(propertylist::toInteger(1e30), std::numeric_limits<qlonglong>::max());
    EXPECT_EQ(propertylist::toInteger(-1e30), std::numeric_limits<qlonglong>::min());
    EXPECT_EQ(propertylist::toInteger(std::nan("")), 0);
    EXPECT_EQ(propertylist::toInteger(true), 1);
    EXPECT_EQ(propertylist::toFloat(2LL), 2.0F);
    EXPECT_EQ(propertylist::toFloat(0.1), 0.1F);
    EXPECT_TRUE(propertylist::toBoolean(0.5));
    EXPECT_FALSE(propertylist::toBoolean(0LL));
    for (const QVariant& value : std::initializer_list<QVariant>{QVariant(), QVariantList{1}, QVariantMap{{u"a"_s, 1}},
                                                                 QByteArray("1"), QDateTime::currentDateTimeUtc()}) {
        EXPECT_EQ(propertylist::toInteger(value), 0) << value.typeName();
        EXPECT_EQ(propertylist::toFloat(value), 0) << value.typeName();
        EXPECT_FALSE(propertylist::toBoolean(value)) << value.typeName();
    }
}

} // namespace quillon
