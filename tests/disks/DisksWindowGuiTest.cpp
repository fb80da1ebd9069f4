#include "DisksFixture.h"

#include <QDir>
#include <QScreen>

namespace quillon {

using DisksWindowTest = DisksWindowFixture;

TEST_F(DisksWindowTest, AFolderIsAddedAsADiskAndRemovedOnceThatIsConfirmed)
{
    QDir().mkpath(practice_.path(u"Disk & <b>1"_s));
    open();
    ASSERT_TRUE(runUntil([this] { return visibleText().contains(localizedString("disksNoDisks")); }));
    click(Disks, localizedString("disksAddFolderTitle") + u'…');
    chooseInDialog(practice_.path(u"Disk & <b>1"_s));
    ASSERT_TRUE(eventuallyShows(Disks, {u"Disk & <b>1"_s}));
    press(panel(u"recoveryKey"_s), u"later"_s);
    ASSERT_TRUE(eventuallyCloses(u"recoveryKey"_s));
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
    const QString here = details(list(Disks)->item(0)).value(1);
    EXPECT_TRUE(here.startsWith(localizedString("disksConnected")) && here.contains(u"2026"_s)) << here.toStdString();
    const QString away = details(list(Disks)->item(1)).last();
    EXPECT_TRUE(away.startsWith(localizedString("disksNotConnected")) &&
                away.endsWith(localizedString("disksNoBackupYet")))
        << away.toStdString();
    EXPECT_TRUE(list(Disks)->item(1)->data(Qt::AccessibleTextRole).toString().contains(away));

    // A disk that is plugged in shows without anybody's doing.
    QDir().rename(practice_.path(u"unplugged"_s), practice_.path(u"Away"_s));
    EXPECT_TRUE(runUntil(
        [this] { return details(list(Disks)->item(1)).value(1).startsWith(localizedString("disksConnected")); }));
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
    window_.reset();
    scripted(u"lsblk"_s, "exit 1\n");
    open();
    EXPECT_TRUE(runUntil([this] {
        QMenu* const disks = button(Disks, localizedString("disksAddDiskTitle"))->menu();
        Q_EMIT disks->aboutToShow();
        return disks->actions().first()->text() == localizedString("disksListFailed");
    }));
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
    chooseToAdd("disksAddFolderTitle");
    chooseInDialog(practice_.path(u"source/-left out"_s));
    ASSERT_TRUE(eventuallyShows(Exclusions, {u"-left out"_s}));
    chooseToAdd("disksAddFileTitle");
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
    chooseToAdd("disksAddFolderTitle");
    chooseInDialog(practice_.source());
    EXPECT_EQ(textOfAlert(u"messageText"_s), localizedString("disksAddFailed").arg(u"source"_s));
    EXPECT_EQ(textOfAlert(u"informativeText"_s) + u'\n',
              QString::fromUtf8(practice_.run({u"addexclusion"_s, practice_.source()}).error).mid(8))
        << "without the tool's name";
    answerAlert("disksOkTitle");
    EXPECT_TRUE(runUntil([this] { return button(Exclusions, localizedString("disksAddTitle"))->isEnabled(); }));

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
    EXPECT_TRUE(window_->screen()->availableGeometry().contains(QRect({}, window_->size())))
        << window_->width() << 'x' << window_->height();
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
