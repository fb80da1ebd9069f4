#include "FileUserDefaults_linux.h"
#include "PropertyList.h"
#include "ScopedEnvironment.h"
#include "VirtualRunLoop.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

class FileUserDefaultsTest : public testing::Test {
protected:
    FileUserDefaults open(DefaultsAccess access = DefaultsAccess::ReadWrite) { return {path(), access, runLoop_}; }

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
        QStringList names = QDir(folder()).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
        names.removeOne(u"settings.plist.lock"_s);
        return names;
    }

    /// What is said on standard error meanwhile.
    template<typename Action>
    static QString told(Action action)
    {
        testing::internal::CaptureStderr();
        action();
        return QString::fromStdString(testing::internal::GetCapturedStderr());
    }

    QString folder() const { return temporary_.filePath(u"config"_s); }
    QString path() const { return folder() + u"/settings.plist"_s; }

    const QTemporaryDir temporary_;
    VirtualRunLoop runLoop_{Date()};
};

mode_t modeOf(const QString& path)
{
    struct stat status {};
    EXPECT_EQ(stat(QFile::encodeName(path).constData(), &status), 0);
    return status.st_mode & 0777;
}

} // namespace

TEST_F(FileUserDefaultsTest, EverySetterHasWrittenTheWholeFileWhenItReturns)
{
    const auto date = [](qint64 milliseconds) { return QDateTime::fromMSecsSinceEpoch(milliseconds, Qt::UTC); };
    open(DefaultsAccess::ReadOnly).setObject(u"a"_s, 1);
    auto defaults = open();
    EXPECT_FALSE(QFile::exists(folder())) << "reading makes no file";
    defaults.setObject(u"number"_s, 3);
    defaults.setDate(u"date"_s, Date(std::chrono::milliseconds(1'716'205'146'750)));
    defaults.setObject(u"rules"_s, QVariantList{QVariantMap{{u"real"_s, 0.5F}, {u"past"_s, date(-1)}}, 7U});
    const QVariantMap expected{
        {u"number"_s, 3LL},
        {u"date"_s, date(1'716'205'146'000)},
        {u"rules"_s, QVariantList{QVariantMap{{u"real"_s, 0.5}, {u"past"_s, date(-1000)}}, 7LL}}};
    EXPECT_EQ(stored(), expected);
    for (auto value = expected.begin(); value != expected.end(); ++value)
        EXPECT_EQ(defaults.object(value.key()), value.value()) << "memory holds what the next start will read";
    EXPECT_EQ(open().date(u"date"_s), Date(std::chrono::seconds(1'716'205'146)));

    const QString before = folder() + u"/before"_s;
    ASSERT_EQ(link(QFile::encodeName(path()).constData(), QFile::encodeName(before).constData()), 0);
    const QByteArray bytes = contents(path());
    defaults.setDate(u"date"_s, std::nullopt);
    EXPECT_EQ(contents(before), bytes) << "a crash in the midst of a save leaves a whole file";
    EXPECT_EQ(open().date(u"date"_s), std::nullopt);
    EXPECT_EQ(files(), (QStringList{u"before"_s, u"settings.plist"_s}));
}

TEST_F(FileUserDefaultsTest, RegisteredValuesAreReadWhereNothingIsStoredAndNeverWritten)
{
    write("{ \"off\" = 0; }");
    auto defaults = open();
    defaults.registerDefaults({{u"off"_s, 1}, {u"on"_s, 1}});
    EXPECT_EQ(defaults.integer(u"off"_s), 0);
    EXPECT_EQ(defaults.integer(u"on"_s), 1);
    defaults.setObject(u"off"_s, QVariant());
    EXPECT_EQ(defaults.integer(u"off"_s), 1);
    EXPECT_EQ(stored(), QVariantMap());
}

TEST_F(FileUserDefaultsTest, UnknownKeysAndValuesOfAWrongKindSurviveASave)
{
    QVariantMap foreign{{u"unknown"_s, QVariantMap{{u"deep"_s, QVariantList{1LL, 2.5, QByteArray("x")}}}},
                        {u"firstLaunch"_s, QVariantList{u"not a boolean"_s}},
                        {u"date"_s, u"yesterday"_s},
                        {u"bell"_s, u"ring \a"_s}}; // XML cannot hold it
    write(propertylist::toBinary(foreign).value_or(""));
    auto defaults = open();
    EXPECT_FALSE(defaults.boolean(u"firstLaunch"_s));
    EXPECT_EQ(defaults.date(u"date"_s), std::nullopt);
    defaults.setObject(u"new"_s, true);
    foreign.insert(u"new"_s, true);
    EXPECT_EQ(stored(), foreign);
}

TEST_F(FileUserDefaultsTest, WhatAnotherProgramChangedMeanwhileIsKept)
{
    write("{ mine = 1; theirs = 1; }");
    auto defaults = open();
    write("{ mine = 1; theirs = 2; more = 3; }");
    defaults.setObject(u"mine"_s, u"1"_s);
    EXPECT_EQ(contents(path()), "{ mine = 1; theirs = 2; more = 3; }") << "nothing is new";
    defaults.setObject(u"mine"_s, u"2"_s);
    EXPECT_EQ(stored(), (QVariantMap{{u"mine"_s, u"2"_s}, {u"theirs"_s, u"2"_s}, {u"more"_s, u"3"_s}}));
    QFile::remove(path());
    defaults.setObject(u"mine"_s, u"3"_s);
    EXPECT_EQ(stored(), (QVariantMap{{u"mine"_s, u"3"_s}, {u"theirs"_s, u"2"_s}, {u"more"_s, u"3"_s}}));
}

TEST_F(FileUserDefaultsTest, ADamagedFileIsSetAsideUnderANameOfItsOwnAndCostsNoSettingsOfARunningProgram)
{
    const QByteArrayList damaged = {"<?xml version=\"1.0\"?><plist><dict><key>a</key>", "(no, dictionary)"};
    for (qsizetype i = 0; i < damaged.size(); ++i) {
        write(damaged[i]);
        EXPECT_TRUE(told([&] { open(DefaultsAccess::ReadOnly); }).contains(u"is damaged ("_s));
        EXPECT_TRUE(told([&] { open(); }).contains(u"set aside as %1.damaged-%2\n"_s.arg(path()).arg(i + 1)));
        EXPECT_FALSE(QFile::exists(path()));
    }
    for (qsizetype i = 0; i < damaged.size(); ++i)
        EXPECT_EQ(contents(path() + u".damaged-%1"_s.arg(i + 1)), damaged[i]);

    auto running = open();
    running.setObject(u"a"_s, 1);
    write("garbage {");
    EXPECT_NE(told([&] { running.setObject(u"b"_s, 2); }), QString());
    EXPECT_EQ(stored(), (QVariantMap{{u"a"_s, 1LL}, {u"b"_s, 2LL}}));
    EXPECT_EQ(contents(path() + u".damaged-3"_s), "garbage {");
}

TEST_F(FileUserDefaultsTest, WhatAnotherProgramsLockKeepsInMemoryFollowsOnceItIsFreeAndAtTheEndAtTheLatest)
{
    write("{ a = 1; }");
    const auto holdLock = [this] {
        constexpr auto holds =
            "import fcntl, sys; f = open(sys.argv[1], 'w'); fcntl.lockf(f, fcntl.LOCK_EX); print('held', "
            "flush=True); sys.stdin.read()"_L1;
        auto other = std::make_unique<QProcess>();
        other->start(u"python3"_s, {u"-c"_s, holds, path() + u".lock"_s});
        EXPECT_TRUE(other->waitForReadyRead());
        return other;
    };
    std::unique_ptr<QProcess> other;
    const auto letGo = [&] {
        other->closeWriteChannel();
        EXPECT_TRUE(other->waitForFinished());
    };
    const QString warnings = told([&] {
        auto defaults = open();
        other = holdLock();
        defaults.setObject(u"b"_s, 2);
        defaults.setObject(u"a"_s, QVariant());
        runLoop_.advance(Seconds(10));
        EXPECT_EQ(defaults.integer(u"b"_s), 2);
        EXPECT_EQ(contents(path()), "{ a = 1; }");
        letGo();
        runLoop_.advance(Seconds(2));
        EXPECT_EQ(stored(), (QVariantMap{{u"b"_s, 2LL}}));
        write("{ theirs = 1; }");
        runLoop_.advance(Seconds(10));
        EXPECT_EQ(contents(path()), "{ theirs = 1; }") << "what is saved is not saved again";
        other = holdLock(); // beyond the end
        defaults.setObject(u"c"_s, 3);
        write("{ theirs = 2; }");
    });
    letGo();
    EXPECT_EQ(stored(), (QVariantMap{{u"theirs"_s, u"2"_s}, {u"c"_s, 3LL}}));
    EXPECT_EQ(warnings.count(u" is locked "_s), 2) << "one trouble is told once: " << warnings.toStdString();
}

TEST_F(FileUserDefaultsTest, TheUsersDatabaseLiesInTheConfigurationFolderAndIsTheUsersAlone)
{
    const QString deep = folder() + u"/deeper"_s;
    const ScopedEnvironment config("XDG_CONFIG_HOME", QFile::encodeName(deep));
    const mode_t before = umask(0);
    openUserDefaults(u"com.Orvane.Quillon"_s, DefaultsAccess::ReadWrite, runLoop_)->setObject(u"a"_s, 1);
    umask(before);
    EXPECT_TRUE(QFile::exists(deep + u"/com.Orvane.Quillon.plist"_s));
    EXPECT_EQ(modeOf(deep), 0700);
    EXPECT_EQ(modeOf(deep + u"/com.Orvane.Quillon.plist.lock"_s), 0600);
}

TEST_F(FileUserDefaultsTest, WhatCannotBeReadOrWrittenIsAWarningAndNeitherWaitedForNorReplaced)
{
    const QByteArray file = QFile::encodeName(path());
    const std::pair<QString, std::function<bool()>> rows[] = {
        {u"too large"_s, [&] { return QFile::resize(path(), qint64{1} << 34); }},
        {u"no file"_s, [&] { return QFile::remove(path()) && mkfifo(file.constData(), 0666) == 0; }},
        {u"cannot be read"_s,
         [&] { return QFile::remove(path()) && (write("{}"), chmod(file.constData(), 0222)) == 0; }},
        {u"not saved"_s,
         [&] {
             return chmod(file.constData(), 0644) == 0 && chmod(QFile::encodeName(folder()).constData(), 0555) == 0;
         }},
    };
    write("");
    for (const QString& opened : {temporary_.path(), folder()})
        ASSERT_EQ(chmod(QFile::encodeName(opened).constData(), 0777), 0);
    for (const auto& [reason, prepare] : rows) {
        ASSERT_TRUE(prepare());
        const QString warning = told([this] {
            EXPECT_TRUE(geteuid() != 0 || seteuid(65534) == 0); // for root permissions do not count
            {
                auto defaults = open();
                defaults.setObject(u"a"_s, 1);
                EXPECT_EQ(defaults.integer(u"a"_s), 1);
            }
            EXPECT_EQ(seteuid(getuid()), 0);
        });
        EXPECT_TRUE(warning.contains(reason)) << warning.toStdString();
        EXPECT_EQ(files(), QStringList{u"settings.plist"_s});
    }
    EXPECT_EQ(contents(path()), "{}");
}

} // namespace quillon
