#include "PropertyList.h"

#include <QDateTime>
#include <QVariantList>
#include <QVariantMap>

#include <gtest/gtest.h>
#include <vector>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

QVariant read(QByteArrayView text)
{
    propertylist::ParseError error;
    const auto value = propertylist::parseOldStyle(text, &error);
    EXPECT_TRUE(value) << text.toByteArray().toStdString() << ": " << error.message.toStdString();
    return value.value_or(QVariant());
}

/// Reads a list of one string.
QString readString(QByteArrayView text)
{
    const QVariant value = read(text);
    EXPECT_EQ(value.typeId(), QMetaType::QString);
    return value.toString();
}

propertylist::ParseError refusal(QByteArrayView text)
{
    propertylist::ParseError error;
    EXPECT_FALSE(propertylist::parseOldStyle(text, &error)) << text.toByteArray().toStdString();
    return error;
}

struct Place {
    QByteArrayView text;
    int line;
    int column;
};

} // namespace

TEST(OldStylePropertyList, ReadsAStatusTextWithItsNestedDictionary)
{
    const QVariant value = read(R"({
    BackupPhase = Copying;
    DateOfStateChange = "2024-05-20 11:39:06 +0000";
    DestinationMountPoint = "/Volumes/Time Machine";
    Progress =     {
        Percent = "0.25";
        TimeRemaining = "112.5";
        "_raw_totalBytes" = 2146353152;
    };
    Running = 1;
    Sources = ( "/", '/Volumes/Photo "raw"', );
})");
    EXPECT_EQ(value, QVariant(QVariantMap{
                         {u"BackupPhase"_s, u"Copying"_s},
                         {u"DateOfStateChange"_s, u"2024-05-20 11:39:06 +0000"_s},
                         {u"DestinationMountPoint"_s, u"/Volumes/Time Machine"_s},
                         {u"Progress"_s, QVariantMap{{u"Percent"_s, u"0.25"_s},
                                                     {u"TimeRemaining"_s, u"112.5"_s},
                                                     {u"_raw_totalBytes"_s, u"2146353152"_s}}},
                         {u"Running"_s, u"1"_s},
                         {u"Sources"_s, QVariantList{u"/"_s, u"/Volumes/Photo \"raw\""_s}},
                     }));
}

TEST(OldStylePropertyList, EveryEscapeGivesItsCharacter)
{
    EXPECT_EQ(readString(R"("\a\b\f\n\r\t\v\\\"\'")"), u"\a\b\f\n\r\t\v\\\"'"_s);
    EXPECT_EQ(readString("\"one\\\ntwo\""), u"one\ntwo"_s);
    EXPECT_EQ(readString(R"('it\'s "here"')"), u"it's \"here\""_s);
    EXPECT_EQ(readString(R"("\101\60\7x\1010")"), u"A0\ax"_s + u"A0"_s);
    EXPECT_EQ(readString(R"("\344\240\256\341")"), u"\u00EE\u00A9\uFB01\u00C6"_s) << "bytes are NEXTSTEP, not Latin-1";
    EXPECT_EQ(readString(R"("\U00e9t\U00C9 \Ud83d\UDE00x")"), u"\u00E9t\u00C9 \U0001F600x"_s);
    EXPECT_EQ(readString("\"a\\\\\""), uR"(a\)"_s) << "an escaped backslash does not escape the quote behind it";
}

TEST(OldStylePropertyList, TextsOutsideAsciiStayWhatTheyAre)
{
    EXPECT_EQ(readString("\"Übung\n 日本 \xF0\x9F\x98\x80\""), u"Übung\n 日本 😀"_s);
    EXPECT_EQ(readString("\xEF\xBB\xBF\"x\""), u"x"_s) << "a byte order mark in front is no part of the text";
    EXPECT_EQ(readString("\"\xEF\xBB\xBF\\n\xEF\xBB\xBF\""), u"\uFEFF\n\uFEFF"_s) << "but it is one in a string";
    EXPECT_EQ(readString("\"\""), QString());
    EXPECT_EQ(readString("/Volumes/$HOME_x-1.0:2"), u"/Volumes/$HOME_x-1.0:2"_s);
    EXPECT_EQ(readString("http://host"), u"http://host"_s) << "within a word two slashes begin no comment";
}

TEST(OldStylePropertyList, DataCommentsAndBlanksMayStandWhereverTheyAreAllowed)
{
    EXPECT_EQ(read("<0fb d77\n1c27 35AE>").toByteArray(), QByteArray::fromHex("0fbd771c2735ae"));
    EXPECT_EQ(read("<>"), QVariant(QByteArray()));
    EXPECT_EQ(read("// heading\r/* a { */ {/**/a //}\n=/* = */(/*,*/ b /***/,\v\f c)//\n;}\r\n// end").toMap(),
              (QVariantMap{{u"a"_s, QVariantList{u"b"_s, u"c"_s}}}));
    EXPECT_EQ(read("{}"), QVariant(QVariantMap()));
    EXPECT_EQ(read("( )"), QVariant(QVariantList()));
}

