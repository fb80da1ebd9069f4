#include "CommandLine.h"

#include "Failure.h"

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

TEST(CommandLine, TakesWhatTheSystemToolTakes)
{
    EXPECT_EQ(CommandLine::parse({u"status"_s}).command, Command::Status);
    EXPECT_TRUE(CommandLine::parse({u"destinationinfo"_s, u"-X"_s}).xml);
    const auto set = CommandLine::parse({u"setdestination"_s, u"-a"_s, u"/media/disk"_s});
    EXPECT_TRUE(set.append);
    EXPECT_EQ(set.operands, QStringList(u"/media/disk"_s));
    for (const QStringList& arguments :
         {QStringList{u"startbackup"_s, u"-b"_s, u"-r"_s}, {u"startbackup"_s, u"--rotation"_s, u"--block"_s}}) {
        const auto start = CommandLine::parse(arguments);
        EXPECT_TRUE(start.block && start.rotate);
        EXPECT_TRUE(start.destination.isEmpty());
    }
    EXPECT_EQ(CommandLine::parse({u"startbackup"_s, u"-d"_s, u"ID"_s}).destination, u"ID"_s);
    EXPECT_EQ(CommandLine::parse({u"addsource"_s, u"--"_s, u"-folder"_s}).operands, QStringList(u"-folder"_s));
    EXPECT_EQ(CommandLine::parse({u"isexcluded"_s, u"/a"_s, u"/b"_s, u"--"_s, u"-c"_s}).operands,
              (QStringList{u"/a"_s, u"/b"_s, u"-c"_s}));
    EXPECT_EQ(CommandLine::parse({u"--help"_s}).command, Command::Help);
    const auto rules = CommandLine::parse({u"retention"_s, u"--weekly"_s, u"0"_s, u"--hourly"_s, u"48"_s}).keep;
    EXPECT_TRUE(rules.hourly == 48 && rules.daily == -1 && rules.weekly == 0);
}

TEST(CommandLine, RefusesEverythingElse)
{
    for (const QStringList& arguments : {QStringList{},
                                         {u"Status"_s},
                                         {u"status"_s, u"-X"_s},
                                         {u"status"_s, u"extra"_s},
                                         {u"setdestination"_s},
                                         {u"setdestination"_s, u""_s},
                                         {u"startbackup"_s, u"-d"_s},
                                         {u"startbackup"_s, u"-d"_s, u""_s},
                                         {u"startbackup"_s, u"-r"_s, u"-d"_s, u"ID"_s},
                                         {u"startbackup"_s, u"-x"_s},
                                         {u"startbackup"_s, u"-"_s},
                                         {u"startbackup"_s, u"-br"_s},
                                         {u"addexclusion"_s},
                                         {u"verify"_s, u"-A"_s},
                                         {u"retention"_s, u"--daily"_s},
                                         {u"retention"_s, u"--daily"_s, u"-1"_s},
                                         {u"retention"_s, u"--daily"_s, u"many"_s},
                                         {u"removedestination"_s, u"ID"_s, u"another"_s},
                                         {u"recoverykey"_s, u"--kept"_s},
                                         {u"recoverykey"_s, u"-X"_s, u"--kept"_s, u"KEYID"_s},
                                         {u"excludename"_s, u"-X"_s, u"*.iso"_s},
                                         {u"restore"_s, u"only one"_s}}) {
        try {
            CommandLine::parse(arguments);
            ADD_FAILURE() << arguments.join(u' ').toStdString();
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.status(), ExitStatus::Usage);
            EXPECT_FALSE(failure.message().contains(u'\n'));
        }
    }
}

} // namespace quillon
