#include "AnsweringLauncher.h"
#include "BrowseWindow.h"
#include "FakeServices.h"
#include "LocalizedString.h"
#include "RestoreDialog.h"
#include "ScopedEnvironment.h"
#include "TimeMachineSettings.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>
#include <QTreeWidget>

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto plistHead = R"(<?xml version="1.0" encoding="UTF-8"?><plist version="1.0">)";

QByteArray file(const QByteArray& path, int size)
{
    return R"({"path":")" + path + R"(","type":"file","size":)" + QByteArray::number(size) + "}\n";
}

QByteArray folder(const QByteArray& path)
{
    return R"({"path":")" + path + R"(","type":"folder"})" + '\n';
}

/// The window over two backups: in the older one a file has other contents, and one is there that was deleted.
class BrowseWindowTest : public testing::Test {
protected:
    BrowseWindowTest()
    {
        auto& answers = launcher_.answers;
        answers[u"destinationinfo -X"_s] =
            plistHead + QByteArray("<dict><key>Destinations</key><array><dict><key>ID</key><string>A</string>"
                                   "<key>Name</key><string>Disk</string></dict></array></dict></plist>");
        QByteArray list = plistHead + QByteArray("<array>");
        for (const char* day : {"20", "21"})
            list += QByteArray("<dict><key>Name</key><string>/b/") + day + "</string><key>DestinationID</key>" +
                    "<string>A</string><key>Date</key><date>2026-11-" + day + "T07:00:00Z</date></dict>";
        answers[u"listbackups -X"_s] = list + "</array></plist>";
        for (const QString& backup : {u"/b/20"_s, u"/b/21"_s}) {
            answers["listfiles --json -- "_L1 + backup] = folder("/home");
            answers["listfiles --json -- "_L1 + backup + "/home"_L1] =
                folder("/home/sub") + file("/home/a.txt", backup == "/b/20"_L1 ? 1 : 2);
        }
        answers[u"listfiles --json -- /b/20/home"_s] += file("/home/gone.txt", 3);
        answers[u"versions --json -- /home/a.txt"_s] =
            R"({"path":"/home/a.txt","type":"file","size":2,"backup":"/b/21"})"
            "\n"
            R"({"path":"/home/a.txt","type":"file","size":1,"backup":"/b/20"})"
            "\n";
    }

    void open(const QString& wanted = {})
    {
        window_ = std::make_unique<BrowseWindow>(Setup::Services{launcher_, runLoop_, alerts_, u"tmutil"_s}, workspace_,
                                                 BrowseWindow::Places{.cache = cache_.path(), .wanted = wanted});
        window_->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get()));
        runLoop_.advance(1s);
    }

    template<typename Widget>
    Widget* find(const char* name) const
    {
        const QWidget* dialog = window_->findChild<QDialog*>();
        return (dialog ? dialog : window_.get())->findChild<Widget*>(QLatin1StringView(name));
    }
    QTreeView* files() const { return window_->findChild<QTreeView*>(u"files"_s); }
    QStringList rows() const
    {
        QStringList rows;
        for (int row = 0; row < files()->model()->rowCount(); ++row)
            rows.append(files()->model()->index(row, 0).data(Qt::AccessibleTextRole).toString());
        return rows;
    }
    QString path() const { return window_->findChild<QLineEdit*>(u"path"_s)->text(); }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        runLoop_.advance(1s);
    }
    void press(const char* button)
    {
        auto* const wanted = find<QPushButton>(button);
        ASSERT_TRUE(wanted && wanted->isVisible() && wanted->isEnabled()) << button;
        wanted->click();
        runLoop_.advance(1s);
    }
    void chooseBackup(int place)
    {
        auto* const timeline = window_->findChild<QTreeWidget*>(u"timeline"_s);
        int seen = 0;
        for (auto* item = timeline->topLevelItem(0); item; item = timeline->itemBelow(item)) {
            if (item->parent() && seen++ == place)
                return timeline->setCurrentItem(item), runLoop_.advance(1s);
        }
        FAIL() << "no such backup";
    }

    QTemporaryDir cache_;
    VirtualRunLoop runLoop_{Date(1'795'244'400s)}; // 21 November 2026, 07:00 UTC
    AnsweringLauncher launcher_{runLoop_};
    FakeAlerts alerts_;
    FakeWorkspace workspace_;
    std::unique_ptr<BrowseWindow> window_;
};

} // namespace

