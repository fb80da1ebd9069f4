#include "TMReports.h"

#include <QFile>

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

TMStatus running(const QByteArray& entries)
{
    return TMStatus::fromOutput("{ Running = 1; BackupPhase = Copying; " + entries + " }");
}

} // namespace

TEST(ReadingTheStatus, TakesEveryFieldFromTheToolsText)
{
    EXPECT_EQ(TMStatus::fromOutput("Backup session status:\n{\n    Running = 0;\n}\nThat is all.\n"),
              TMStatus::notRunning());
    EXPECT_EQ(TMStatus::notRunning(), (TMStatus{false, TMState::NotRunning, u"Not Running"_s, 0, 0, 0, {}}));
    EXPECT_EQ(TMStatus::failure(), (TMStatus{true, TMState::Unknown, u"Unknown"_s, 0, 0, 0, {}}));
    QFile recorded(QStringLiteral(ANSWERS_FOLDER "/status-copying.txt"));
    ASSERT_TRUE(recorded.open(QIODevice::ReadOnly));
    auto copying = TMStatus::fromOutput(recorded.readAll());
    EXPECT_NEAR(std::exchange(copying.percent, 0), 0.6, 1e-6);
    EXPECT_EQ(copying, (TMStatus{false, TMState::Running, u"Copying"_s, 0, 3600.25, 61728394,
                                 u"6B29FC40-CA47-1067-B31D-00DD010662DA"_s}));
    EXPECT_EQ(TMStatus::fromOutput("{ Running = 1; lastReport = { Running = 0; }; }"), TMStatus::notRunning());
    EXPECT_EQ(running("Stopping = 1;").state, TMState::Stopping);
    EXPECT_EQ(running("Stopping = YES;").state, TMState::Stopping);
    EXPECT_EQ(running("Stopping = 0;").state, TMState::Running);
    EXPECT_EQ(running("Stopping = { };").state, TMState::Running);
}

TEST(ReadingTheStatus, EveryUnreadableAnswerIsOneAndTheSameFailure)
{
    EXPECT_EQ(TMStatus::fromOutput(std::nullopt), TMStatus::failure());
    for (const QByteArray output :
         {"", "no braces", "}{", "{", "{}", "{ Running = 1; }", "{ Running = 1; BackupPhase = ( a ); }", "{ Running }",
          "{ Running = 1; BackupPhase = Copying; } trailing }", "{ Running = { a = 1; }; }",
          "{ lastReport = { BackupPhase = Copying; }; Running = 0; }"})
        EXPECT_EQ(TMStatus::fromOutput(output), TMStatus::failure()) << output.toStdString();
}

TEST(ReadingTheStatus, ProgressIsScaledToTheWholeBackup)
{
    const struct {
        QByteArray entries;
        double percent;
    } cases[] = {
        {"Progress = { Percent = \"-1\"; };", 0},
        {"Progress = { Percent = abc; };", 0},
        {"Progress = { Percent = \"1.5\"; };", 1.5}, // nothing is clamped from above
        {"Progress = { Percent = \"-1\"; }; EventFractionOfTotalProgressBar = \"0.2\";", 0.2},
        {"Progress = { Percent = \"0.5\"; }; EventFractionOfTotalProgressBar = \"0.2\";", 0.6},
        {"Progress = { Percent = 0.5; }; FractionOfProgressBar = 0.8;", 0.6},
        {"Progress = { Percent = 0.5; }; FractionOfProgressBar = 0.8; EventFractionOfTotalProgressBar = 0.5;", 0.75},
        {"Progress = { }; EventFractionOfTotalProgressBar = 0.5;", 0},
        {"FractionOfProgressBar = 0.5; FractionDone = 0.4;", 0.2},
        {"FractionOfProgressBar = 0.5;", 0},
        {"FractionOfProgressBar = 1e50;", 0},
        {"FractionDone = 1e50;", 0},
        {"Progress = none; FractionOfProgressBar = 0.5; FractionDone = 1;", 0.5}, // a container of the wrong kind
    };
    for (const auto& [entries, percent] : cases)
        EXPECT_NEAR(running(entries).percent, percent, 1e-6) << entries.toStdString();
    EXPECT_EQ(running("Progress = { Percent = 0.1; };").percent, double(0.1F)) << "values are single-precision";
    const auto status = running("Progress = { TimeRemaining = \"-3\"; bytes = \"-5\"; };");
    EXPECT_DOUBLE_EQ(status.timeRemaining, 0);
    EXPECT_EQ(status.bytesCopied, 0);
    EXPECT_EQ(running("Progress = { bytes = 1; };").bytesCopied, 1);
    EXPECT_EQ(running("Progress = { bytes = 99999999999999999999; };").bytesCopied, std::numeric_limits<qint64>::max());
}

} // namespace quillon
