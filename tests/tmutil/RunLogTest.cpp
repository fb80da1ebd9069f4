#include "RunLog.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

TEST(RunLog, TheLatestRunsAreKeptWithEveryPathThatWasNotRead)
{
    const QTemporaryDir state;
    constexpr int runs = 203;
    for (int run = 0; run < runs; ++run) {
        RunLog log;
        log.begun = u"2026-11-21 07:%1:%2 +0000"_s.arg(run / 60, 2, 10, QChar(u'0')).arg(run % 60, 2, 10, QChar(u'0'));
        log.result = u"Completed"_s;
        log.disk = u"Grüne Platte"_s;
        log.backup = QString::number(run);
        log.bytesAdded = run;
        log.unread = {u"/a"_s, u"/line\nbreak"_s, u"/bell\u0007"_s};
        ASSERT_TRUE(log.write(state.path()));
    }
    const auto kept = RunLog::all(state.path());
    ASSERT_EQ(kept.size(), 200U);
    EXPECT_EQ(kept.front().backup, u"3"_s);
    EXPECT_EQ(kept.back().backup, u"202"_s);
    EXPECT_EQ(kept.back().bytesAdded, 202);
    EXPECT_TRUE(kept.back().line().contains(u"3 not read"_s)) << kept.back().line().toStdString();
    EXPECT_EQ(kept.back().unread, (QStringList{u"/a"_s, u"/line\nbreak"_s, u"/bell\uFFFD"_s}));
}

} // namespace quillon