TEST_F(BrowseWindowTest, IsUsedWithTheKeyboardAlone)
{
    open();
    EXPECT_EQ(rows(), QStringList(u"home, Folder"_s));
    key(Qt::Key_Return);
    EXPECT_EQ(path(), u"/home"_s);
    EXPECT_EQ(rows(), QStringList({u"sub, Folder"_s, u"a.txt"_s})) << "the newest backup, without a later one";
    key(Qt::Key_Backspace);
    EXPECT_EQ(path(), u"/"_s);
    EXPECT_EQ(files()->currentIndex().row(), 0) << "the folder that was left";
    key(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(path(), u"/home"_s);
    chooseBackup(1);
    EXPECT_EQ(path(), u"/home"_s) << "another time, the same folder";
    EXPECT_EQ(rows(), QStringList({u"sub, Folder"_s, u"a.txt, Changed"_s, u"gone.txt, Deleted"_s}));
    files()->setCurrentIndex(files()->model()->index(1, 0));
    runLoop_.advance(1s);
    auto* const versions = window_->findChild<QTreeWidget*>(u"versions"_s);
    ASSERT_EQ(versions->topLevelItemCount(), 2);
    key(Qt::Key_Up);
    EXPECT_FALSE(versions->isVisible()) << "of a folder";
    key(Qt::Key_Down);
    ASSERT_TRUE(versions->isVisible());
    key(Qt::Key_Delete);
    EXPECT_EQ(rows().size(), 3);
    Q_EMIT versions->itemActivated(versions->topLevelItem(0), 0);
    runLoop_.advance(1s);
    EXPECT_EQ(rows(), QStringList({u"sub, Folder"_s, u"a.txt"_s}));
    EXPECT_EQ(files()->currentIndex().row(), 1);
}

TEST_F(BrowseWindowTest, IsSortedByKeysAndStaysSoInOtherFolders)
{
    open(u"/home/a.txt"_s);
    chooseBackup(1);
    ASSERT_EQ(rows(), QStringList({u"sub, Folder"_s, u"a.txt, Changed"_s, u"gone.txt, Deleted"_s}));
    files()->setCurrentIndex(files()->model()->index(1, 0));
    key(Qt::Key_2, Qt::ControlModifier);
    key(Qt::Key_2, Qt::ControlModifier);
    EXPECT_EQ(rows(), QStringList({u"sub, Folder"_s, u"gone.txt, Deleted"_s, u"a.txt, Changed"_s}));
    EXPECT_EQ(files()->currentIndex().row(), 2) << "still the same file";
    key(Qt::Key_Backspace);
    key(Qt::Key_Return);
    EXPECT_EQ(rows(), QStringList({u"sub, Folder"_s, u"gone.txt, Deleted"_s, u"a.txt, Changed"_s}));
}

TEST_F(BrowseWindowTest, GivesUpAListingThatHangsAndTriesAgain)
{
    launcher_.hanging = u"listfiles --json -- /b/21/home"_s;
    open(u"/home/a.txt"_s);
    files()->setFocus();
    EXPECT_FALSE(find<QPushButton>("readAgain")->isVisible());
    runLoop_.advance(5min);
    EXPECT_EQ(launcher_.liveChildren(), 0);
    ASSERT_TRUE(find<QPushButton>("readAgain")->hasFocus());
    launcher_.hanging.clear();
    press("readAgain");
    EXPECT_EQ(rows().size(), 2);
    EXPECT_FALSE(find<QPushButton>("readAgain")->isVisible());
    EXPECT_TRUE(files()->hasFocus());
}

TEST_F(BrowseWindowTest, NamesThatPretendAreShownOnOneLineInTheirOrderAndOpenedAsTheyAre)
{
    const QString name = u"/home/a\nb\u202etxt.exe"_s;
    const QByteArray told = R"(/home/a\nb\u202etxt.exe)";
    launcher_.answers[u"listfiles --json -- /b/21/home"_s] = folder(told);
    launcher_.answers["listfiles --json -- /b/21"_L1 + name] = file(told + "/c", 1);
    open(u"/home"_s);
    EXPECT_EQ(rows(), QStringList(u"a btxt.exe, Folder"_s));
    key(Qt::Key_Return);
    EXPECT_EQ(path(), u"/home/a btxt.exe"_s);
    EXPECT_EQ(rows(), QStringList(u"c"_s));
    window_->findChild<QLineEdit*>(u"path"_s)->setFocus();
    key(Qt::Key_Return);
    EXPECT_EQ(rows(), QStringList(u"c"_s)) << "what was shown is not taken for the path";
}

TEST_F(BrowseWindowTest, SearchesThisBackupOrAllAndLeadsToWhatIsFound)
{
    launcher_.answers[u"findfiles --json -b /b/21 -- a.t"_s] = file("/home/a.txt", 2);
    launcher_.answers[u"findfiles --json -- a.t"_s] =
        R"({"path":"/home/a.txt","type":"file","size":1,"backup":"/b/20"})"
        "\n";
    open();
    key(Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(QApplication::focusWidget(), u"a.t"_s);
    runLoop_.advance(1s);
    EXPECT_EQ(rows(), QStringList(u"a.txt"_s));
    EXPECT_EQ(launcher_.lastCall(u"findfiles"_s), u"findfiles --json -b /b/21 -- a.t"_s) << "once, after the last key";
    find<QAbstractButton>("everywhere")->click();
    runLoop_.advance(1s);
    ASSERT_EQ(rows(), QStringList(u"a.txt"_s));
    key(Qt::Key_Return);
    files()->setCurrentIndex(files()->model()->index(0, 0));
    key(Qt::Key_Return);
    EXPECT_EQ(path(), u"/home"_s);
    EXPECT_EQ(rows().size(), 3) << "of the older backup";
    EXPECT_TRUE(find<QLineEdit>("search")->text().isEmpty());
}

TEST_F(BrowseWindowTest, AFolderOnTheCommandLineIsShownFromInside)
{
    open(u"/home"_s);
    EXPECT_EQ(path(), u"/home"_s);
    EXPECT_EQ(rows().size(), 2);
    chooseBackup(1);
    window_->lookAt(u"/home/a.txt"_s);
    runLoop_.advance(1s);
    EXPECT_EQ(rows().size(), 2) << "as the newest has it";
    EXPECT_EQ(files()->currentIndex().row(), 1);
}

TEST_F(BrowseWindowTest, SaysWhatToDoWhereThereIsNothingToLookInto)
{
    launcher_.answers[u"listbackups -X"_s] = plistHead + QByteArray("<array/></plist>");
    open();
    EXPECT_EQ(find<QLabel>("empty")->text(), localizedString("browseNoBackupMessage"));
    press("settings");
    EXPECT_EQ(workspace_.opened, QList<QUrl>{TimeMachineSettings::address()});
    launcher_.answers.erase(u"listbackups -X"_s);
    key(Qt::Key_F5);
    press("again");
}

TEST_F(BrowseWindowTest, ShowsACopyThatNobodyCanWriteToAndRemovesIt)
{
    QString copy;
    launcher_.effect = [&](const QStringList& arguments) {
        if (arguments.first() != "restore"_L1)
            return;
        copy = arguments.last();
        launcher_.answers[arguments.join(u' ')] = "{\"event\":\"done\"}\n";
        QFile made(copy);
        ASSERT_TRUE(made.open(QIODevice::WriteOnly));
    };
    open(u"/home/a.txt"_s);
    key(Qt::Key_Space);
    ASSERT_EQ(workspace_.opened, QList<QUrl>{QUrl::fromLocalFile(copy)});
    constexpr auto ofTheReader = QFile::ReadUser | QFile::WriteUser | QFile::ExeUser; // who may be root
    EXPECT_EQ(QFileInfo(copy).permissions() & ~ofTheReader, QFile::ReadOwner);
    EXPECT_TRUE(copy.startsWith(cache_.path()) && copy.endsWith("/a.txt"_L1));
    window_.reset();
    EXPECT_FALSE(QFile::exists(copy));
}

TEST_F(BrowseWindowTest, RestoresAsksAboutWhatIsInTheWayAndSaysWhatIsLost)
{
    launcher_.answers[u"restore --json --skip --in-place /b/21/home/sub /b/21/home/a.txt"_s] =
        R"({"event":"skipped","source":"/b/21/home/a.txt","path":"/home/a.txt"})"
        "\n"
        R"({"event":"failed","source":"/b/21/home/sub","path":"/home/sub","reason":"It is damaged."})"
        "\n";
    launcher_.answers[u"restore --json --keep-both --in-place /b/21/home/a.txt"_s] =
        R"({"event":"restored","source":"/b/21/home/a.txt","path":"/home/a (restored).txt"})"
        "\n";
    open(u"/home"_s);
    files()->setFocus();
    key(Qt::Key_A, Qt::ControlModifier);
    key(Qt::Key_R, Qt::ControlModifier);
    press("start");
    ASSERT_TRUE(find<QPushButton>("keepBoth")->isDefault());
    EXPECT_FALSE(find<QAbstractButton>("forAll")->isVisible()) << "there is no other";
    press("keepBoth");
    auto* const losses = find<QListWidget>("losses");
    ASSERT_TRUE(losses->isVisible());
    EXPECT_EQ(losses->item(0)->text(), u"/home/sub\nIt is damaged."_s);
    press("close");
}

TEST_F(BrowseWindowTest, ARestoreIsStoppedGentlyAndSaysSo)
{
    open(u"/home/a.txt"_s);
    key(Qt::Key_R, Qt::ControlModifier);
    find<QPushButton>("start")->click();
    ASSERT_TRUE(find<QPushButton>("stop")->isVisible());
    window_->findChild<RestoreDialog*>()->close();
    runLoop_.advance(1s);
    EXPECT_EQ(launcher_.liveChildren(), 0);
    press("close");
}

} // namespace quillon
