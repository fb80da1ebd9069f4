#include "DisksFixture.h"

#include <QSpinBox>

namespace quillon {

/// Leaving out by name and by size.
class ExclusionsTest : public DisksWindowFixture {
protected:
    QString preview() const { return panel(u"exclusion"_s)->findChild<QLabel*>(u"preview"_s)->text(); }
    QPushButton* leaveOut() const { return panel(u"exclusion"_s)->findChild<QPushButton*>(u"leaveOut"_s); }
    void type(const QString& name) const { panel(u"exclusion"_s)->findChild<QLineEdit*>()->setText(name); }
    bool eventuallyPreviews(const QString& files, const QString& size) const
    {
        const QString expected = localizedString("disksPreview").arg(files, size);
        return runUntil([&] { return preview() == expected && leaveOut()->isEnabled(); });
    }
};

TEST_F(ExclusionsTest, ANameIsKeptOnceWhatItLeavesOutHasBeenShown)
{
    practice_.write(u"source/a.iso"_s, QByteArray(1500, 'x'));
    practice_.write(u"source/deep/b.iso"_s, QByteArray(500, 'x'));
    open();
    chooseToAdd("disksAddNameTitle");
    ASSERT_TRUE(panel(u"exclusion"_s));
    EXPECT_FALSE(leaveOut()->isEnabled());
    type(u"a.*"_s);
    EXPECT_EQ(preview(), localizedString("disksCounting"));
    ASSERT_TRUE(eventuallyPreviews(u"1"_s, u"1.5 kB"_s));
    type(u"*.iso"_s);
    EXPECT_FALSE(leaveOut()->isEnabled()) << "what was shown is another pattern's";
    ASSERT_TRUE(eventuallyPreviews(u"2"_s, u"2.0 kB"_s));
    type(u"deep/b.iso"_s);
    ASSERT_TRUE(runUntil([this] { return preview().contains(u"is no name"_s); }));
    EXPECT_FALSE(leaveOut()->isEnabled());
    type(u"none"_s);
    ASSERT_TRUE(runUntil([this] { return preview() == localizedString("disksPreviewNothing"); }));
    type(u"*.iso"_s);
    ASSERT_TRUE(eventuallyPreviews(u"2"_s, u"2.0 kB"_s));
    QTest::keyClick(panel(u"exclusion"_s)->findChild<QLineEdit*>(), Qt::Key_Return);
    ASSERT_TRUE(eventuallyShows(Exclusions, {u"*.iso"_s}));

    clickEntry(Exclusions, 0);
    click(Exclusions, localizedString("disksRemoveTitle"));
    EXPECT_TRUE(eventuallyShows(Exclusions, {}));
}

TEST_F(ExclusionsTest, ASizeLikewise)
{
    practice_.write(u"source/large"_s, QByteArray(2'000'001, 'x'));
    open();
    chooseToAdd("disksAddSizeTitle");
    ASSERT_TRUE(panel(u"exclusion"_s));
    panel(u"exclusion"_s)->findChild<QSpinBox*>()->setValue(2);
    ASSERT_TRUE(eventuallyPreviews(u"1"_s, u"2.0 MB"_s));
    QTest::mouseClick(leaveOut(), Qt::LeftButton);
    ASSERT_TRUE(eventuallyShows(Exclusions, {localizedString("disksLargerThan").arg(u"2.0 MB"_s)}));
    clickEntry(Exclusions, 0);
    QTest::keyClick(list(Exclusions), Qt::Key_Delete);
    EXPECT_TRUE(eventuallyShows(Exclusions, {}));
}

} // namespace quillon
