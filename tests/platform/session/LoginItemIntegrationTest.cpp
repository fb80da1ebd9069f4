#include "ChildProgram.h"
#include "EventLoop.h"
#include "ScopedEnvironment.h"
#include "Services.h"
#include "SessionTestSupport.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

class LoginItemIntegrationTest : public testing::Test {
protected:
    static bool enable(const QString& program)
    {
        return makeLoginItem({u"Quillon"_s, u"com.Orvane.Quillon"_s, {}, program})->setEnabled(true);
    }
    QString validated() const { return outputOf(u"desktop-file-validate"_s, {entry}, {}) + contentOf(entry); }

    QTemporaryDir folder;
    const QString entry = folder.filePath(u"config/autostart/com.Orvane.Quillon.desktop"_s);
    ScopedEnvironment configuration{"XDG_CONFIG_HOME", QFile::encodeName(folder.filePath(u"config"_s))};
};

TEST_F(LoginItemIntegrationTest, TheEntryIsValidAndStartsTheProgramWhateverItsPath)
{
    const QString note = folder.filePath(u"note"_s);
    const auto asDesktopsDo =
        u"import sys; from gi.repository import Gio; Gio.DesktopAppInfo.new_from_filename(sys.argv[1]).launch()"_s;
    for (const auto& name : {u"plain"_s, u"a  \"quoted\" 'name'"_s, u"back\\slash\\\\es"_s, u"a\nb\tc\r"_s,
                             u"$HOME `id` semi;colon & <pipe> | # ~ * ?"_s, u"Zoë ☂"_s}) {
        const QString program = folder.filePath(name);
        QFile::remove(note);
        writeScript(program, u"cd \"${0%/*}\"; printf '%s|%s' \"$#\" \"$0\" >note.part; mv note.part note\n"_s);
        ASSERT_TRUE(enable(program));
        EXPECT_TRUE(validated().startsWith(u"[Desktop Entry]\n"_s)) << validated().toStdString();
        EXPECT_EQ(outputOf(u"/usr/bin/python3"_s, {u"-c"_s, asDesktopsDo, entry}, {}), QString());
        EXPECT_TRUE(runUntil([&] { return QFile::exists(note); })) << contentOf(entry).toStdString();
        EXPECT_EQ(contentOf(note), u"0|"_s + program);
    }
    // GLib looks a program up before it undoes the doubling of percent signs, so this one cannot be launched by it.
    ASSERT_TRUE(enable(u"/opt/50% off/%f"_s));
    EXPECT_TRUE(validated().startsWith(u"[Desktop Entry]\n"_s));
    EXPECT_TRUE(validated().contains("\nExec=\"/opt/50%% off/%%f\"\n"_L1)) << validated().toStdString();
}

TEST_F(LoginItemIntegrationTest, AnEntryFollowsTheProgramAndIsRemovedWhereThereIsOne)
{
    EXPECT_TRUE(makeLoginItem({u"Quillon"_s, u"com.Orvane.Quillon"_s, {}, {}})->setEnabled(false));
    ASSERT_TRUE(enable(u"/opt/quillon"_s));
    ASSERT_TRUE(enable(u"/srv/quillon"_s));
    EXPECT_TRUE(contentOf(entry).contains("/srv/quillon"_L1));
    EXPECT_EQ(QFileInfo(entry).dir().entryList(QDir::Files).size(), 1);
    EXPECT_TRUE(makeLoginItem({u"Quillon"_s, u"com.Orvane.Quillon"_s, {}, {}})->setEnabled(false));
    EXPECT_FALSE(QFile::exists(entry));
}

TEST_F(LoginItemIntegrationTest, AFolderThatCannotBeMadeIsReported)
{
    writeScript(folder.filePath(u"config"_s), {}); // a file where the folder should be
    EXPECT_FALSE(enable(u"/opt/quillon"_s));
}

} // namespace
} // namespace quillon
