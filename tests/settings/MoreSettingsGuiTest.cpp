#include "SettingsFixture.h"

#include <QSpinBox>

namespace quillon {

/// The second page of the panel.
class MoreSettings : public SettingsFixture {
protected:
    void openPage()
    {
        open();
        click("moreButton");
    }
    QCheckBox& box(const QString& key) const { return *panel_->findChild<QCheckBox*>(key); }
    QSpinBox* field(const QString& key) const { return panel_->findChild<QSpinBox*>(key + u"Field"_s); }
    bool showsFirstPage() const { return control("enableScheduleCheckmark").isVisible(); }
};

TEST_F(MoreSettings, EverySettingIsShownAsItCountsAndStoredAsAnIntegerOnceTheUserChangesIt)
{
    using namespace settingskeys;
    const QVariant nothing;
    const struct {
        QString key;
        QVariant stored;
        const char* shown; ///< with what stands behind the box
        qlonglong clicked;
    } rows[] = {
        {onlyOnMainsPower, nothing, "-", 1},
        {onlyOnMainsPower, 1LL, "+", 0},
        {stayAwake, nothing, "+", 0},
        {stayAwake, 7LL, "-", 1},
        {startWhenDiskAppears, nothing, "+", 0},
        {tellBeforeStart, nothing, "-", 1},
        {chargeThatSuffices, nothing, "- 50%", 50},
        {chargeThatSuffices, 80LL, "+ 80%", 0},
        {chargeThatSuffices, 101LL, "+ 100%", 0},
        {chargeThatSuffices, 1LL, "+ 1%", 0},
        {chargeThatSuffices, -1LL, "- 50%", 50},
        {minutesAfterWake, nothing, "- 10 min", 10},
        {minutesAfterWake, u"12"_s, "+ 12 min", 0},
        {minutesAfterWake, 1LL, "+ 1 min", 0},
        {minutesAfterWake, 1441LL, "+ 1440 min", 0},
        {daysWithoutBackup, nothing, "+ 10 days", 0},
        {daysWithoutBackup, 0LL, "- 10 days", 10},
        {daysWithoutBackup, 1LL, "+ 1 day", 0},
        {daysWithoutBackup, 1LL << 40, "+ 3650 days", 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE((row.key + u' ' + row.stored.toString()).toStdString());
        defaults_.stored = {{onlyOnMainsPower, 1LL}, {row.key, row.stored}};
        const QVariantMap before = defaults_.stored;
        openPage();
        const QString shown =
            (box(row.key).isChecked() ? u"+ "_s : u"- "_s) + (field(row.key) ? field(row.key)->text() : QString());
        EXPECT_EQ(shown.trimmed().toStdString(), row.shown);
        EXPECT_EQ(stored(row.key), row.stored) << "showing a setting does not store it";
        menuBarUpdates_ = 0;
        click(box(row.key));
        EXPECT_EQ(stored(row.key), QVariant(row.clicked));
        EXPECT_EQ(stored(row.key).metaType(), QMetaType::fromType<qlonglong>());
        EXPECT_EQ(menuBarUpdates_, 1);
        for (const auto& [key, value] : before.asKeyValueRange())
            EXPECT_TRUE(key == row.key || stored(key) == value) << key.toStdString() << " is nobody's to touch";
    }
    int above = 0;
    for (const QString& key : {onlyOnMainsPower, chargeThatSuffices, stayAwake, startWhenDiskAppears, minutesAfterWake,
                               daysWithoutBackup, tellBeforeStart}) {
        EXPECT_GT(box(key).y(), above) << key.toStdString();
        above = box(key).geometry().bottom();
    }
}

TEST_F(MoreSettings, ANumberCountsOnceItIsWholeAndIsOfferedWhereItSaysSomething)
{
    using namespace settingskeys;
    openPage();
    QSpinBox& days = *field(daysWithoutBackup);
    days.setFocus();
    QTest::keyClick(&days, Qt::Key_Up);
    EXPECT_EQ(stored(daysWithoutBackup), QVariant(11LL));
    days.selectAll();
    QTest::keyClicks(&days, u"15"_s);
    EXPECT_EQ(stored(daysWithoutBackup), QVariant(11LL)) << "a day would be too few";
    QTest::keyClick(&days, Qt::Key_Tab);
    EXPECT_EQ(stored(daysWithoutBackup), QVariant(15LL));
    days.setFocus();
    days.selectAll();
    QTest::keyClicks(&days, u"7"_s);
    close();
    EXPECT_EQ(stored(daysWithoutBackup), QVariant(7LL)) << "what was typed last is not lost";

    const auto offered = [&] {
        return QString::number(box(chargeThatSuffices).isEnabled()) +
               QString::number(field(chargeThatSuffices)->isEnabled());
    };
    openPage();
    EXPECT_EQ(offered(), u"00"_s);
    click(box(onlyOnMainsPower));
    EXPECT_EQ(offered(), u"10"_s);
    click(box(chargeThatSuffices));
    EXPECT_EQ(offered(), u"11"_s);
    click(box(onlyOnMainsPower));
    EXPECT_EQ(offered(), u"00"_s);
    EXPECT_EQ(stored(chargeThatSuffices), QVariant(50LL)) << "it counts again with mains power";
}

TEST_F(MoreSettings, EscapeAndBackLeadToTheFirstPageWhichIsWhereThePanelOpens)
{
    using namespace settingskeys;
    open();
    const QSize first = popover_->size();
    EXPECT_FALSE(box(stayAwake).isVisible());
    for (const bool byKeyboard : {true, false}) {
        defaults_.stored[stayAwake] = byKeyboard ? 0LL : 1LL; // by somebody else
        click("moreButton");
        EXPECT_TRUE(box(onlyOnMainsPower).hasFocus() && !showsFirstPage());
        EXPECT_EQ(box(stayAwake).isChecked(), !byKeyboard);
        ASSERT_TRUE(runUntil([&] { return popover_->height() < first.height(); }));
        EXPECT_GE(popover_->width(), first.width());
        if (byKeyboard)
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        else
            click("backButton");
        EXPECT_TRUE(control<QPushButton>("moreButton").hasFocus() && showsFirstPage());
        ASSERT_TRUE(runUntil([&] { return popover_->size() == first; }));
    }
    click("moreButton");
    close();
    show();
    EXPECT_TRUE(showsFirstPage());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_TRUE(runUntil([&] { return !popover_->isVisible(); }));
}

} // namespace quillon
