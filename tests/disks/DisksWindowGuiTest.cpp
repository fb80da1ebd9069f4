#include "Alert.h"
#include "DisksWindow.h"
#include "EntryDelegate.h"
#include "EventLoop.h"
#include "LocalizedString.h"
#include "ModalAlertPresenter.h"
#include "PracticeTmutil.h"
#include "QtRunLoop.h"
#include "Task.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QTabBar>
#include <QTest>
#include <QTextEdit>

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// The real window over the real tmutil, or over a script in its place.
class DisksWindowTest : public testing::Test {
protected:
    enum Page { Disks, Sources, Exclusions };

    void open() { open(practice_.executable()); }
    void open(const QString& tmutil)
    {
        window_ = std::make_unique<DisksWindow>(
            DisksWindow::Services{launcher_, runLoop_, alerts_, tmutil, practice_.path(u"lsblk"_s)});
        window_->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get()));
    }

    /// A tool that does as the shell script says.
    QString scripted(const QString& name, const QByteArray& script) const
    {
        practice_.write(name, "#!/bin/sh\nPATH=/usr/bin:/bin\n" + script);
        QFile::setPermissions(practice_.path(name), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return practice_.path(name);
    }

    ListPage* page(Page which) const
    {
        auto* tabs = window_->findChild<QTabBar*>();
        tabs->setCurrentIndex(which);
        for (ListPage* page : window_->findChildren<ListPage*>()) {
            if (page->isVisible())
                return page;
        }
        return nullptr;
    }
    QListWidget* list(Page which) const { return page(which)->findChild<QListWidget*>(); }
    QStringList titles(Page which) const
    {
        QStringList titles;
        const QListWidget* entries = list(which);
        for (int row = 0; row < entries->count(); ++row)
            titles.append(entries->item(row)->text());
        return titles;
    }
    bool eventuallyShows(Page which, const QStringList& expected) const
    {
        return runUntil([&] { return titles(which) == expected; });
    }
    static QStringList details(const QListWidgetItem* item)
    {
        return item->data(EntryDelegate::detailsRole).toStringList();
    }

    QPushButton* button(Page which, const QString& title) const
    {
        for (QPushButton* button : page(which)->findChildren<QPushButton*>()) {
            if (button->text() == title)
                return button;
        }
        return nullptr;
    }
    void click(Page which, const QString& title) const
    {
        QPushButton* const wanted = button(which, title);
        ASSERT_TRUE(wanted != nullptr) << title.toStdString();
        ASSERT_TRUE(runUntil([wanted] { return wanted->isEnabled(); }));
        QTest::mouseClick(wanted, Qt::LeftButton);
    }
    void clickEntry(Page which, int row) const
    {
        QListWidget* entries = list(which);
        QTest::mouseClick(entries->viewport(), Qt::LeftButton, {},
                          entries->visualItemRect(entries->item(row)).center());
        ASSERT_EQ(entries->currentRow(), row);
    }

    /// Puts a path into the open file dialog, as if pasted: completion would offer a folder's contents instead.
    void chooseInDialog(const QString& path) const
    {
        auto* dialog = window_->findChild<QFileDialog*>();
        ASSERT_TRUE(dialog && runUntil([dialog] { return dialog->isVisible(); }));
        dialog->findChild<QLineEdit*>(u"fileNameEdit"_s)->setText(path);
        auto* buttons = dialog->findChild<QDialogButtonBox*>();
        for (QAbstractButton* button : buttons->buttons()) {
            if (buttons->buttonRole(button) == QDialogButtonBox::AcceptRole)
                QTest::mouseClick(button, Qt::LeftButton);
        }
        ASSERT_TRUE(runUntil([this] { return !window_->findChild<QFileDialog*>(); }));
    }

    static Alert* alert()
    {
        Alert* shown = nullptr;
        runUntil([&] {
            const QWidget* window = QApplication::activeModalWidget();
            shown = window ? window->findChild<Alert*>() : nullptr;
            return shown != nullptr;
        });
        return shown;
    }
    static QString textOfAlert(const QString& objectName)
    {
        const Alert* shown = alert();
        return shown ? shown->findChild<QTextEdit*>(objectName)->toPlainText() : QString();
    }
    static void answerAlert(const char* buttonKey)
    {
        const Alert* const shown = alert();
        ASSERT_TRUE(shown);
        for (QPushButton* button : shown->buttons()) {
            if (button->text() == localizedString(buttonKey)) {
                QTest::mouseClick(button, Qt::LeftButton);
                runUntil([] { return !QApplication::activeModalWidget(); });
                return;
            }
        }
        FAIL() << "no button " << buttonKey;
    }

    QString visibleText() const
    {
        QStringList texts;
        for (const QLabel* label : window_->findChildren<QLabel*>()) {
            if (label->isVisible())
                texts.append(label->text());
        }
        return texts.join(u'\n');
    }

    PracticeTmutil practice_{QStringLiteral(TMUTIL_EXECUTABLE)};
    QtRunLoop runLoop_;
    Task launcher_;
    ModalAlertPresenter alerts_;
    std::unique_ptr<DisksWindow> window_;
};

} // namespace

