#include "DisksFixture.h"

#include <QDir>

namespace quillon {

/// How the window sees to it that a recovery key is kept.
class RecoveryKeyTest : public DisksWindowFixture {
protected:
    bool isMissing() const
    {
        return practice_.run({u"destinationinfo"_s, u"-X"_s}).output.contains("RecoveryKeyMissing");
    }
    bool isRemarkedOn() const
    {
        const QVariant remarks = list(Disks)->item(0)->data(EntryDelegate::remarksRole);
        return remarks.toStringList().contains(localizedString("disksKeyNotKept"));
    }
    bool isAsked() const { return window_->findChild<QPushButton*>(u"showKey"_s)->isVisible(); }
    QString shownKey() const
    {
        const QDialog* dialog = panel(u"recoveryKey"_s);
        return dialog ? dialog->findChild<QLineEdit*>(u"key"_s)->text() : QString();
    }
    QByteArray contents(const QString& name) const
    {
        QFile file(practice_.path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    /// Presses the button that saves, and gives that path to the dialog.
    void savePage(const QString& name) const
    {
        press(panel(u"recoveryKey"_s), u"savePage"_s);
        chooseInDialog(practice_.path(name));
    }
};

TEST_F(RecoveryKeyTest, ComesUpForANewDiskAndIsAskedForUntilItIsKept)
{
    QDir().mkpath(practice_.path(u"Disk"_s));
    open();
    click(Disks, localizedString("disksAddFolderTitle") + u'…');
    chooseInDialog(practice_.path(u"Disk"_s));
    const QString first = shownKey();
    ASSERT_EQ(first.size(), 35);
    QTest::keyClick(panel(u"recoveryKey"_s), Qt::Key_Return);
    auto* const saving = window_->findChild<QFileDialog*>();
    ASSERT_TRUE(saving) << "Return settles nothing";
    saving->reject();
    QTest::keyClick(panel(u"recoveryKey"_s), Qt::Key_Escape);
    ASSERT_TRUE(eventuallyCloses(u"recoveryKey"_s));
    EXPECT_TRUE(isMissing());

    window_.reset();
    open();
    ASSERT_TRUE(eventuallyShows(Disks, {u"Disk"_s}));
    EXPECT_TRUE(isRemarkedOn());
    ASSERT_TRUE(isAsked());
    press(window_.get(), u"showKey"_s);
    const QString second = shownKey();
    EXPECT_NE(second, first);

    // This disk is a folder beside the page's.
    savePage(u"page.txt"_s);
    EXPECT_EQ(textOfAlert(u"messageText"_s), localizedString("disksPageOnDiskMessage"));
    answerAlert("disksCancelTitle");
    EXPECT_FALSE(QFile::exists(practice_.path(u"page.txt"_s)));
    savePage(u"page.txt"_s);
    answerAlert("disksSaveTitle");
    ASSERT_TRUE(runUntil([&] { return contents(u"page.txt"_s).contains(second.toUtf8()); }));
    savePage(u"page"_s);
    answerAlert("disksSaveTitle");
    EXPECT_TRUE(runUntil([&] { return contents(u"page.pdf"_s).startsWith("%PDF"); }));

    press(panel(u"recoveryKey"_s), u"kept"_s);
    ASSERT_TRUE(eventuallyCloses(u"recoveryKey"_s));
    EXPECT_TRUE(runUntil([this] { return !isRemarkedOn() && !isAsked(); }));
    EXPECT_FALSE(isMissing());
}

TEST_F(RecoveryKeyTest, ARefusalToMakeOneIsTold)
{
    practice_.addDisk(u"Disk"_s);
    open(scripted(u"refusing"_s, "case $1 in recoverykey) echo 'tmutil: no key' >&2; exit 1;; esac\nexec '" +
                                     practice_.executable().toUtf8() + "' \"$@\"\n"));
    press(window_.get(), u"showKey"_s);
    EXPECT_EQ(textOfAlert(u"messageText"_s), localizedString("disksKeyFailed").arg(u"Disk"_s));
    EXPECT_EQ(textOfAlert(u"informativeText"_s), u"no key"_s);
    answerAlert("disksOkTitle");
    EXPECT_TRUE(runUntil([this] { return isAsked(); }));
}

} // namespace quillon
