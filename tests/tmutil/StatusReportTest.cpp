#include "ConfigurationFixture.h"
#include "History.h"
#include "PracticeTmutil.h"
#include "PropertyList.h"
#include "Reports.h"
#include "Restic.h"
#include "RunState.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quillon {

namespace {

/// Another process that holds the worker's lock.
class LockHolder {
public:
    explicit LockHolder(const QString& path)
        : process_(fork())
    {
        if (process_ == 0) {
            ProcessLock lock(path);
            if (lock.tryLock())
                pause();
            _exit(1);
        }
        EXPECT_TRUE(eventually([&] { return ProcessLock::holder(path) == process_; }));
    }
    LockHolder(const LockHolder&) = delete;
    LockHolder& operator=(const LockHolder&) = delete;
    ~LockHolder()
    {
        kill(process_, SIGKILL);
        waitpid(process_, nullptr, 0);
    }

    pid_t process() const { return process_; }

private:
    pid_t process_;
};

/// What past runs, and one that is under way, have left in the state folder.
class StatusReportTest : public ConfigurationFixture {
protected:
    StatusReportTest() { folder(u"state"_s); }

    QVariantMap report() const { return parseStatus(StatusReport(folders_).text()).value_or(QVariantMap()); }
    QString running() const { return report().value(u"Running"_s).toString(); }
    QVariantMap failure() const { return report().value(u"LastFailure"_s).toMap(); }
    QString cause() const { return failure().value(u"Cause"_s).toString(); }
    QString state() const { return folders_.state; }
    QString lock() const { return RunState::lockPath(state()); }

    void setDisks(const QStringList& ids) const
    {
        QVariantList disks;
        for (const QString& id : ids)
            disks.append(QVariantMap{{u"ID"_s, id}, {u"Path"_s, u"/disk"_s}});
        ASSERT_TRUE(
            writeKeptPropertyList(folder(u"config"_s) + "/configuration.plist"_L1, {{u"Destinations"_s, disks}}));
    }
    void setFailure(const QString& id, const std::optional<QString>& date) const
    {
        History history(state());
        history.setLastFailure(id, date ? std::optional(failureOn(id, *date)) : std::nullopt);
        ASSERT_TRUE(history.save());
    }
    static LastFailure failureOn(const QString& id, const QString& date)
    {
        return {date, id, u"NoSpace"_s, u"Full."_s};
    }

    static RunState run(pid_t worker)
    {
        return {u"run"_s,       worker,
                u"ID"_s,        u"/media/\"Disk\""_s,
                phase::copying, u"2026-11-21 07:22:58 +0000"_s,
                false,          BackupProgress{0.25, 90, 1, 4, 2, 8}};
    }
};

} // namespace

TEST_F(StatusReportTest, ReadsBackAsItWasWritten)
{
    EXPECT_TRUE(StatusReport(folders_).text().startsWith("Backup session status:\n{\n"));
    EXPECT_EQ(report(), (QVariantMap{{u"ClientID"_s, u"com.apple.backupd"_s}, {u"Running"_s, u"0"_s}}));

    const LockHolder worker(lock());
    RunState copying = run(worker.process());
    ASSERT_TRUE(copying.write(state()));
    const QString told = uR"({BackupPhase = Copying; ClientID = "com.apple.backupd"; DestinationID = ID; Running = 1;
        DateOfStateChange = "2026-11-21 07:22:58 +0000"; DestinationMountPoint = "/media/\"Disk\""; Stopping = %1;
        Progress = {%2 bytes = 1; totalBytes = 4; files = 2; totalFiles = 8;};})"_s;
    EXPECT_EQ(report(), fields(told.arg(u"0"_s, u"Percent = \"0.25\"; TimeRemaining = 90;"_s)));

    copying.progress->fraction.reset();
    copying.progress->secondsRemaining.reset();
    copying.stopping = true;
    ASSERT_TRUE(copying.write(state()));
    EXPECT_EQ(report(), fields(told.arg(u"1"_s, u"Percent = \"-1\";"_s)));
}

TEST_F(StatusReportTest, ARunWhoseWorkerDiedIsOver)
{
    {
        const LockHolder worker(lock());
        ASSERT_TRUE(run(worker.process()).write(state()));
        EXPECT_EQ(running(), u"1"_s);
        EXPECT_EQ(cause(), QString());
    }
    EXPECT_EQ(running(), u"0"_s);
    EXPECT_EQ(cause(), u"Interrupted"_s);

    // The next worker holds the lock, but what is there is not its own state.
    const LockHolder next(lock());
    EXPECT_EQ(running(), u"0"_s);
    RunState complete = run(getpid());
    for (const auto& step : {phase::thinningPostBackup, phase::finishing}) {
        complete.phase = step;
        ASSERT_TRUE(complete.write(state()));
        EXPECT_EQ(cause(), QString()) << "its snapshot was whole when its worker died";
    }
}