TEST_F(DisksWindowTest, AFolderIsAddedAsADiskAndRemovedOnceThatIsConfirmed)
{
    QDir().mkpath(practice_.path(u"Disk & <b>1"_s));
    open();
    ASSERT_TRUE(runUntil([this] { return visibleText().contains(localizedString("disksNoDisks")); }));
    click(Disks, localizedString("disksAddFolderTitle") + u'…');
    chooseInDialog(practice_.path(u"Disk & <b>1"_s));
    ASSERT_TRUE(eventuallyShows(Disks, {u"Disk & <b>1"_s}));
    const QString path = QDir(practice_.path(u"Disk & <b>1"_s)).canonicalPath();
    EXPECT_EQ(details(list(Disks)->item(0)).first(), path);
    EXPECT_FALSE(visibleText().contains(localizedString("disksNoDisks")));

    EXPECT_FALSE(button(Disks, localizedString("disksRemoveTitle"))->isEnabled()) << "nothing is selected";
    clickEntry(Disks, 0);
    click(Disks, localizedString("disksRemoveTitle"));
    EXPECT_TRUE(textOfAlert(u"informativeText"_s).contains(u"are kept"_s));
    answerAlert("disksCancelTitle");
    EXPECT_TRUE(practice_.run({u"destinationinfo"_s}).output.contains("Disk & <b>1"));
    QTest::keyClick(list(Disks), Qt::Key_Delete);
    answerAlert("disksRemoveTitle");
    EXPECT_TRUE(eventuallyShows(Disks, {}));
    EXPECT_EQ(practice_.run({u"destinationinfo"_s}).output, "No destinations configured.\n");
    EXPECT_FALSE(QDir(path + "/Quillon.backups"_L1).isEmpty()) << "a repository is never removed";
}

TEST_F(DisksWindowTest, TellsWhichDiskIsThereAndWhenItWasUsed)
{
    const QString id = practice_.addDisk(u"Here"_s);
    practice_.addDisk(u"Away"_s);
    QDir().rename(practice_.path(u"Away"_s), practice_.path(u"unplugged"_s));
    practice_.write(u"state/quillon-timemachine/history.plist"_s,
                    R"(<?xml version="1.0" encoding="UTF-8"?><plist version="1.0"><dict><key>Destinations</key><dict>)"
                    "<key>" +
                        id.toUtf8() +
                        "</key><dict><key>LastBackup</key><date>2026-11-21T07:22:58Z</date></dict></dict></dict>"
                        "</plist>");
    open();
    ASSERT_TRUE(eventuallyShows(Disks, {u"Here"_s, u"Away"_s}));
    const QString here = details(list(Disks)->item(0)).last();
    EXPECT_TRUE(here.startsWith(localizedString("disksConnected")) && here.contains(u"2026"_s)) << here.toStdString();
    const QString away = details(list(Disks)->item(1)).last();
    EXPECT_TRUE(away.startsWith(localizedString("disksNotConnected")) &&
                away.endsWith(localizedString("disksNoBackupYet")))
        << away.toStdString();
    EXPECT_TRUE(list(Disks)->item(1)->data(Qt::AccessibleTextRole).toString().contains(away));

    // A disk that is plugged in shows without anybody's doing.
    QDir().rename(practice_.path(u"unplugged"_s), practice_.path(u"Away"_s));
    EXPECT_TRUE(runUntil(
        [this] { return details(list(Disks)->item(1)).last().startsWith(localizedString("disksConnected")); }));
}

