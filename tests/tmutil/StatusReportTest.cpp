#include "StatusReport.h"

#include "Failure.h"
#include "Folders.h"
#include "History.h"
#include "PracticeTmutil.h"
#include "ProcessLock.h"
#include "PropertyListFile.h"
#include "ReportMarks.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <atomic>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// Another process that holds the worker's lock.
class LockHolder {
public:
    explicit LockHolder(const QString& path)
    {
        int ready[2] = {-1, -1};
        EXPECT_EQ(pipe(ready), 0);
        process_ = fork();
        if (process_ == 0) {
            ProcessLock lock(path);
            [[maybe_unused]] const auto written = write(ready[1], lock.tryLock() ? "y" : "n", 1);
            pause();
            _exit(0);
        }
        char byte = 0;
        EXPECT_EQ(read(ready[0], &byte, 1), 1);
        EXPECT_EQ(byte, 'y');
        close(ready[0]);
        close(ready[1]);
    }
    LockHolder(const LockHolder&) = delete;
    LockHolder& operator=(const LockHolder&) = delete;
    ~LockHolder() { end(); }

    pid_t process() const { return process_; }
    void end()
    {
        if (process_ <= 0)
            return;
        kill(process_, SIGKILL);
        waitpid(process_, nullptr, 0);
        process_ = 0;
    }

private:
    pid_t process_ = 0;
};

class StatusReportTest : public testing::Test {
protected:
    QVariantMap report() const { return parseStatus(StatusReport(folders_).text()).value_or(QVariantMap()); }
    QString state() const { return root_.path(); }

    void setDisks(const QStringList& ids) const
    {
        QVariantList disks;
        for (const QString& id : ids)
            disks.append(QVariantMap{{u"ID"_s, id}, {u"Path"_s, u"/disk"_s}});
        QDir().mkpath(folders_.configuration);
        ASSERT_TRUE(
            writeKeptPropertyList(folders_.configuration + "/configuration.plist"_L1, {{u"Destinations"_s, disks}}));
    }

    RunState run(pid_t worker) const
    {
        RunState run;
        run.runId = u"run"_s;
        run.worker = worker;
        run.destinationId = u"ID"_s;
        run.mountPoint = u"/media/Grüne \"Platte\""_s;
        run.phase = phase::copying;
        run.stateChange = u"2026-11-21 07:22:58 +0000"_s;
        run.progress = BackupProgress{
            .fraction = 0.25, .secondsRemaining = 90, .bytes = 1, .totalBytes = 4, .files = 2, .totalFiles = 8};
        return run;
    }

    QTemporaryDir root_;
    Folders folders_{root_.path(), root_.filePath(u"config"_s), root_.path(), root_.filePath(u"cache"_s)};
};

} // namespace

TEST_F(StatusReportTest, ReadsBackAsItWasWritten)
{
    EXPECT_TRUE(StatusReport(folders_).text().startsWith("Backup session status:\n{\n"));
    EXPECT_EQ(report(), (QVariantMap{{u"ClientID"_s, u"com.apple.backupd"_s}, {u"Running"_s, u"0"_s}}));

    const LockHolder worker(RunState::lockPath(state()));
    RunState copying = run(worker.process());
    ASSERT_TRUE(copying.write(state()));
    QVariantMap dictionary = report();
    EXPECT_EQ(dictionary.value(u"Running"_s), u"1"_s);
    EXPECT_EQ(dictionary.value(u"Stopping"_s), u"0"_s);
    EXPECT_EQ(dictionary.value(u"BackupPhase"_s), u"Copying"_s);
    EXPECT_EQ(dictionary.value(u"DestinationMountPoint"_s), u"/media/Grüne \"Platte\""_s);
    EXPECT_EQ(dictionary.value(u"Progress"_s).toMap(), (QVariantMap{{u"Percent"_s, u"0.25"_s},
                                                                    {u"TimeRemaining"_s, u"90"_s},
                                                                    {u"bytes"_s, u"1"_s},
                                                                    {u"totalBytes"_s, u"4"_s},
                                                                    {u"files"_s, u"2"_s},
                                                                    {u"totalFiles"_s, u"8"_s}}));

    copying.progress->fraction.reset();
    copying.progress->secondsRemaining.reset();
    copying.stopping = true;
    ASSERT_TRUE(copying.write(state()));
    dictionary = report();
    EXPECT_EQ(dictionary.value(u"Stopping"_s), u"1"_s);
    EXPECT_EQ(dictionary.value(u"Progress"_s).toMap().value(u"Percent"_s), u"-1"_s);
    EXPECT_FALSE(dictionary.contains(u"LastFailure"_s));
}

