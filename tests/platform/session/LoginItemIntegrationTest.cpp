#include "EventLoop.h"
#include "LoginItem.h"
#include "LoginItemFactory.h"
#include "ScopedEnvironment.h"
#include "SessionTestSupport.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

class LoginItemIntegrationTest : public testing::Test {
protected:
    QString entry() const { return folder.filePath(u"config/autostart/com.Orvane.Quillon.desktop"_s); }

    ino_t fileNumber() const
    {
        struct stat status {};
        EXPECT_EQ(stat(QFile::encodeName(entry()).constData(), &status), 0);
        return status.st_ino;
    }

    QTemporaryDir folder;
    ScopedEnvironment configuration{"XDG_CONFIG_HOME", QFile::encodeName(folder.filePath(u"config"_s))};
};

/// Has GLib start what the entry names, as a desktop does at log-in.
Finished launch(const QString& entry)
{
    return run(
        u"/usr/bin/python3"_s,
        {u"-c"_s,
         u"import sys; from gi.repository import Gio; Gio.DesktopAppInfo.new_from_filename(sys.argv[1]).launch()"_s,
         entry});
}

} // namespace

TEST_F(LoginItemIntegrationTest, TheEntryIsValidAndStartsTheProgramWhateverItsPath)
{
    for (const auto& name : {u"plain"_s, u"two  blanks"_s, u"a \"quoted\" 'name'"_s, u"back\\slash\\\\es"_s,
                             u"$HOME `id` $(id)"_s, u"semi;colon & <pipe> | # ~ * ?"_s, u"Zoë ☂"_s}) {
        const QString program = folder.filePath(name);
        const QString note = folder.filePath(u"note"_s);
        QFile::remove(note);
        writeScript(
            program,
            u"printf '%s|%s' \"$#\" \"$0\" >\"${0%/*}/note.part\"; mv \"${0%/*}/note.part\" \"${0%/*}/note\"\n"_s);
        ASSERT_TRUE(makeLoginItem(program)->setEnabled(true));

        const auto validated = run(u"desktop-file-validate"_s, {entry()});
        EXPECT_EQ(validated.status, 0);
        EXPECT_EQ(validated.output, QString()) << contentOf(entry()).toStdString();
        const auto launched = launch(entry());
        EXPECT_EQ(launched.status, 0) << launched.output.toStdString();
        EXPECT_TRUE(runUntil([&] { return QFile::exists(note); })) << contentOf(entry()).toStdString();
        EXPECT_EQ(contentOf(note), u"0|"_s + program);
    }
}

// GLib looks a program up before it undoes the doubling, so this one cannot be launched by it.
TEST_F(LoginItemIntegrationTest, APercentSignIsNoFieldCode)
{
    ASSERT_TRUE(makeLoginItem(u"/opt/50% off/%f"_s)->setEnabled(true));
    EXPECT_TRUE(contentOf(entry()).contains("\nExec=\"/opt/50%% off/%%f\"\n"_L1)) << contentOf(entry()).toStdString();
    EXPECT_EQ(run(u"desktop-file-validate"_s, {entry()}).output, QString());
}

TEST_F(LoginItemIntegrationTest, AnUnchangedEntryIsNotWrittenAgain)
{
    ASSERT_TRUE(makeLoginItem(u"/opt/quillon"_s)->setEnabled(true));
    const auto first = fileNumber();
    ASSERT_TRUE(makeLoginItem(u"/opt/quillon"_s)->setEnabled(true));
    EXPECT_EQ(fileNumber(), first);

    ASSERT_TRUE(makeLoginItem(u"/srv/quillon"_s)->setEnabled(true));
    EXPECT_TRUE(contentOf(entry()).contains("/srv/quillon"_L1));
    EXPECT_EQ(QDir(folder.filePath(u"config/autostart"_s)).entryList(QDir::Files).size(), 1);
}

TEST_F(LoginItemIntegrationTest, DisablingRemovesTheEntryAndMayBeRepeated)
{
    const auto item = makeLoginItem(u"/opt/quillon"_s);
    EXPECT_TRUE(item->setEnabled(false));
    ASSERT_TRUE(item->setEnabled(true));
    EXPECT_TRUE(item->setEnabled(false));
    EXPECT_FALSE(QFile::exists(entry()));
    EXPECT_TRUE(item->setEnabled(false));
}

TEST_F(LoginItemIntegrationTest, AFolderThatCannotBeMadeIsReported)
{
    writeScript(folder.filePath(u"config"_s), {}); // a file where the folder should be
    EXPECT_FALSE(makeLoginItem(u"/opt/quillon"_s)->setEnabled(true));
}

} // namespace quillon
