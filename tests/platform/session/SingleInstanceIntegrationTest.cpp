#include "ChildProgram.h"
#include "EventLoop.h"
#include "ScopedEnvironment.h"
#include "SessionTestSupport.h"
#include "SingleInstance.h"

#include <QDir>
#include <QLocalSocket>
#include <QTemporaryDir>

#include <csignal>
#include <deque>
#include <sys/stat.h>
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
    QTemporaryDir settings;
    QTemporaryDir runtime;
    const QString folder = settings.filePath(u"Quillon"_s);
    const QString refusal = u"refused: another instance runs on the folder "_s + folder;
    ScopedEnvironment runtimeFolder{"XDG_RUNTIME_DIR", QFile::encodeName(runtime.path())};
};

TEST_F(SingleInstanceIntegrationTest, LaterStartsHaveTheFirstDoWhatTheyAreForAndNothingUnknown)
{
    Instance first(folder);
    ASSERT_EQ(first.readLine(), u"first"_s);
    EXPECT_EQ(Instance(folder, {u"back-up-now"_s}).readLine(), u"presented"_s);
    EXPECT_EQ(first.readLine(), u"back-up-now"_s);
    const QString path = u"/"_s + QString(2000, u'ä') + u" b"_s;
    EXPECT_EQ(Instance(folder, {u"back-up-now"_s, path}).readLine(), u"presented"_s);
    EXPECT_EQ(first.readLine(), u"back-up-now "_s + path);
    EXPECT_EQ(Instance(folder, {u"erase-everything"_s}).readLine(), refusal);
    // A start from elsewhere (cron, another login) has another environment and means the same folder.
    const ScopedEnvironment elsewhere("XDG_RUNTIME_DIR", QFile::encodeName(settings.path()));
    for (const QString& token : {u" shell-1_TIME42"_s, u""_s}) { // which serves once
        const ScopedEnvironment launched("DESKTOP_STARTUP_ID", token.trimmed().toUtf8());
        EXPECT_EQ(Instance(folder).readLine(), u"presented"_s);
        EXPECT_EQ(first.readLine(), u"present"_s + token);
    }
}

TEST_F(SingleInstanceIntegrationTest, ACrashLeavesNothingInTheWayAndAHangKeepsTheClaim)
{
    Instance first(folder);
    ASSERT_EQ(first.readLine(), u"first"_s);
    first.crash();
    Instance next(folder);
    EXPECT_EQ(next.readLine(), u"first"_s);
    EXPECT_EQ(Instance(folder).readLine(), u"presented"_s);
    kill(static_cast<pid_t>(next.process().processId()), SIGSTOP);
    EXPECT_EQ(Instance(folder).readLine(), refusal);
}

TEST_F(SingleInstanceIntegrationTest, AnswersAQuestionALongOneTooAndHangsUpOnWhoAsksNothing)
{
    const auto ask = [this](const QByteArray& question) {
        InstanceCall call;
        return call.ask(folder + u"/instance"_s, question, QDeadlineTimer::Forever)
                   ? call.nextLine(QDeadlineTimer::Forever)
                   : std::nullopt;
    };
    EXPECT_FALSE(ask("{}")) << "nobody is there";
    Instance first(folder);
    ASSERT_EQ(first.readLine(), u"first"_s);
    EXPECT_EQ(ask(R"({"a":1})"), R"(heard {"a":1})");
    const auto heard = ask('{' + QByteArray(100'000, 'x'));
    EXPECT_TRUE(heard && heard->startsWith("heard {xxx") && heard->size() < 20'000) << "it is cut off";
    EXPECT_FALSE(ask("unknown"));
    QLocalSocket silent;
    silent.connectToServer(runtime.filePath(QDir(runtime.path()).entryList(QDir::Files | QDir::System).value(0)));
    silent.write("{");
    EXPECT_TRUE(runUntil([&] { return silent.state() == QLocalSocket::UnconnectedState; }));
    first.crash();
    EXPECT_FALSE(ask("{}"));
}

TEST_F(SingleInstanceIntegrationTest, FoldersDoNotShareAnInstance)
{
    // Paths beyond what the address of a socket holds, alike for longer than that.
    const QString stem = settings.filePath(QString(150, u'x'));
    Instance one(stem + u'1');
    EXPECT_EQ(one.readLine(), u"first"_s);
    Instance two(stem + u'2');
    EXPECT_EQ(two.readLine(), u"first"_s);
}

TEST_F(SingleInstanceIntegrationTest, OfManyStartsAtOnceOneRuns)
{
    std::deque<Instance> starts;
    for (int i = 0; i < 8; ++i)
        starts.emplace_back(folder);
    QStringList said;
    for (auto& start : starts)
        said << start.readLine();
    said.sort();
    EXPECT_EQ(said, QStringList{u"first"_s} + QStringList(7, u"presented"_s));
}

TEST_F(SingleInstanceIntegrationTest, LockAndSocketAreTheUsersAloneAndTakeNoOtherWord)
{
    const QString lock = folder + u"/instance"_s;
    SingleInstance first(lock);
    ASSERT_TRUE(first.acquire());
    int presents = 0;
    QObject::connect(&first, &SingleInstance::presentRequested, [&presents] { ++presents; });
    const QString socket = runtime.filePath(QDir(runtime.path()).entryList(QDir::Files | QDir::System).value(0));
    for (const QString& made : {folder, lock, socket})
        EXPECT_EQ(QFile::permissions(made) & QFile::Permissions(0x0077), QFile::Permissions()) << made.toStdString();

    // Even where permissions of folders do not keep another user out.
    for (const auto& opened : {settings.path(), folder, runtime.path(), socket})
        ASSERT_EQ(chmod(QFile::encodeName(opened).constData(), 0777), 0);
    for (const auto& [user, word] : {std::pair(getuid(), "GET / HTTP/1.1\r\n\r\n"), std::pair(65534U, "present\n")}) {
        if (getuid() != 0 && user != getuid())
            continue; // only root can play another user
        ASSERT_EQ(seteuid(user), 0);
        QLocalSocket stranger;
        stranger.connectToServer(socket);
        EXPECT_TRUE(user == getuid() || !QFile(lock).open(QIODevice::ReadOnly)) << "who can open it can hold it";
        ASSERT_EQ(seteuid(getuid()), 0);
        stranger.write(word);
        EXPECT_TRUE(runUntil([&] { return stranger.state() == QLocalSocket::UnconnectedState; }));
        EXPECT_EQ(stranger.readAll(), "");
    }
    EXPECT_EQ(presents, 0);
    EXPECT_EQ(Instance(folder).readLine(), u"presented"_s);
    EXPECT_EQ(presents, 1);
}

TEST_F(SingleInstanceIntegrationTest, AFolderThatCannotBeUsedIsReported)
{
    writeScript(folder, {}); // a file where the folder should be
    SingleInstance instance(folder + u"/instance"_s);
    EXPECT_FALSE(instance.acquire());
    EXPECT_EQ(instance.errorString(), u"cannot write in the folder "_s + folder);
}

} // namespace
} // namespace quillon