TEST_F(StatusReportTest, ARunWhoseWorkerDiedIsOver)
{
    LockHolder worker(RunState::lockPath(state()));
    ASSERT_TRUE(run(worker.process()).write(state()));
    EXPECT_EQ(report().value(u"Running"_s), u"1"_s);
    worker.end();
    EXPECT_EQ(report().value(u"Running"_s), u"0"_s);
    EXPECT_EQ(report().value(u"LastFailure"_s).toMap().value(u"Cause"_s), u"Interrupted"_s);

    // The next worker holds the lock, but what is there is not its own state.
    const LockHolder next(RunState::lockPath(state()));
    EXPECT_EQ(report().value(u"Running"_s), u"0"_s);
    RunState complete = run(getpid());
    for (const auto& step : {phase::thinningPostBackup, phase::finishing}) {
        complete.phase = step;
        ASSERT_TRUE(complete.write(state()));
        EXPECT_FALSE(report().contains(u"LastFailure"_s)) << "its snapshot was whole when its worker died";
    }
}

TEST_F(StatusReportTest, WhatCannotBeReadIsNeverToldAsAnEmptyAnswer)
{
    const auto damage = [this](const QString& name) {
        QFile file(state() + u'/' + name);
        return file.open(QIODevice::WriteOnly) && file.write("<plist><dict>") > 0;
    };
    ASSERT_TRUE(damage(u"run.plist"_s));
    EXPECT_EQ(report().value(u"Running"_s), u"0"_s) << "left behind by a power failure: nobody holds the lock";
    {
        const LockHolder worker(RunState::lockPath(state()));
        EXPECT_THROW(StatusReport{folders_}, Failure) << "a backup may be running";
    }
    ASSERT_TRUE(QDir(state()).remove(u"worker.lock"_s));
    ASSERT_TRUE(QFile::link(u"worker.lock"_s, state() + "/worker.lock"_L1));
    EXPECT_THROW(StatusReport{folders_}, Failure) << "a link to itself cannot be opened";
    ASSERT_TRUE(QDir(state()).remove(u"worker.lock"_s));
    ASSERT_EQ(mkfifo(QFile::encodeName(state() + "/worker.lock"_L1).constData(), 0600), 0);
    EXPECT_EQ(report().value(u"Running"_s), u"0"_s) << "nobody writes to a pipe in the lock's place";
    ASSERT_TRUE(QDir(state()).remove(u"worker.lock"_s));

    // What is forgotten of past backups keeps neither the state from being told nor the next backup from being made.
    ASSERT_TRUE(damage(u"history.plist"_s));
    EXPECT_EQ(report().value(u"Running"_s), u"0"_s);
    EXPECT_EQ(report().value(u"LastFailure"_s).toMap().value(u"Cause"_s), u"HistoryUnreadable"_s);
    History history(state());
    history.setLastDestination(u"ID"_s);
    ASSERT_TRUE(history.save());
    EXPECT_FALSE(report().contains(u"LastFailure"_s));
    EXPECT_EQ(History(state()).lastDestination(), u"ID"_s);
    EXPECT_TRUE(QFile::exists(state() + "/history-damaged.plist"_L1)) << "set aside, not overwritten";

    // The version before is what counts then; a pipe that nobody writes to is no reason to wait.
    history.setLastBackup(u"ID"_s, QDateTime::currentDateTimeUtc());
    ASSERT_TRUE(history.save());
    ASSERT_TRUE(damage(u"history.plist"_s));
    EXPECT_EQ(History(state()).lastDestination(), u"ID"_s);
    ASSERT_TRUE(QDir(state()).remove(u"history.plist"_s));
    ASSERT_EQ(mkfifo(QFile::encodeName(state() + "/history.plist"_L1).constData(), 0600), 0);
    EXPECT_EQ(History(state()).lastDestination(), u"ID"_s);
}

