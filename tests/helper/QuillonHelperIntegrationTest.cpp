#include "EventLoop.h"
#include "ScopedEnvironment.h"
#include "SessionTestSupport.h"
#include "SingleInstance.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

/// The companion, installed into a prefix beside a Quillon that only notes that it was started.
class QuillonHelper : public testing::Test {
protected:
    QuillonHelper()
    {
        QDir(prefix.path()).mkpath(u"libexec/quillon"_s);
        QDir(prefix.path()).mkpath(u"bin"_s);
        EXPECT_TRUE(QFile::copy(QStringLiteral(HELPER_EXECUTABLE), helper));
        writeScript(application, u"echo \"$# $PWD\" >'%1.part'; mv '%1.part' '%1'\n"_s.arg(note));
    }

    QTemporaryDir prefix;
    QString helper = prefix.filePath(u"libexec/quillon/QuillonHelper"_s);
    QString application = prefix.filePath(u"bin/quillon"_s);
    QString note = prefix.filePath(u"started"_s);
    ScopedEnvironment configuration{"XDG_CONFIG_HOME", QFile::encodeName(prefix.filePath(u"config"_s))};
    ScopedEnvironment runtime{"XDG_RUNTIME_DIR", QFile::encodeName(prefix.path())};
    ScopedEnvironment home{"HOME", QFile::encodeName(prefix.path())};
};

TEST_F(QuillonHelper, StartsTheApplicationOfItsOwnPrefixOrSaysThatItCannot)
{
    const Finished finished = run(helper, {});
    EXPECT_EQ(finished.status, 0);
    EXPECT_EQ(finished.output, QString());
    ASSERT_TRUE(runUntil([this] { return QFile::exists(note); }));
    EXPECT_EQ(contentOf(note), u"0 %1\n"_s.arg(QDir(prefix.path()).canonicalPath()));
    {
        SingleInstance started(prefix.filePath(u"config/com.Orvane.Quillon.instance"_s));
        EXPECT_TRUE(started.acquire());
    }

    QFile::remove(application);
    const Finished missing = run(helper, {});
    EXPECT_EQ(missing.status, 1);
    EXPECT_EQ(missing.output, u"QuillonHelper: cannot start %1\n"_s.arg(application));
}

TEST_F(QuillonHelper, LeavesARunningApplicationAlone)
{
    SingleInstance running(prefix.filePath(u"config/com.Orvane.Quillon.instance"_s));
    ASSERT_TRUE(running.acquire());
    QFile::remove(application); // which would be missed
    int presented = 0;
    QObject::connect(&running, &SingleInstance::presentRequested, [&presented] { ++presented; });
    const Finished finished = run(helper, {});
    EXPECT_EQ(finished.status, 0) << finished.output.toStdString();
    QCoreApplication::processEvents();
    EXPECT_EQ(presented, 0);
}

} // namespace quillon
