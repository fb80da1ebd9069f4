#include "ChildProgram.h"
#include "EventLoop.h"
#include "ScopedEnvironment.h"
#include "SessionTestSupport.h"
#include "SingleInstance.h"

#include <QDir>
#include <QFile>
#include <QLocalSocket>
#include <QTemporaryDir>

#include <csignal>
#include <cstring>
#include <deque>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// The program, started for real.
class Instance : public ChildProgram {
public:
    explicit Instance(const QString& folder, const QStringList& options = {})
        : ChildProgram(QStringLiteral(INSTANCE_PROGRAM), QStringList{folder} + options)
    {
    }
    ~Instance() { crash(); }
};

class SingleInstanceIntegrationTest : public testing::Test {
protected:
    QFileInfoList sockets() const
    {
        return QDir(runtime.path()).entryInfoList(QDir::System | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    QTemporaryDir settings;
    QTemporaryDir runtime;
    QString folder = settings.filePath(u"Quillon"_s);
    ScopedEnvironment runtimeFolder{"XDG_RUNTIME_DIR", QFile::encodeName(runtime.path())};
};

} // namespace

TEST_F(SingleInstanceIntegrationTest, LaterStartsHaveTheFirstDoWhatTheyAreForAndNothingUnknown)
{
    Instance first(folder);
    ASSERT_EQ(first.readLine(), u"first"_s);
    Instance wanted(folder, {u"back-up-now"_s});
    EXPECT_EQ(wanted.readLine(), u"presented"_s);
    EXPECT_EQ(first.readLine(), u"back-up-now"_s);
    Instance unknown(folder, {u"erase-everything"_s});
    EXPECT_EQ(unknown.readLine(), u"refused: another instance runs on the folder "_s + folder);
    // A start from elsewhere (cron, another login) has another environment and means the same folder.
    const ScopedEnvironment elsewhere("XDG_RUNTIME_DIR", QFile::encodeName(settings.path()));
    Instance plain(folder);
    EXPECT_EQ(plain.readLine(), u"presented"_s);
    EXPECT_EQ(first.readLine(), u"present"_s);
}

TEST_F(SingleInstanceIntegrationTest, ASecondStartGivesItsActivationTokenAwayOnce)
{
    Instance first(folder);
    ASSERT_EQ(first.readLine(), u"first"_s);
    for (const char* variable : {"XDG_ACTIVATION_TOKEN", "DESKTOP_STARTUP_ID"}) {
        {
            const ScopedEnvironment launched(variable, "shell-1_TIME42");
            EXPECT_EQ(Instance(folder).readLine(), u"presented"_s);
        }
        EXPECT_EQ(first.readLine(), u"present shell-1_TIME42"_s) << variable;
        EXPECT_EQ(Instance(folder).readLine(), u"presented"_s);
        EXPECT_EQ(first.readLine(), u"present"_s) << variable;
    }
}

TEST_F(SingleInstanceIntegrationTest, ACrashLeavesNothingInTheWay)
{
    Instance first(folder, {u"--leave-child"_s});
    const pid_t child = first.readLine().toInt();
    ASSERT_EQ(first.readLine(), u"first"_s);
    first.crash();
    ASSERT_EQ(kill(child, 0), 0); // a child that lives on must not hold the claim

    Instance next(folder);
    EXPECT_EQ(next.readLine(), u"first"_s);
    Instance second(folder);
    EXPECT_EQ(second.readLine(), u"presented"_s);
    kill(child, SIGKILL);
}

TEST_F(SingleInstanceIntegrationTest, FoldersDoNotShareAnInstance)
{
    // Paths beyond what the address of a socket holds, alike for longer than that.
    const QString stem = settings.filePath(QString(150, u'x'));
    Instance one(stem + u'1');
    EXPECT_EQ(one.readLine(), u"first"_s);
    Instance two(stem + u'2');
    EXPECT_EQ(two.readLine(), u"first"_s);
    Instance again(stem + u'2');
    EXPECT_EQ(again.readLine(), u"presented"_s);
    EXPECT_EQ(two.readLine(), u"present"_s);
}

TEST_F(SingleInstanceIntegrationTest, OfManyStartsAtOnceOneRuns)
{
    std::deque<Instance> starts;
    for (int i = 0; i < 8; ++i)
        starts.emplace_back(folder);
    QStringList said;
    for (auto& start : starts)
        said << start.readLine();
    EXPECT_EQ(said.count(u"first"_s), 1) << said.join(u", "_s).toStdString();
    EXPECT_EQ(said.count(u"presented"_s), 7) << said.join(u", "_s).toStdString();
}

TEST_F(SingleInstanceIntegrationTest, AFirstInstanceThatHangsKeepsItsClaim)
{
    Instance first(folder);
    ASSERT_EQ(first.readLine(), u"first"_s);
    ::kill(static_cast<pid_t>(first.process().processId()), SIGSTOP);
    Instance second(folder);
    EXPECT_EQ(second.readLine(), u"refused: another instance runs on the folder "_s + folder);
}

TEST_F(SingleInstanceIntegrationTest, TheSocketIsTheUsersAloneAndTakesNoOtherWord)
{
    SingleInstance first(folder);
    ASSERT_TRUE(first.acquire());
    int presents = 0;
    QObject::connect(&first, &SingleInstance::presentRequested, [&presents] { ++presents; });
    ASSERT_EQ(sockets().size(), 1);
    EXPECT_EQ(sockets().first().permissions() &
                  (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther),
              QFile::Permissions());

    QLocalSocket stranger;
    stranger.connectToServer(sockets().first().filePath());
    stranger.write("GET / HTTP/1.1\r\n\r\n");
    EXPECT_TRUE(runUntil([&] { return stranger.state() == QLocalSocket::UnconnectedState; }));
    EXPECT_EQ(presents, 0);

    Instance second(folder);
    EXPECT_EQ(second.readLine(), u"presented"_s);
    EXPECT_EQ(presents, 1);
}

TEST_F(SingleInstanceIntegrationTest, WithoutASessionNobodyElseCanTakeTheSocketsPlace)
{
    const ScopedEnvironment noRuntimeFolder("XDG_RUNTIME_DIR", {});
    const ScopedEnvironment temporary("TMPDIR", QFile::encodeName(runtime.path()));
    Instance first(folder);
    ASSERT_EQ(first.readLine(), u"first"_s);
    Instance second(folder);
    EXPECT_EQ(second.readLine(), u"presented"_s);
    const auto made = QDir(runtime.path()).entryInfoList({u"instance_program-*"_s}, QDir::Dirs);
    ASSERT_EQ(made.size(), 1);
    EXPECT_EQ(made.first().permissions() & (QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther),
              QFile::Permissions());
}

TEST_F(SingleInstanceIntegrationTest, AnotherUserIsNotListenedToAndCannotHoldTheLock)
{
    SingleInstance first(folder);
    ASSERT_TRUE(first.acquire());
    int presents = 0;
    QObject::connect(&first, &SingleInstance::presentRequested, [&presents] { ++presents; });
    EXPECT_EQ(QFileInfo(folder).permissions() & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can play another user";

    // Even where permissions of folders do not keep another user out.
    const QByteArray lock = QFile::encodeName(QDir(folder).filePath(u"com.Orvane.Quillon.instance"_s));
    const QByteArray socket = QFile::encodeName(sockets().first().filePath());
    for (const auto& opened : {settings.path(), folder, runtime.path()})
        chmod(QFile::encodeName(opened).constData(), 0755);
    chmod(socket.constData(), 0777);
    enum { Harmless, Answered, HoldsTheLock, CannotTry };
    const pid_t child = fork();
    if (child == 0) {
        constexpr uid_t nobody = 65534;
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        strncpy(address.sun_path, socket.constData(), sizeof address.sun_path - 1);
        const int stranger = ::socket(AF_UNIX, SOCK_STREAM, 0);
        if (setuid(nobody) != 0 || connect(stranger, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0)
            _exit(CannotTry);
        if (open(lock.constData(), O_RDONLY) >= 0)
            _exit(HoldsTheLock);
        const bool said = write(stranger, "present\n", 8) == 8;
        char answer = 0;
        _exit(said && read(stranger, &answer, 1) > 0 ? Answered : Harmless); // waits for the answer or the end
    }
    int status = -1;
    bool ended = false;
    EXPECT_TRUE(runUntil([&] {
        ended = ended || waitpid(child, &status, WNOHANG) == child;
        return ended;
    }));
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), Harmless);
    EXPECT_EQ(presents, 0);
}

TEST_F(SingleInstanceIntegrationTest, AFolderThatCannotBeUsedIsReported)
{
    writeScript(folder, {}); // a file where the folder should be
    SingleInstance instance(folder);
    EXPECT_FALSE(instance.acquire());
    EXPECT_EQ(instance.errorString(), u"cannot write in the folder "_s + folder);
}

} // namespace quillon
