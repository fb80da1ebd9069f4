#include "DisksFixture.h"

namespace quillon {

/// How the window sees to it that a recovery key is kept.
class RecoveryKeyTest : public DisksWindowFixture {
protected:
    RecoveryKeyTest() { tell({keyless_}); }

    bool isAsked() const { return shown<QPushButton>(u"showKey"_s); }

    const QVariantMap keyless_ =
        disk(u"K"_s, {{u"MountPoint"_s, u"/"_s}, {u"Path"_s, path(u"disk"_s)}, {u"RecoveryKeyMissing"_s, 1LL}});
};

TEST_F(RecoveryKeyTest, ComesUpForANewDiskAndIsAskedForUntilItIsKept)
{
    tell({disk(u"A"_s)});
    open();
    EXPECT_FALSE(isAsked());
    page(Disks);
    click(panelTitle("disksAddFolderTitle"));
    tell({disk(u"A"_s), keyless_});
    choose(folder_.path());
    ASSERT_TRUE(shown<QDialog>(u"recoveryKey"_s));
    EXPECT_EQ(shown<QLineEdit>(u"key"_s)->text(), u"8K2VT-QX4MN"_s);
    QTest::keyClick(shown<QDialog>(u"recoveryKey"_s), Qt::Key_Return);
    auto* const saving = window_->findChild<QFileDialog*>();
    ASSERT_TRUE(saving) << "Return settles nothing";
    saving->reject();
    click(u"later"_s);
    EXPECT_FALSE(shown<QDialog>(u"recoveryKey"_s));
    EXPECT_TRUE(shown<QLabel>(localizedString("disksKeyBar").arg(u"K"_s)));

    tools_.changes.clear();
    click(u"showKey"_s);
    EXPECT_EQ(tools_.changes, QStringList(u"recoverykey -X -d K"_s));
    tell({disk(u"A"_s), disk(u"K"_s)});
    click(u"kept"_s);
    EXPECT_EQ(tools_.changes.last(), u"recoverykey --kept 6c2a -d K"_s);
    EXPECT_FALSE(shown<QDialog>(u"recoveryKey"_s));
    EXPECT_FALSE(isAsked());
}

TEST_F(RecoveryKeyTest, ThePageIsSavedAsItsNameSaysAndOnTheDiskItselfOnlyWhenThatIsWanted)
{
    QDir().mkpath(path(u"disk"_s));
    open();
    page(Disks);
    click(u"showKey"_s);
    const auto save = [this](const QString& name) {
        click(u"savePage"_s);
        choose(path(name));
    };
    save(u"page.txt"_s);
    EXPECT_EQ(answer(alertFirstButtonReturn).value(0), localizedString("disksPageOnDiskMessage"));
    EXPECT_FALSE(QFile::exists(path(u"page.txt"_s)));
    save(u"page.txt"_s);
    answer(alertSecondButtonReturn);
    EXPECT_TRUE(QFile::exists(path(u"page.txt"_s)));
    save(u"page"_s);
    answer(alertSecondButtonReturn);
    EXPECT_TRUE(QFile::exists(path(u"page.pdf"_s)));
}

} // namespace quillon
