#include "FileUserDefaults.h"

#include "PropertyList.h"
#include "ScopedEnvironment.h"
#include "VirtualRunLoop.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

class FileUserDefaultsTest : public testing::Test {
protected:
    void write(const QByteArray& bytes) const
    {
        QDir().mkpath(folder());
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    static QByteArray contents(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QVariantMap stored() const { return propertylist::parse(contents(path())).value_or(QVariant()).toMap(); }

    /// But for the lock.
    QStringList files() const
    {
        QStringList names = QDir(folder()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
        names.removeIf([](const QString& name) { return name.endsWith(u".lock"_s); });
        return names;
    }

    QString folder() const { return temporary_.filePath(u"config"_s); }
    QString path() const { return folder() + u"/settings.plist"_s; }

    const QTemporaryDir temporary_;
    VirtualRunLoop runLoop_{Date()};
};

/// Runs a check in a child process without privileges, for whom permissions count; its standard error is returned.
template<typename Check>
QString asNobody(Check check)
{
    testing::internal::CaptureStderr();
    const pid_t child = fork();
    if (child == 0) {
        constexpr uid_t nobody = 65534;
        const bool dropped = geteuid() != 0 || (setgid(nobody) == 0 && setuid(nobody) == 0);
        const bool passed = dropped && check();
        _exit(passed ? 0 : 1);
    }
    int status = -1;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
    return QString::fromStdString(testing::internal::GetCapturedStderr());
}

} // namespace

TEST_F(FileUserDefaultsTest, EverySetterHasWrittenTheWholeFileWhenItReturns)
{
    const Date date{std::chrono::milliseconds(1'716'205'146'750)};
    FileUserDefaults defaults(path(), DefaultsAccess::ReadWrite, runLoop_);
    EXPECT_FALSE(QFile::exists(path())) << "reading makes no file";
    defaults.setObject(u"number"_s, 3);
    defaults.setDate(u"date"_s, date);
    defaults.setObject(u"rules"_s, QVariantList());
    EXPECT_EQ(stored(), (QVariantMap{{u"number"_s, 3LL},
                                     {u"date"_s, QDateTime::fromMSecsSinceEpoch(1'716'205'146'000, Qt::UTC)},
                                     {u"rules"_s, QVariantList()}}));
    EXPECT_TRUE(contents(path()).startsWith("<?xml"));
    EXPECT_EQ(defaults.date(u"date"_s), std::chrono::floor<std::chrono::seconds>(date))
        << "memory holds what the next start will read";

    defaults.setDate(u"date"_s, std::nullopt);
    EXPECT_FALSE(stored().contains(u"date"_s));
    EXPECT_EQ(files(), QStringList{u"settings.plist"_s});

    const FileUserDefaults next(path(), DefaultsAccess::ReadWrite, runLoop_);
    EXPECT_EQ(next.integer(u"number"_s), 3);
    EXPECT_EQ(next.date(u"date"_s), std::nullopt);
}

TEST_F(FileUserDefaultsTest, RegisteredValuesAreReadWhereNothingIsStoredAndNeverWritten)
{
    write("{ \"off\" = 0; empty = (); }");
    FileUserDefaults defaults(path(), DefaultsAccess::ReadWrite, runLoop_);
    defaults.registerDefaults({{u"off"_s, 1}, {u"on"_s, 1}, {u"empty"_s, QVariantList{1}}});
    EXPECT_EQ(defaults.integer(u"off"_s), 0);
    EXPECT_EQ(defaults.integer(u"on"_s), 1);
    EXPECT_EQ(defaults.array(u"empty"_s), QVariantList());
    defaults.setObject(u"off"_s, QVariant());
    EXPECT_EQ(defaults.integer(u"off"_s), 1);
    EXPECT_EQ(stored(), (QVariantMap{{u"empty"_s, QVariantList()}}));
}

TEST_F(FileUserDefaultsTest, UnknownKeysAndValuesOfAWrongKindSurviveASave)
{
    const QVariantMap foreign{{u"unknown"_s, QVariantMap{{u"deep"_s, QVariantList{1LL, 2.5, QByteArray("x")}}}},
                              {u"firstLaunch"_s, QVariantList{u"not a boolean"_s}},
                              {u"number"_s, QVariantMap()},
                              {u"date"_s, u"yesterday"_s},
                              {u"rules"_s, u"12:00"_s},
                              {u"bell"_s, u"ring \a"_s}, // XML cannot hold it
                              {u"lines"_s, u"one\r\ntwo"_s}};
    write(propertylist::toBinary(foreign).value_or(""));
    FileUserDefaults defaults(path(), DefaultsAccess::ReadWrite, runLoop_);
    EXPECT_FALSE(defaults.boolean(u"firstLaunch"_s));
    EXPECT_EQ(defaults.integer(u"number"_s), 0);
    EXPECT_EQ(defaults.string(u"number"_s), QString());
    EXPECT_EQ(defaults.date(u"date"_s), std::nullopt);
    EXPECT_EQ(defaults.array(u"rules"_s), QVariantList());
    defaults.setObject(u"new"_s, true);
    QVariantMap expected = foreign;
    expected.insert(u"new"_s, true);
    EXPECT_EQ(stored(), expected);
}

TEST_F(FileUserDefaultsTest, WhatAnotherProgramChangedMeanwhileIsKept)
{
    write("{ mine = 1; theirs = 1; }");
    FileUserDefaults defaults(path(), DefaultsAccess::ReadWrite, runLoop_);
    write("{ mine = 1; theirs = 2; more = 3; }");
    defaults.setObject(u"mine"_s, u"2"_s);
    EXPECT_EQ(stored(), (QVariantMap{{u"mine"_s, u"2"_s}, {u"theirs"_s, u"2"_s}, {u"more"_s, u"3"_s}}));
    QFile::remove(path());
    defaults.setObject(u"mine"_s, u"3"_s);
    EXPECT_EQ(stored(), (QVariantMap{{u"mine"_s, u"3"_s}, {u"theirs"_s, u"2"_s}, {u"more"_s, u"3"_s}}));
}

TEST_F(FileUserDefaultsTest, ADamagedFileIsSetAsideUnderANameOfItsOwn)
{
    const QByteArrayList damaged = {"<?xml version=\"1.0\"?><plist><dict><key>a</key>", "", "(no, dictionary)"};
    for (const QByteArray& bytes : damaged) {
        write(bytes);
        testing::internal::CaptureStderr();
        FileUserDefaults defaults(path(), DefaultsAccess::ReadWrite, runLoop_);
        defaults.registerDefaults({{u"a"_s, 1}});
        EXPECT_NE(testing::internal::GetCapturedStderr().find("settings.plist.damaged-"), std::string::npos);
        EXPECT_EQ(defaults.integer(u"a"_s), 1);
        EXPECT_FALSE(QFile::exists(path()));
    }
    for (qsizetype i = 0; i < damaged.size(); ++i)
        EXPECT_EQ(contents(path() + u".damaged-%1"_s.arg(i + 1)), damaged[i]);
}

TEST_F(FileUserDefaultsTest, AFileDamagedWhileTheProgramRunsCostsNoSettings)
{
    FileUserDefaults defaults(path(), DefaultsAccess::ReadWrite, runLoop_);
    defaults.setObject(u"a"_s, 1);
    write("garbage {");
    testing::internal::CaptureStderr();
    defaults.setObject(u"b"_s, 2);
    EXPECT_NE(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(stored(), (QVariantMap{{u"a"_s, 1LL}, {u"b"_s, 2LL}}));
    EXPECT_EQ(contents(path() + u".damaged-1"_s), "garbage {");
}

TEST_F(FileUserDefaultsTest, AReadOnlyDatabaseTouchesNothingOnDisk)
{
    FileUserDefaults absent(path(), DefaultsAccess::ReadOnly, runLoop_);
    absent.setObject(u"a"_s, 1);
    EXPECT_EQ(absent.integer(u"a"_s), 1);
    EXPECT_FALSE(QFile::exists(folder()));

    write("garbage {");
    testing::internal::CaptureStderr();
    const FileUserDefaults damaged(path(), DefaultsAccess::ReadOnly, runLoop_);
    EXPECT_NE(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(files(), QStringList{u"settings.plist"_s});
    EXPECT_EQ(contents(path()), "garbage {");
}

TEST_F(FileUserDefaultsTest, WhatAnotherProgramsLockKeepsInMemoryFollowsOnceItIsFreeAndAtTheEndAtTheLatest)
{
    write("{ a = 1; }");
    const auto holdLock = [this] {
        const int other =
            open(QFile::encodeName(path() + u".lock"_s).constData(), O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR);
        EXPECT_EQ(flock(other, LOCK_EX), 0);
        return other;
    };
    testing::internal::CaptureStderr();
    {
        FileUserDefaults defaults(path(), DefaultsAccess::ReadWrite, runLoop_);
        const int first = holdLock();
        defaults.setObject(u"b"_s, 2);
        defaults.setObject(u"a"_s, QVariant());
        runLoop_.advance(Seconds(10));
        EXPECT_EQ(defaults.integer(u"b"_s), 2);
        EXPECT_EQ(contents(path()), "{ a = 1; }");
        close(first);
        runLoop_.advance(Seconds(2));
        EXPECT_EQ(stored(), (QVariantMap{{u"b"_s, 2LL}}));
        write("{ theirs = 1; }");
        runLoop_.advance(Seconds(60));
        EXPECT_EQ(contents(path()), "{ theirs = 1; }") << "nothing is left to write";

        const int second = holdLock();
        defaults.setObject(u"c"_s, 3);
        EXPECT_EQ(contents(path()), "{ theirs = 1; }");
        write("{ theirs = 2; }");
        close(second);
        holdLock(); // by somebody who never lets go
    }
    EXPECT_EQ(stored(), (QVariantMap{{u"theirs"_s, u"2"_s}, {u"c"_s, 3LL}}));
    const QString warnings = QString::fromStdString(testing::internal::GetCapturedStderr());
    EXPECT_EQ(warnings.count(u'\n'), 2) << "one trouble is told once: " << warnings.toStdString();
}

TEST_F(FileUserDefaultsTest, WhoCanReadTheFolderCannotKeepSettingsFromBeingSaved)
{
    write("{ a = 1; }");
    FileUserDefaults defaults(path(), DefaultsAccess::ReadWrite, runLoop_);
    defaults.setObject(u"a"_s, 2);
    const int readable = open(QFile::encodeName(folder()).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    ASSERT_EQ(flock(readable, LOCK_EX), 0);
    defaults.setObject(u"a"_s, 3);
    close(readable);
    EXPECT_EQ(stored().value(u"a"_s), 3LL);
}

TEST_F(FileUserDefaultsTest, FoldersThatItMakesAreTheUsersAlone)
{
    const QString deep = folder() + u"/deeper/settings.plist"_s;
    const mode_t before = umask(0);
    FileUserDefaults(deep, DefaultsAccess::ReadWrite, runLoop_).setObject(u"a"_s, 1);
    umask(before);
    const auto mode = [](const QString& of) {
        struct stat status {};
        EXPECT_EQ(stat(QFile::encodeName(of).constData(), &status), 0);
        return status.st_mode & 0777;
    };
    EXPECT_EQ(mode(folder()), 0700);
    EXPECT_EQ(mode(folder() + u"/deeper"_s), 0700);
    EXPECT_EQ(mode(deep + u".lock"_s), 0600);
}

TEST_F(FileUserDefaultsTest, AValueThatTheFileCannotHoldChangesNothing)
{
    FileUserDefaults defaults(path(), DefaultsAccess::ReadWrite, runLoop_);
    defaults.setObject(u"text"_s, u"fine"_s);
    testing::internal::CaptureStderr();
    defaults.setObject(u"text"_s, u"bell \a"_s);
    EXPECT_NE(testing::internal::GetCapturedStderr().find("text"), std::string::npos);
    defaults.setObject(u"other"_s, 1);
    EXPECT_EQ(stored(), (QVariantMap{{u"text"_s, u"fine"_s}, {u"other"_s, 1LL}}));
}

TEST_F(FileUserDefaultsTest, WhatCannotBeWrittenOrReadIsAWarningAndIsNeverReplaced)
{
    ASSERT_EQ(chmod(QFile::encodeName(temporary_.path()).constData(), 0755), 0);
    for (const bool canBeRead : {true, false}) {
        write("{ a = 1; }");
        ASSERT_EQ(chmod(QFile::encodeName(folder()).constData(), canBeRead ? 0555 : 0777), 0);
        ASSERT_EQ(chmod(QFile::encodeName(path()).constData(), canBeRead ? 0644 : 0222), 0);
        const QString warning = asNobody([&] {
            FileUserDefaults defaults(path(), DefaultsAccess::ReadWrite, runLoop_);
            defaults.setObject(u"b"_s, 2);
            return defaults.integer(u"a"_s) == (canBeRead ? 1 : 0) && defaults.integer(u"b"_s) == 2;
        });
        EXPECT_TRUE(warning.contains(canBeRead ? u"not saved"_s : u"cannot be read"_s)) << warning.toStdString();
        EXPECT_EQ(files(), QStringList{u"settings.plist"_s});
        ASSERT_EQ(chmod(QFile::encodeName(path()).constData(), 0600), 0);
        EXPECT_EQ(contents(path()), "{ a = 1; }") << canBeRead;
    }
}

TEST_F(FileUserDefaultsTest, WhatIsNoSettingsFileIsNeitherWaitedForNorReplaced)
{
    const auto expectRefused = [this](const char* reason) {
        testing::internal::CaptureStderr();
        {
            FileUserDefaults defaults(path(), DefaultsAccess::ReadWrite, runLoop_);
            defaults.setObject(u"a"_s, 1);
            EXPECT_EQ(defaults.integer(u"a"_s), 1);
        }
        EXPECT_NE(testing::internal::GetCapturedStderr().find(reason), std::string::npos);
        EXPECT_EQ(files().filter(u"damaged"_s), QStringList());
    };
    write("");
    const QByteArray name = QFile::encodeName(path());
    ASSERT_TRUE(QFile::resize(path(), qint64{1} << 34));
    expectRefused("too large");
    EXPECT_EQ(QFile(path()).size(), qint64{1} << 34);
    QFile::remove(path());
    ASSERT_EQ(mkfifo(name.constData(), 0600), 0);
    expectRefused("no file");
    QFile::remove(path());
    ASSERT_TRUE(QFile::link(u"/dev/zero"_s, path()));
    expectRefused("no file");
    EXPECT_TRUE(QFileInfo(path()).isSymLink());
}

TEST_F(FileUserDefaultsTest, ACrashAtAnyInstantLeavesAWholeFile)
{
    write("{ step = 0; }");
    const pid_t child = fork();
    if (child == 0) {
        FileUserDefaults defaults(path(), DefaultsAccess::ReadWrite, runLoop_);
        for (int step = 1;; ++step)
            defaults.setObject(u"step"_s, QVariantList(200, step));
    }
    // Half a file would not parse; the child writes all the while.
    int changes = 0;
    bool whole = true;
    for (QVariantMap before; whole && changes < 20;) {
        const auto value = propertylist::parse(contents(path()));
        whole = value && value->toMap().contains(u"step"_s);
        if (whole && value->toMap() != before) {
            before = value->toMap();
            ++changes;
        }
    }
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    EXPECT_TRUE(whole);
    FileUserDefaults defaults(path(), DefaultsAccess::ReadWrite, runLoop_);
    const QVariant last = defaults.object(u"step"_s);
    EXPECT_TRUE(last == u"0"_s || last.toList().size() == 200);
    defaults.setObject(u"after"_s, 1);
    EXPECT_EQ(stored().value(u"after"_s), 1) << "the lock of the dead is not in the way";
}

TEST_F(FileUserDefaultsTest, TheUsersDatabaseLiesInTheConfigurationFolder)
{
    const ScopedEnvironment config("XDG_CONFIG_HOME", QFile::encodeName(folder()));
    openUserDefaults(DefaultsAccess::ReadWrite, runLoop_)->setObject(u"a"_s, 1);
    EXPECT_EQ(files(), QStringList{u"com.Orvane.Quillon.plist"_s});
    EXPECT_EQ(openUserDefaults(DefaultsAccess::ReadOnly, runLoop_)->integer(u"a"_s), 1);
}

} // namespace quillon
