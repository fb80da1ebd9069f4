#include "TMReports.h"

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

BackupDestinations read(const QByteArray& entries)
{
    return BackupDestinations::fromOutput(
        "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict><key>Destinations</key>" + entries + "</dict></plist>");
}

QByteArray entry(const QByteArray& fields)
{
    QByteArray dictionary = "<dict>";
    for (const auto& field : fields.split(';')) {
        const auto parts = field.split('=');
        dictionary += "<key>" + parts.value(0) + "</key><string>" + parts.value(1) + "</string>";
    }
    return dictionary + "</dict>";
}

} // namespace

TEST(ReadingDestinations, ComeSortedByIdentifierWithTheOneUsedLast)
{
    const auto result = read("<array>" + entry("ID=b;Name=Zwei;LastDestination=1") + entry("ID=B;Name=One") +
                             entry("ID=nameless") + entry("Name=No id;LastDestination=0") + "</array>");
    EXPECT_TRUE(result.success);
    EXPECT_EQ(result.list, (QList<BackupDestination>{
                               {u""_s, u"No id"_s, false}, {u"B"_s, u"One"_s, false}, {u"b"_s, u"Zwei"_s, true}}));
}

TEST(ReadingDestinations, OnlyANetworkDiskWithAServerGetsItsName)
{
    for (const auto& [fields, name] :
         {std::pair{"Network;URL=smb://me@Server._smb._tcp.local./Data", "Data - Server.local"},
          {"Network;URL=smb://Server.local/Data", "Data"},
          {"Network;URL=smb://me@.local./Data", "Data"},
          {"Network", "Data"},
          {"Local;URL=smb://me@Server.local/Data", "Data"}})
        EXPECT_EQ(read("<array>" + entry("Name=Data;Kind=" + QByteArray(fields)) + "</array>").list.value(0).name,
                  QLatin1StringView(name))
            << fields;
}

TEST(ReadingDestinations, NothingIsAnEmptyListAndRubbishAFailure)
{
    EXPECT_TRUE(BackupDestinations::fromOutput(std::nullopt).success);
    EXPECT_TRUE(BackupDestinations::fromOutput("").success);
    EXPECT_TRUE(read("<array/>").success);
    for (const QByteArray output : {"rubbish", "<plist><dict/></plist>", "{ Destinations = none; }"})
        EXPECT_FALSE(BackupDestinations::fromOutput(output).success) << output.toStdString();
}

} // namespace quillon