// Whoever stops a run signals that number.
TEST_F(StatusReportTest, NoWorkerIsToldOfWhoseNumberStandsForMany)
{
    ASSERT_TRUE(run(-1).write(state()));
    // The kernel tells -1 of the holder of such a lock.
    const int file = open(QFile::encodeName(lock()).constData(), O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR);
    struct flock whole {};
    whole.l_type = F_WRLCK;
    ASSERT_EQ(fcntl(file, F_OFD_SETLK, &whole), 0);
    EXPECT_FALSE(RunState::current(state()));
    close(file);
}

TEST_F(StatusReportTest, WhatCannotBeReadIsNeverToldAsAnEmptyAnswer)
{
    const QByteArray cutOff = "<plist><dict>";
    file(u"state/run.plist"_s, cutOff);
    EXPECT_EQ(running(), u"0"_s) << "left behind by a power failure: nobody holds the lock";
    {
        const LockHolder worker(lock());
        EXPECT_THROW(StatusReport{folders_}, Failure) << "a backup may be running";
    }
    ASSERT_TRUE(QFile::remove(lock()) && QFile::link(u"worker.lock"_s, lock()));
    EXPECT_THROW(StatusReport{folders_}, Failure) << "a link to itself cannot be opened";
    ASSERT_TRUE(QFile::remove(lock()));
    ASSERT_EQ(mkfifo(QFile::encodeName(lock()).constData(), 0600), 0);
    EXPECT_EQ(running(), u"0"_s) << "nobody writes to a pipe in the lock's place";
    ASSERT_TRUE(QFile::remove(lock()));

    // What is forgotten of past backups keeps neither the state from being told nor the next backup from being made.
    file(u"state/history.plist"_s, cutOff);
    EXPECT_EQ(running(), u"0"_s);
    EXPECT_EQ(cause(), u"HistoryUnreadable"_s);
    History history(state());
    history.setLastDestination(u"ID"_s);
    ASSERT_TRUE(history.save());
    EXPECT_EQ(cause(), QString());
    EXPECT_EQ(History(state()).lastDestination(), u"ID"_s);
    EXPECT_TRUE(QFile::exists(state() + "/history-damaged.plist"_L1)) << "set aside, not overwritten";

    // The version before is what counts then; a pipe that nobody writes to is no reason to wait.
    history.setLastBackup(u"ID"_s, QDateTime::currentDateTimeUtc());
    ASSERT_TRUE(history.save());
    const QString written = file(u"state/history.plist"_s, cutOff);
    EXPECT_EQ(History(state()).lastDestination(), u"ID"_s);
    ASSERT_TRUE(QFile::remove(written));
    ASSERT_EQ(mkfifo(QFile::encodeName(written).constData(), 0600), 0);
    EXPECT_EQ(History(state()).lastDestination(), u"ID"_s);
}

TEST_F(StatusReportTest, AFailureStandsUntilTheNextSuccessOnTheSameDisk)
{
    setDisks({u"A"_s, u"B"_s, u"C"_s});
    const QString latest = u"2026-11-21 07:22:58 +0000"_s;
    setFailure(u"A"_s, latest);
    setFailure(u"B"_s, u"2026-11-20 07:22:58 +0000"_s);
    EXPECT_EQ(failure(), (QVariantMap{{u"Date"_s, latest},
                                      {u"DestinationID"_s, u"A"_s},
                                      {u"Cause"_s, u"NoSpace"_s},
                                      {u"Description"_s, u"Full."_s}}));
    setDisks({u"B"_s, u"C"_s});
    EXPECT_EQ(failure().value(u"DestinationID"_s), u"B"_s) << "the other one is no backup disk any more";
    setFailure(u"B"_s, std::nullopt);
    EXPECT_FALSE(report().contains(u"LastFailure"_s));
    setDisks({u"A"_s, u"B"_s, u"C"_s});
    EXPECT_EQ(failure().value(u"DestinationID"_s), u"A"_s);

    const QVariantMap old = failureOn(u"C"_s, latest).toDictionary();
    ASSERT_TRUE(writePropertyListFile(state() + "/history.plist"_L1, {{u"LastFailure"_s, old}}));
    EXPECT_EQ(failure(), old) << "as earlier versions wrote it";

    QFile::resize(path(u"config/configuration.plist"_s), 50);
    EXPECT_EQ(cause(), u"ConfigurationDamaged"_s);
    QFile::remove(path(u"config/configuration-previous.plist"_s));
    EXPECT_EQ(cause(), u"ConfigurationDamaged"_s);
}