TEST_F(DisksWindowTest, AMountedDiskIsOfferedUnlessItIsOneAlready)
{
    const QString used = practice_.path(u"Used"_s);
    const QString fresh = practice_.path(u"Fresh"_s);
    QDir().mkpath(fresh);
    practice_.addDisk(u"Used"_s);
    scripted(u"lsblk"_s, "cat <<'END'\n{\"blockdevices\":[{\"label\":\"A & B\",\"mountpoints\":[\"" + fresh.toUtf8() +
                             "\"],\"fsavail\":2000000000,\"ro\":false},{\"label\":null,\"mountpoints\":[\"" +
                             used.toUtf8() + "\"],\"fsavail\":1,\"ro\":false}]}\nEND\n");
    open();
    ASSERT_TRUE(eventuallyShows(Disks, {u"Used"_s}));
    QMenu* const menu = button(Disks, localizedString("disksAddDiskTitle"))->menu();
    ASSERT_TRUE(runUntil([menu] {
        Q_EMIT menu->aboutToShow();
        return menu->actions().size() == 1 && menu->actions().first()->isEnabled();
    }));
    EXPECT_TRUE(menu->actions().first()->text().startsWith(u"A && B"_s));
    menu->actions().first()->trigger();
    EXPECT_TRUE(eventuallyShows(Disks, {u"Used"_s, u"Fresh"_s}));
    Q_EMIT menu->aboutToShow();
    EXPECT_EQ(menu->actions().first()->text(), localizedString("disksNoOtherDisk"));
    EXPECT_FALSE(menu->actions().first()->isEnabled());
}

TEST_F(DisksWindowTest, FoldersAndExclusionsAreAddedAndRemoved)
{
    practice_.write(u"other/file"_s, {});
    practice_.write(u"source/-left out/file"_s, {});
    open();
    ASSERT_TRUE(eventuallyShows(Sources, {u"source"_s}));
    click(Sources, localizedString("disksAddFolderTitle") + u'…');
    chooseInDialog(practice_.path(u"other"_s));
    ASSERT_TRUE(eventuallyShows(Sources, {u"source"_s, u"other"_s}));
    clickEntry(Sources, 1);
    click(Sources, localizedString("disksRemoveTitle"));
    EXPECT_TRUE(eventuallyShows(Sources, {u"source"_s}));

    EXPECT_EQ(titles(Exclusions), QStringList());
    click(Exclusions, localizedString("disksAddFolderTitle") + u'…');
    chooseInDialog(practice_.path(u"source/-left out"_s));
    ASSERT_TRUE(eventuallyShows(Exclusions, {u"-left out"_s}));
    click(Exclusions, localizedString("disksAddFileTitle") + u'…');
    chooseInDialog(practice_.path(u"other/file"_s));
    ASSERT_TRUE(eventuallyShows(Exclusions, {u"-left out"_s, u"file"_s}));
    clickEntry(Exclusions, 0);
    QTest::keyClick(list(Exclusions), Qt::Key_Delete);
    EXPECT_TRUE(eventuallyShows(Exclusions, {u"file"_s}));
}

TEST_F(DisksWindowTest, TheHomeFolderThatIsBackedUpByDefaultStaysWhenAFolderIsAdded)
{
    practice_.write(u"other/file"_s, {});
    ASSERT_EQ(practice_.run({u"removesource"_s, practice_.source()}).status, 0);
    const QString home = QString::fromUtf8(practice_.run({u"listsources"_s}).output).trimmed();
    open();
    const QString name = QFileInfo(home).fileName();
    ASSERT_TRUE(eventuallyShows(Sources, {name}));
    click(Sources, localizedString("disksAddFolderTitle") + u'…');
    chooseInDialog(practice_.path(u"other"_s));
    EXPECT_TRUE(eventuallyShows(Sources, {name, u"other"_s}));
}

TEST_F(DisksWindowTest, TheHomeFolderTakesThePlaceOfTheLastFolderOnlyWhenTheUserWantsThat)
{
    open();
    ASSERT_TRUE(eventuallyShows(Sources, {u"source"_s}));
    const auto ask = [this] {
        clickEntry(Sources, 0);
        click(Sources, localizedString("disksRemoveTitle"));
        EXPECT_EQ(textOfAlert(u"messageText"_s), localizedString("disksHomeAlertMessage"));
    };
    ask();
    answerAlert("disksCancelTitle");
    EXPECT_EQ(practice_.run({u"listsources"_s}).output.trimmed(), practice_.source().toUtf8());
    ask();
    answerAlert("disksRemoveTitle");
    const auto home = [this] { return QString::fromUtf8(practice_.run({u"listsources"_s}).output.trimmed()); };
    EXPECT_TRUE(runUntil([&] { return home() != practice_.source(); }));
    EXPECT_TRUE(eventuallyShows(Sources, {QFileInfo(home()).fileName()}));
}

