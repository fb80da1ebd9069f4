#include "TMStatus.h"

#include <QFile>

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

QByteArray answer(const QString& name)
{
    QFile file(QStringLiteral(ANSWERS_FOLDER "/") + name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return file.readAll();
}

TMStatus running(const QByteArray& entries)
{
    return TMStatus::fromOutput("{ Running = 1; BackupPhase = Copying; " + entries + " }");
}

} // namespace

TEST(ReadingTheStatus, TakesEveryFieldFromTheToolsText)
{
    EXPECT_EQ(TMStatus::fromOutput(answer(u"status-idle.txt"_s)), TMStatus::notRunning());
    const auto copying = TMStatus::fromOutput(answer(u"status-copying.txt"_s));
    EXPECT_FALSE(copying.failed);
    EXPECT_EQ(copying.state, TMState::Running);
    EXPECT_EQ(copying.phase, u"Copying"_s);
    EXPECT_NEAR(copying.percent, 0.6, 1e-6);
    EXPECT_DOUBLE_EQ(copying.timeRemaining, 3600.25);
    EXPECT_EQ(copying.bytesCopied, 61728394);
    EXPECT_EQ(copying.destinationID, u"6B29FC40-CA47-1067-B31D-00DD010662DA"_s);
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
    EXPECT_DOUBLE_EQ(running("Progress = { Percent = \"-1\"; };").percent, 0);
    EXPECT_NEAR(running("Progress = { Percent = \"-1\"; }; EventFractionOfTotalProgressBar = \"0.2\";").percent, 0.2,
                1e-6);
    EXPECT_NEAR(running("Progress = { Percent = \"0.5\"; }; EventFractionOfTotalProgressBar = \"0.2\";").percent, 0.6,
                1e-6);
    EXPECT_NEAR(running("Progress = { Percent = 0.5; }; FractionOfProgressBar = 0.8;").percent, 0.6, 1e-6);
    EXPECT_NEAR(running("Progress = { Percent = 0.5; }; FractionOfProgressBar = 0.8; "
                        "EventFractionOfTotalProgressBar = 0.5;")
                    .percent,
                0.75, 1e-6);
    EXPECT_DOUBLE_EQ(running("Progress = { }; EventFractionOfTotalProgressBar = 0.5;").percent, 0);
    EXPECT_NEAR(running("FractionOfProgressBar = 0.5; FractionDone = 0.4;").percent, 0.2, 1e-6);
    for (const auto* one : {"FractionOfProgressBar = 0.5;", "FractionOfProgressBar = 1e50;", "FractionDone = 1e50;"})
        EXPECT_DOUBLE_EQ(running(one).percent, 0) << one;
    EXPECT_DOUBLE_EQ(running("Progress = { Percent = \"1.5\"; };").percent, 1.5) << "nothing is clamped from above";
    EXPECT_NE(running("Progress = { Percent = \"0.1\"; };").percent, 0.1) << "values are single-precision";
}

TEST(ReadingTheStatus, ValuesThatAreNoNumbersOrNegativeReadAsNothing)
{
    const auto status = running("Progress = { Percent = abc; TimeRemaining = \"-3\"; bytes = \"-5\"; };");
    EXPECT_DOUBLE_EQ(status.percent, 0);
    EXPECT_DOUBLE_EQ(status.timeRemaining, 0);
    EXPECT_EQ(status.bytesCopied, 0);
    EXPECT_EQ(running("Progress = none; FractionOfProgressBar = 0.5; FractionDone = 1;").percent, 0.5)
        << "a container of the wrong kind is absent";
    EXPECT_EQ(running("Progress = { bytes = 99999999999999999999; };").bytesCopied, std::numeric_limits<qint64>::max());
}

TEST(ReadingTheStatus, TheLastReportStandsForTheWholeAndStoppingIsAState)
{
    EXPECT_EQ(TMStatus::fromOutput("{ Running = 1; lastReport = { Running = 0; }; }"), TMStatus::notRunning());
    EXPECT_EQ(running("Stopping = 1;").state, TMState::Stopping);
    EXPECT_EQ(running("Stopping = YES;").state, TMState::Stopping);
    EXPECT_EQ(running("Stopping = 0;").state, TMState::Running);
    EXPECT_EQ(running("Stopping = { };").state, TMState::Running);
}

} // namespace quillon