TEST_F(StatusReportTest, ReportsAreMarkedForTheirOwnRunAndKind)
{
    const LockHolder worker(lock());
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

    const QString marked = state() + "/reported"_L1;
    const QString precious = folder(u"elsewhere/precious"_s);
    ASSERT_TRUE(QDir(marked).removeRecursively() && QFile::link(path(u"elsewhere"_s), marked));
    marks.clear();
    EXPECT_TRUE(QFileInfo::exists(precious)) << "what a link in their place leads to";
}

TEST_F(StatusReportTest, AReaderNeverSeesHalfAFile)
{
    const QVariantMap before{{u"a"_s, u"before"_s}};
    const QVariantMap after{{u"a"_s, u"after"_s}};
    const QString list = path(u"state/run.plist"_s);
    const auto writeAtOnce = [](const QString& to, const QVariantMap& what) { return writePropertyListFile(to, what); };
    for (const auto& write : {std::function(writeAtOnce), std::function(replacePropertyListFile)}) {
        ASSERT_TRUE(write(list, before));
        QFile reader(list);
        ASSERT_TRUE(reader.open(QIODevice::ReadOnly));
        ASSERT_TRUE(write(list, after));
        EXPECT_EQ(propertylist::parse(reader.readAll()), before) << "it has begun to read";
        EXPECT_EQ(readPropertyListFile(list), after);
        EXPECT_EQ(mode(list), 0600U);
    }
}

TEST_F(StatusReportTest, NothingIsRememberedOfAnEarlierRepositoryWhereANewOneIs)
{
    History history(state());
    history.setDamage(u"id"_s, Damage{.date = {}});
    history.setUncheckedSince(u"id"_s, QDateTime::currentDateTimeUtc());
    history.setVerificationUnfinished(u"id"_s, true);
    history.setCaches(u"id"_s, {{u"/cache"_s, 1LL}});
    history.setOtherFileSystems(u"id"_s, {{u"/mount"_s, 1LL}});
    history.setBackups(u"id"_s, std::vector<Snapshot>(1), {}, 0);
    history.noteNewRepository(u"id"_s);
    EXPECT_FALSE(history.damage(u"id"_s) || history.uncheckedSince(u"id"_s).isValid() ||
                 history.isVerificationUnfinished(u"id"_s));
    EXPECT_TRUE(history.caches(u"id"_s).isEmpty() && history.otherFileSystems(u"id"_s).isEmpty() &&
                history.backups(u"id"_s).isEmpty());
}

TEST_F(StatusReportTest, TheLatestRunsAreKeptWithEveryPathThatWasNotRead)
{
    const QStringList unread{u"/a"_s, u"/line\nbreak"_s, u"/bell\u0007"_s};
    RunLog log{{}, u"08:00:00"_s, u"ID"_s,    u"Disk"_s, u"Completed"_s, u"Remark."_s, {}, 9, 4, 2,
               7,  unread,        u"1\n2\n"_s};
    for (int run = 0; run < 203; ++run) {
        log.begun = u"2026-11-21 07:%1:%2 +0000"_s.arg(run / 60, 2, 10, QChar(u'0')).arg(run % 60, 2, 10, QChar(u'0'));
        log.backup = QString::number(run);
        ASSERT_TRUE(log.write(state()));
    }
    const auto kept = RunLog::all(state());
    ASSERT_EQ(kept.size(), 200U);
    EXPECT_EQ(kept.front().backup, u"3"_s);
    EXPECT_EQ(kept.back().line(), log.begun + u"  Completed   \"Disk\"  4 new, 2 changed, 3 not read  202"_s);
    EXPECT_EQ(kept.back().text().join(u'|'),
              u"Begun:         2026-11-21 07:03:22 +0000|Ended:         08:00:00|Disk:          Disk (ID)|"
              "Result:        Completed|Backup:        202|Files:         9, of which 4 new and 2 changed|"
              "Bytes added:   7|Remark:        Remark.|Not read:      /a|Not read:      /line\nbreak|"
              "Not read:      /bell\uFFFD|restic:        1|restic:        2"_s);
}

TEST(ParentDeath, IsNoticedAlsoWhereItCameFirst)
{
    EXPECT_TRUE(endWithParent(0, getppid()));
    EXPECT_FALSE(endWithParent(0, getpid())) << "whoever forked it is its parent no more";
}

} // namespace quillon