TEST_F(DisksWindowTest, ARefusalIsShownInTheToolsOwnWords)
{
    open();
    ASSERT_TRUE(eventuallyShows(Sources, {u"source"_s}));
    click(Exclusions, localizedString("disksAddFolderTitle") + u'…');
    chooseInDialog(practice_.source());
    EXPECT_EQ(textOfAlert(u"messageText"_s), localizedString("disksAddFailed").arg(u"source"_s));
    EXPECT_EQ(textOfAlert(u"informativeText"_s) + u'\n',
              QString::fromUtf8(practice_.run({u"addexclusion"_s, practice_.source()}).error).mid(8))
        << "without the tool's name";
    answerAlert("disksOkTitle");
    EXPECT_TRUE(
        runUntil([this] { return button(Exclusions, localizedString("disksAddFolderTitle") + u'…')->isEnabled(); }));

    practice_.write(u"config/quillon-timemachine/configuration.plist"_s, "<plist><dict>");
    window_.reset();
    open();
    ASSERT_TRUE(runUntil([this] { return visibleText().contains(u"is damaged"_s); }));
    EXPECT_FALSE(visibleText().contains(localizedString("disksNoDisks"))) << "what is not known is not told";
    QFile::remove(practice_.configurationFolder() + "/configuration.plist"_L1);
    for (QPushButton* again : window_->findChildren<QPushButton*>()) {
        if (again->text() == localizedString("disksTryAgainTitle"))
            QTest::mouseClick(again, Qt::LeftButton);
    }
    EXPECT_TRUE(runUntil([this] {
        return visibleText().contains(localizedString("disksNoDisks")) && !visibleText().contains(u"is damaged"_s);
    }));
}

TEST_F(DisksWindowTest, StaysAliveOverAToolThatHangsAndEndsItWhenClosed)
{
    open(scripted(u"hanging"_s, "echo $$ >'" + practice_.path(u"pid"_s).toUtf8() + "'\nexec sleep 1000\n"));
    const auto process = [this] {
        QFile file(practice_.path(u"pid"_s));
        return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed() : QByteArray();
    };
    ASSERT_TRUE(runUntil([&] { return !process().isEmpty(); }));
    EXPECT_TRUE(visibleText().contains(localizedString("disksReading")));
    QTest::keyClick(window_->findChild<QTabBar*>(), Qt::Key_Right);
    EXPECT_EQ(window_->findChild<QTabBar*>()->currentIndex(), 1);
    click(Sources, localizedString("disksAddFolderTitle") + u'…');
    chooseInDialog(practice_.source());
    EXPECT_FALSE(button(Sources, localizedString("disksAddFolderTitle") + u'…')->isEnabled()) << "one change at a time";
    EXPECT_TRUE(window_->close());
    window_.reset();
    EXPECT_TRUE(runUntil([&] { return !QFile::exists(u"/proc/"_s + QString::fromLatin1(process())); }));
}

TEST_F(DisksWindowTest, SaysSoWhenThereIsNoTool)
{
    open(practice_.path(u"missing"_s));
    EXPECT_TRUE(runUntil([this] {
        return visibleText().contains(localizedString("disksToolMissing").arg(practice_.path(u"missing"_s)));
    }));
}

TEST_F(DisksWindowTest, TheKeyboardReachesEverythingAndNothingIsCutOffAtLargeFonts)
{
    practice_.addDisk(u"Disk"_s);
    const QFont before = QApplication::font();
    QFont large = before;
    large.setPointSize(22);
    QApplication::setFont(large);
    open();
    ASSERT_TRUE(eventuallyShows(Disks, {u"Disk"_s}));
    clickEntry(Disks, 0);
    for (const Page which : {Disks, Sources, Exclusions}) {
        EXPECT_FALSE(list(which)->accessibleName().isEmpty());
        list(which)->setFocus();
        for (const QPushButton* reached : page(which)->findChildren<QPushButton*>()) {
            EXPECT_GE(reached->width(), reached->sizeHint().width()) << reached->text().toStdString();
            if (!reached->isEnabled())
                continue;
            for (int presses = 0; presses < 10 && !reached->hasFocus(); ++presses)
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            EXPECT_TRUE(reached->hasFocus()) << reached->text().toStdString();
        }
    }
    EXPECT_GE(list(Disks)->visualItemRect(list(Disks)->item(0)).height(), 3 * QFontMetrics(large).height());
    QApplication::setFont(before);
}

} // namespace quillon