TEST(OldStylePropertyList, OfTwoEntriesWithTheSameKeyTheLaterCounts)
{
    EXPECT_EQ(read("{ b = 1; a = 2; b = 3; a = 4; }").toMap(), (QVariantMap{{u"a"_s, u"4"_s}, {u"b"_s, u"3"_s}}));
}

TEST(OldStylePropertyList, RefusalsNameTheLineAndColumn)
{
    const Place places[] = {{"", 1, 1},
                            {"{\n  a = 1\n  b = 2;\n}", 3, 3},
                            {"{\n  a  1;\n}", 2, 6},
                            {"{ a = 1; ", 1, 10},
                            {"{ a; }", 1, 4},
                            {"{ (a) = 1; }", 1, 3},
                            {"a = 1;", 1, 3},
                            {"( a b )", 1, 5},
                            {"( a,, b )", 1, 5},
                            {"( a }", 1, 5},
                            {"\"never\nclosed", 1, 1},
                            {"( 'never closed\\')", 1, 3},
                            {"\n \"un\\known\"", 2, 5},
                            {"\"\\400\"", 1, 2},
                            {"\"\\U12\"", 1, 2},
                            {"\"\\U12g4\"", 1, 2},
                            {"\"\\Ud83d\"", 1, 2},
                            {"\"\\Ud83d\\n\"", 1, 2},
                            {"\"\\Ud83d\\U0041\"", 1, 2},
                            {"\"x\\Ude00\"", 1, 3},
                            {"<0g>", 1, 3},
                            {"<012>", 1, 5},
                            {"/* never closed", 1, 1},
                            {"a /", 1, 3},
                            {"caf\xC3\xA9", 1, 4},
                            {"\n\"\xC3\xA9\xFF\"", 2, 4},
                            {"\"\xED\xA0\x80\"", 1, 2},
                            {"\"\xC3", 1, 2},
                            {QByteArrayView("a\0", 2), 1, 2}};
    for (const Place& place : places) {
        const auto error = refusal(place.text);
        EXPECT_FALSE(error.message.isEmpty());
        EXPECT_EQ(error.line, place.line) << place.text.toByteArray().toStdString();
        EXPECT_EQ(error.column, place.column) << place.text.toByteArray().toStdString();
    }
}

TEST(OldStylePropertyList, EveryTruncationOfAListIsRefusedWithoutReadingPastItsEnd)
{
    const QByteArray whole = R"({ "a\101\U0041" = ( <0f>, 'b', /* c */ { d = e; } ); })";
    for (qsizetype length = 0; length < whole.size(); ++length) {
        // A buffer of exactly this size: the sanitizer sees any byte read behind it.
        const std::vector<char> part(whole.begin(), whole.begin() + length);
        EXPECT_FALSE(propertylist::parseOldStyle(QByteArrayView(part.data(), length))) << length;
    }
}

TEST(OldStylePropertyList, NestingIsBounded)
{
    const auto nested = [](qsizetype depth, const char* open, const char* close) {
        return QByteArray(open).repeated(depth) + "x" + QByteArray(close).repeated(depth);
    };
    read(nested(512, "(", ")"));
    read(nested(512, "{a=", ";}"));
    EXPECT_EQ(refusal(nested(513, "(", ")")).column, 513);
    refusal(nested(200'000, "{a=", ";}"));
    refusal(QByteArray(1'000'000, '('));
}

TEST(OldStylePropertyList, WrittenListsLookLikeTheSystemToolsOwn)
{
    const QVariantMap value{
        {u"BackupPhase"_s, u"Copying"_s},
        {u"Data"_s, QByteArray::fromHex("0fbd771c2735ae")},
        {u"Empty"_s, QString()},
        {u"Progress"_s, QVariantMap{{u"Percent"_s, 0.25}, {u"_raw_totalBytes"_s, 12LL}, {u"bytes"_s, -1}}},
        {u"Running"_s, true},
        {u"Sources"_s, QVariantList{u"/"_s, QVariantMap{{u"a"_s, u"\u00E9\"\\\n\a\x01\x7F"_s}}}},
        {u"When"_s, QDateTime::fromString(u"2024-05-20T13:39:06+02:00"_s, Qt::ISODate)},
    };
    EXPECT_EQ(propertylist::toOldStyle(value).value_or("refused").toStdString(), R"({
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
            a = "\U00e9\"\\\n\a\001\177";
        }
    );
    When = "2024-05-20 11:39:06 +0000";
}
)");
}

} // namespace quillon
