#include "BackupRemark.h"

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

TEST(BackupRemark, NamesTheGravestCauseAndAllThatThereIsToSay)
{
    const QDateTime now(QDate(2026, 11, 22), QTime(12, 0), Qt::UTC);
    BackupRemark remark;
    remark.lastVerification = now.addDays(-28);
    EXPECT_FALSE(remark.text(now));
    const auto cause = [&] { return remark.text(now).value_or(std::pair<QString, QString>()).first; };

    remark.lastVerification = now.addDays(-29);
    EXPECT_EQ(cause(), u"NotVerified"_s);
    remark.thinningProblem = u"restic: something."_s;
    EXPECT_EQ(cause(), u"Thinning"_s);
    remark.removed.resize(2);
    EXPECT_EQ(cause(), u"SpaceMade"_s);
    remark.lackingSources = {u"A is not there."_s};
    EXPECT_EQ(cause(), u"MissingSource"_s);
    remark.unreadFiles = 1;
    EXPECT_EQ(cause(), u"UnreadFiles"_s);
    remark.damagedRecords = 1;
    EXPECT_EQ(cause(), u"Damaged"_s);
    remark.lostBackups = 3;
    EXPECT_EQ(cause(), u"BackupsLost"_s);
    remark.lostSources = {u"B is empty."_s};
    EXPECT_EQ(cause(), u"SourceLost"_s);
    const QString text = remark.text(now)->second;
    for (const auto& part : {u"B is empty. 3 earlier backups, the latest"_s,
                             u"put aside. One file could not be read. A is not there. The disk was full, and 2"_s,
                             u"restic: something."_s, u"not been verified since 2026-10-24."_s})
        EXPECT_TRUE(text.contains(part)) << text.toStdString();
}

} // namespace quillon
