#include "CommandLine.h"

#include "Failure.h"

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

static CommandLine parsed(const QString& words)
{
    return CommandLine::parse(words.split(u' '));
}

TEST(CommandLine, TakesWhatTheSystemToolTakes)
{
    EXPECT_EQ(parsed(u"status"_s).command, Command::Status);
    EXPECT_EQ(parsed(u"--help"_s).command, Command::Help);
    EXPECT_TRUE(parsed(u"destinationinfo -X"_s).xml);
    const auto set = parsed(u"setdestination -a /media/disk"_s);
    EXPECT_TRUE(set.append);
    EXPECT_EQ(set.operands, QStringList(u"/media/disk"_s));
    EXPECT_TRUE(parsed(u"setdestination -a -X sftp://nas/b"_s).xml);
    for (const QString& words : {u"startbackup -b -r"_s, u"startbackup --rotation --block"_s}) {
        const auto start = parsed(words);
        EXPECT_TRUE(start.block && start.rotate && start.destination.isEmpty());
    }
    EXPECT_EQ(parsed(u"startbackup -d ID"_s).destination, u"ID"_s);
    EXPECT_EQ(parsed(u"isexcluded /a /b -- -c"_s).operands, (QStringList{u"/a"_s, u"/b"_s, u"-c"_s}));
    EXPECT_EQ(parsed(u"findfiles -b /b *.c"_s).backup, u"/b"_s);
    const auto restore = parsed(u"restore --replace --json /b/a /b/c /d"_s);
    EXPECT_TRUE(restore.rule == RestoreRule::Replace && restore.json && restore.operands.size() == 3);
    EXPECT_TRUE(parsed(u"restore --in-place /b/a"_s).inPlace);
    const auto rules = parsed(u"retention --weekly 0 --hourly 48"_s).keep;
    EXPECT_TRUE(rules.hourly == 48 && rules.daily == -1 && rules.weekly == 0);
}

TEST(CommandLine, RefusesEverythingElse)
{
    EXPECT_THROW(CommandLine::parse({}), Failure);
    for (const QString& words : {u"Status"_s,
                                 u"status -X"_s,
                                 u"status extra"_s,
                                 u"setdestination"_s,
                                 u"setdestination "_s,
                                 u"setdestination -X /media/disk"_s,
                                 u"startbackup -d"_s,
                                 u"startbackup -d "_s,
                                 u"startbackup -r -d ID"_s,
                                 u"startbackup -x"_s,
                                 u"startbackup -"_s,
                                 u"startbackup -br"_s,
                                 u"addexclusion"_s,
                                 u"verify -A"_s,
                                 u"retention --daily"_s,
                                 u"retention --daily -1"_s,
                                 u"retention --daily many"_s,
                                 u"removedestination ID another"_s,
                                 u"recoverykey --kept"_s,
                                 u"recoverykey -X --kept KEYID"_s,
                                 u"excludename -X *.iso"_s,
                                 u"listfiles --rotation /b"_s,
                                 u"findfiles --block /b x"_s,
                                 u"restore one"_s,
                                 u"restore one two three"_s,
                                 u"restore --skip one"_s,
                                 u"restore --skip --replace one two"_s}) {
        try {
            parsed(words);
            ADD_FAILURE() << words.toStdString();
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.status(), ExitStatus::Usage);
            EXPECT_FALSE(failure.message().contains(u'\n'));
        }
    }
}

} // namespace quillon