TEST_F(StatusReportTest, ADamagedConfigurationIsToldAndAFailureOfAForgottenDiskIsNot)
{
    const QString file = folders_.configuration + "/configuration.plist"_L1;
    const auto cause = [this] { return report().value(u"LastFailure"_s).toMap().value(u"Cause"_s).toString(); };
    History history(state());
    history.setLastFailure(u"A"_s, LastFailure{u"2026-11-21 07:22:58 +0000"_s, u"A"_s, u"NoSpace"_s, u"Full."_s});
    ASSERT_TRUE(history.save());
    setDisks({u"A"_s});
    EXPECT_EQ(cause(), u"NoSpace"_s);
    setDisks({u"B"_s});
    EXPECT_EQ(cause(), QString());
    QFile::resize(file, 50);
    EXPECT_EQ(cause(), u"ConfigurationDamaged"_s);
    QFile::remove(folders_.configuration + "/configuration-previous.plist"_L1);
    EXPECT_EQ(cause(), u"ConfigurationDamaged"_s);
}

TEST_F(StatusReportTest, AFailureStandsUntilTheNextSuccessOnTheSameDisk)
{
    const auto failure = [](const QString& date, const QString& id) {
        return LastFailure{date, id, u"NoSpace"_s, u"The disk is full."_s};
    };
    setDisks({u"A"_s, u"B"_s, u"C"_s});
    History history(state());
    history.setLastFailure(u"A"_s, failure(u"2026-11-21 07:22:58 +0000"_s, u"A"_s));
    history.setLastFailure(u"B"_s, failure(u"2026-11-20 07:22:58 +0000"_s, u"B"_s));
    ASSERT_TRUE(history.save());
    EXPECT_EQ(report().value(u"LastFailure"_s).toMap(), (QVariantMap{{u"Date"_s, u"2026-11-21 07:22:58 +0000"_s},
                                                                     {u"DestinationID"_s, u"A"_s},
                                                                     {u"Cause"_s, u"NoSpace"_s},
                                                                     {u"Description"_s, u"The disk is full."_s}}));
    history.setLastFailure(u"A"_s, std::nullopt);
    ASSERT_TRUE(history.save());
    EXPECT_EQ(report().value(u"LastFailure"_s).toMap().value(u"DestinationID"_s), u"B"_s);
    history.setLastFailure(u"B"_s, std::nullopt);
    ASSERT_TRUE(history.save());
    EXPECT_FALSE(report().contains(u"LastFailure"_s));

    const QVariantMap old = failure(u"2026-11-19 07:22:58 +0000"_s, u"C"_s).toDictionary();
    ASSERT_TRUE(writePropertyListFile(state() + "/history.plist"_L1, {{u"LastFailure"_s, old}}));
    EXPECT_EQ(report().value(u"LastFailure"_s).toMap(), old) << "as earlier versions wrote it";
}

TEST_F(StatusReportTest, ReportsAreMarkedForTheirOwnRunAndKind)
{
    const LockHolder worker(RunState::lockPath(state()));
    const ReportMarks marks(state());
    marks.clear();
    RunState running = run(worker.process());
    running.write(state());
    const StatusReport before(folders_);
    running.phase = phase::finishing;
    running.write(state());
    EXPECT_FALSE(marks.isReported(u"run"_s)) << "not before the caller has it";
    before.markReported();
    EXPECT_TRUE(marks.isReported(u"run"_s));
    EXPECT_FALSE(marks.isFinishingReported(u"run"_s)) << "what a slow caller was told is older";
    StatusReport(folders_).markReported();
    EXPECT_TRUE(marks.isFinishingReported(u"run"_s));
    EXPECT_FALSE(marks.isReported(u"another"_s));

    const QString folder = state() + "/reported"_L1;
    const QString elsewhere = state() + "/elsewhere"_L1;
    ASSERT_TRUE(QDir(folder).removeRecursively() && QDir().mkpath(elsewhere + "/precious"_L1));
    ASSERT_TRUE(QFile::link(elsewhere, folder));
    marks.clear();
    EXPECT_TRUE(QFileInfo::exists(elsewhere + "/precious"_L1)) << "what a link in their place leads to";
}

TEST_F(StatusReportTest, AReaderNeverSeesHalfAFile)
{
    const QString file = state() + "/run.plist"_L1;
    const QVariantMap small{{u"a"_s, QString(10, u'a')}};
    const QVariantMap large{{u"a"_s, QString(100'000, u'a')}};
    ASSERT_TRUE(writePropertyListFile(file, small));
    std::atomic<bool> done = false;
    std::thread writer([&] {
        for (int round = 0; round < 100; ++round)
            (round < 50 ? writePropertyListFile : replacePropertyListFile)(file, round % 2 == 0 ? large : small);
        done = true;
    });
    while (!done) {
        const auto read = readPropertyListFile(file);
        ASSERT_TRUE(read == small || read == large);
    }
    writer.join();
}

} // namespace quillon
