#include "ApplicationIdentity.h"
#include "HostSystem.h"
#include "Ledger.h"
#include "Program.h"
#include "Report.h"
#include "RunLoop.h"
#include "ScopedEnvironment.h"
#include "SingleInstance.h"
#include "Task.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

/// Stands for the processes that the program starts: every call of the tool gets the one answer.
class PlayedTask final : public TaskLauncher {
public:
    TaskResult answer;
    QString asked;

    std::unique_ptr<RunningTask> launch(const TaskRequest& request, Completion completion) override
    {
        struct Child final : RunningTask {
            void kill() override {}
            void terminate() override {}
        };
        asked = request.arguments.join(u' ');
        QTimer::singleShot(0, [this, completion = std::move(completion)] { completion(answer); });
        return std::make_unique<Child>();
    }
};

TEST(QuillonctlProgram, TellsOnStandardErrorAndInItsStatusWhatIsWrong)
{
    const ScopedEnvironment zone("TZ", "Europe/Berlin");
    const ScopedEnvironment path("QUILLON_TMUTIL", "/nonexistent/tmutil");
    const ScopedEnvironment settings("XDG_CONFIG_HOME", "/nonexistent");
    const QTemporaryDir state;
    const ScopedEnvironment log("XDG_STATE_HOME", state.path().toUtf8());
    SqliteLedger ledger(ledgerFile());
    LedgerEntry past[] = {{.date = Date(std::chrono::seconds(1'790'000'000)),
                           .outcome = LedgerEntry::Outcome::Refused,
                           .reason = LedgerEntry::Reason::ToolRefused,
                           .exitStatus = 4,
                           .detail = u"the disk is full"_s,
                           .next = Date(std::chrono::seconds(1'790'000'060)),
                           .nextIsRetry = true},
                          {.date = Date(std::chrono::seconds(1'790'000'060)),
                           .cause = LedgerEntry::Cause::Retry,
                           .outcome = LedgerEntry::Outcome::Completed,
                           .began = Date(std::chrono::seconds(1'790'000'065)),
                           .ended = Date(std::chrono::seconds(1'790'000'090)),
                           .diskIdentifier = u"A"_s,
                           .diskName = u"First"_s,
                           .bytes = 5}};
    ledger.write(past, past->date);
    const ScopedEnvironment bus("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent");
    const ScopedEnvironment platform("QT_QPA_PLATFORM", "offscreen");
    const TaskResult missing{TaskResult::launchRefused, std::nullopt};
    const TaskResult babble{0, "Hello", "tmutil: a note\n"};
    const TaskResult none{0, "{}"};
    const TaskResult healthy{0, "{ Running = 0; Destinations = ( { ID = A; Name = B; } ); }"};
    const std::string isMissing = "quillonctl: /nonexistent/tmutil: the tool is not there\n";
    const std::string isBabble =
        "tmutil: a note\nquillonctl: /nonexistent/tmutil: what it printed cannot be understood\n";
    QFile help(QStringLiteral(PAGES "help.txt"));
    ASSERT_TRUE(help.open(QIODevice::ReadOnly));
    const QByteArray version = bundleShortVersion().toUtf8();
    const struct {
        QString words;
        TaskResult tool;
        int status;
        QByteArray output; ///< of the doctor's page its beginning
        std::string errors = {};
        QString asked = {};
    } rows[] = {
        {u"state"_s, missing, 2, "", "quillonctl: unknown command \"state\"; --help lists them\n"},
        {u"postpone"_s, missing, 64, "",
         "quillonctl: postpone takes a duration from 1m to 4w, such as 90m, 2h or 1d\n"},
        {u"--help"_s, missing, 0, help.readAll()},
        {u"--version"_s, missing, 0, "quillonctl " + version + "\n"},
        {u"next --count 2 --from 2026-10-24T12:00"_s, missing, 0,
         "2026-10-24T12:00:00+02:00\n2026-10-25T12:00:00+01:00\n"},
        {u"history"_s, missing, 0,
         "2026-09-21T16:14:20+02:00  completed  retry  First  5\n"
         "2026-09-21T16:13:20+02:00  refused  schedule  toolRefused  4  the disk is full\n"},
        {u"history --count 1"_s, missing, 0, "2026-09-21T16:14:20+02:00  completed  retry  First  5\n"},
        {u"history --json"_s, missing, 0,
         QJsonDocument(QJsonArray{QJsonObject{{u"date"_s, u"2026-09-21T16:14:20+02:00"_s},
                                              {u"cause"_s, u"retry"_s},
                                              {u"outcome"_s, u"completed"_s},
                                              {u"began"_s, u"2026-09-21T16:14:25+02:00"_s},
                                              {u"ended"_s, u"2026-09-21T16:14:50+02:00"_s},
                                              {u"destinationID"_s, u"A"_s},
                                              {u"destinationName"_s, u"First"_s},
                                              {u"bytesCopied"_s, 5}},
                                  QJsonObject{{u"date"_s, u"2026-09-21T16:13:20+02:00"_s},
                                              {u"cause"_s, u"schedule"_s},
                                              {u"outcome"_s, u"refused"_s},
                                              {u"reason"_s, u"toolRefused"_s},
                                              {u"next"_s, u"2026-09-21T16:14:20+02:00"_s},
                                              {u"nextIsRetry"_s, true},
                                              {u"exitStatus"_s, 4},
                                              {u"detail"_s, u"the disk is full"_s}}})
             .toJson()},
        {u"status"_s, missing, 1, report::status(TMStatus::failure(), false), isMissing, u"status"_s},
        {u"status --json"_s, babble, 1, report::status(TMStatus::failure(), true), isBabble, u"status"_s},
        {u"status --json"_s, healthy, 0, report::status(TMStatus::notRunning(), true), "", u"status"_s},
        {u"destinations"_s, babble, 1, "", isBabble, u"destinationinfo -X"_s},
        {u"destinations"_s, none, 0, "", "quillonctl: no backup disk is set up\n", u"destinationinfo -X"_s},
        {u"destinations"_s, healthy, 0, "A  B\n", "", u"destinationinfo -X"_s},
        {u"skip --json"_s, missing, 2, "{\"done\":false,\"text\":\"Quillon is not running\"}\n",
         "quillonctl: Quillon is not running\n"},
        {u"doctor"_s, missing, 1, "Quillon " + version, "", u"destinationinfo -X"_s},
        {u"doctor --json"_s, healthy, 0, "{", "", u"destinationinfo -X"_s},
    };
    for (const auto& [words, tool, status, output, errors, asked] : rows) {
        SCOPED_TRACE(words.toStdString() + ' ' + output.toStdString());
        QtRunLoop runLoop;
        PlayedTask played;
        played.answer = tool;
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        EXPECT_EQ(runQuillonctl(words.split(u' '), {runLoop, played}), status);
        const std::string printed = testing::internal::GetCapturedStdout();
        EXPECT_TRUE(words.startsWith(u"doctor"_s) ? printed.starts_with(output.toStdString())
                                                  : printed == output.toStdString())
            << printed;
        EXPECT_EQ(testing::internal::GetCapturedStderr(), errors);
        EXPECT_EQ(played.asked, asked);
    }
}

TEST(QuillonctlProgram, ALogThatCannotBeReadIsNamed)
{
    const QTemporaryDir state;
    const ScopedEnvironment log("XDG_STATE_HOME", state.path().toUtf8());
    ASSERT_TRUE(QDir().mkpath(ledgerFile()));
    QtRunLoop runLoop;
    PlayedTask unused;
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    EXPECT_EQ(runQuillonctl({u"history"_s}, {runLoop, unused}), 1);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "quillonctl: " + ledgerFile().toStdString() + " cannot be read\n");
}

/// A running Quillon that answers every question with these lines and hangs up.
class AnsweringInstance final : public QThread {
public:
    explicit AnsweringInstance(QByteArrayList lines)
        : lines_(std::move(lines))
    {
        start();
        isReady_.acquire();
    }
    ~AnsweringInstance() override
    {
        quit();
        wait();
    }

private:
    void run() override
    {
        SingleInstance instance(identity::instanceLock());
        EXPECT_TRUE(instance.acquire());
        connect(&instance, &SingleInstance::asked, &instance, [this](const auto&, const auto& caller) {
            for (const QByteArray& line : lines_)
                EXPECT_TRUE(caller->tell(line));
        });
        isReady_.release();
        exec();
    }

    const QByteArrayList lines_;
    QSemaphore isReady_;
};

TEST(QuillonctlProgram, PassesOnWhatTheRunningQuillonAnswers)
{
    const QTemporaryDir settings;
    const ScopedEnvironment home("XDG_CONFIG_HOME", settings.path().toUtf8());
    const ScopedEnvironment bus("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent");
    const QByteArray done = R"({"done":true,"text":"fine"})";
    const QByteArray refused = R"({"done":false,"text":"no"})";
    const struct {
        QString words;
        QByteArrayList answers;
        int status;
        std::string output;
        std::string errors = {};
    } rows[] = {
        {u"skip"_s, {done, done}, 0, "fine\n"},
        {u"skip"_s, {refused}, 1, "", "quillonctl: no\n"},
        {u"skip --json"_s, {done}, 0, done.toStdString() + '\n'},
        {u"skip --json"_s, {refused}, 1, refused.toStdString() + '\n', "quillonctl: no\n"},
        {u"skip"_s, {}, 1, "", "quillonctl: the running Quillon gave no answer\n"},
        {u"skip"_s, {"Hello"}, 1, "", "quillonctl: the running Quillon gave no answer\n"},
        {u"status --watch"_s, {done, done}, 2, "fine\nfine\n", "quillonctl: Quillon has ended\n"},
        {u"status --watch"_s, {done, refused, done}, 1, "fine\n", "quillonctl: no\n"},
    };
    for (const auto& [words, answers, status, output, errors] : rows) {
        SCOPED_TRACE(words.toStdString() + ' ' + answers.join().toStdString());
        const AnsweringInstance instance(answers);
        QtRunLoop runLoop;
        PlayedTask unused;
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        EXPECT_EQ(runQuillonctl(words.split(u' '), {runLoop, unused}), status);
        EXPECT_EQ(testing::internal::GetCapturedStdout(), output);
        EXPECT_EQ(testing::internal::GetCapturedStderr(), errors);
    }
}

} // namespace quillon
