#include "SettingsFixture.h"

namespace quillon {

class OptionSettings : public SettingsFixture {};

TEST_F(OptionSettings, EverySwitchIsStoredAsAnIntegerAtOnceAndTheMenuBarIsToldOfItsOwn)
{
    open();
    const struct {
        const char* box;
        QString key;
        bool atFirst;
        bool inMenuBar;
    } switches[] = {
        {"enableRetryAtMissedScheduleCheckmark", settingskeys::enableRetryAtMissedSchedule, true, false},
        {"enableRetryAtFailureCheckmark", settingskeys::enableRetryAtFailure, true, false},
        {"showRemainingMinutesCheckmark", settingskeys::showDetailedTime, true, true},
        {"showMenuBarIconOnlyCheckmark", settingskeys::showMenuBarIconOnly, false, true},
        {"enableMenuBarColorsCheckmark", settingskeys::enableMenuBarColors, true, true},
        {"rotateBackupDisksCheckmark", settingskeys::rotateBackupDisks, true, false},
        {"enableAppAtSystemStartCheckmark", settingskeys::launchAtSystemStart, true, false},
    };
    for (const auto& item : switches) {
        EXPECT_EQ(control(item.box).isChecked(), item.atFirst) << item.box;
        EXPECT_FALSE(stored(item.key).isValid()) << item.box << ": showing a setting does not store it";
        menuBarUpdates_ = 0;
        for (const bool on : {!item.atFirst, item.atFirst}) {
            click(item.box);
            EXPECT_EQ(stored(item.key), QVariant(on ? 1LL : 0LL)) << item.box;
            EXPECT_EQ(stored(item.key).metaType(), QMetaType::fromType<qlonglong>()) << item.box;
        }
        EXPECT_EQ(menuBarUpdates_, item.inMenuBar ? 2 : 0) << item.box;
    }
}

TEST_F(OptionSettings, ThePanelShowsWhatIsStoredEachTimeItOpens)
{
    defaults_.stored[settingskeys::rotateBackupDisks] = 0LL;
    open();
    EXPECT_FALSE(control("rotateBackupDisksCheckmark").isChecked());
    close();
    defaults_.stored[settingskeys::rotateBackupDisks] = 1LL;
    show();
    EXPECT_TRUE(control("rotateBackupDisksCheckmark").isChecked());
}

TEST_F(OptionSettings, SwitchingARetryOffCancelsThePendingOne)
{
    for (const char* box : {"enableRetryAtMissedScheduleCheckmark", "enableRetryAtFailureCheckmark"}) {
        open();
        manager_->setRetryBackupDate(local(2026, 11, 21, 10, 6));
        menuBarUpdates_ = 0;
        click(box);
        EXPECT_FALSE(manager_->retryBackupDate()) << box;
        EXPECT_EQ(manager_->nextScheduledBackupDate(), local(2026, 11, 21, 12)) << box;
        EXPECT_EQ(nextBackup(), u"Today, 12:00\u202fPM"_s);
        EXPECT_EQ(menuBarUpdates_, 1);
        manager_->setRetryBackupDate(local(2026, 11, 21, 10, 6));
        click(box);
        EXPECT_TRUE(manager_->retryBackupDate()) << box << ": switching it on does nothing else";
        EXPECT_EQ(menuBarUpdates_, 1);
        close();
    }
}

TEST_F(OptionSettings, IconOnlyLeavesNothingToSayAboutDetailedTimes)
{
    open();
    click("showMenuBarIconOnlyCheckmark");
    EXPECT_FALSE(control("showRemainingMinutesCheckmark").isEnabled());
    EXPECT_FALSE(control<QLabel>("showRemainingMinutesDetails").isEnabled());
    click("retryAtFailureHelpButton");
    answerAlert(u"Close"_s);
    EXPECT_FALSE(control("showRemainingMinutesCheckmark").isEnabled()) << "also when an alert has been up";
    click("showMenuBarIconOnlyCheckmark");
    EXPECT_TRUE(control("showRemainingMinutesCheckmark").isEnabled());
    EXPECT_TRUE(control<QLabel>("showRemainingMinutesDetails").isEnabled());
}

TEST_F(OptionSettings, ColorsAreOffWhereTheSystemHasNone)
{
    const ScopedEnvironment bigSur("QUILLON_SYSTEM_VERSION", "11.7.10");
    defaults_.stored[settingskeys::enableMenuBarColors] = 1LL;
    open();
    EXPECT_FALSE(control("enableMenuBarColorsCheckmark").isChecked());
    EXPECT_FALSE(control("enableMenuBarColorsCheckmark").isEnabled());
    EXPECT_EQ(stored(settingskeys::enableMenuBarColors), QVariant(1LL));
}

TEST_F(OptionSettings, LogInRegistrationFollowsTheBoxAndTheBoxFollowsTheSystem)
{
    open();
    loginItem_.calls.clear();
    click("enableAppAtSystemStartCheckmark");
    click("enableAppAtSystemStartCheckmark");
    EXPECT_EQ(loginItem_.calls, (std::vector<bool>{false, true}));
    loginItem_.accepts = false;
    click("enableAppAtSystemStartCheckmark");
    EXPECT_TRUE(control("enableAppAtSystemStartCheckmark").isChecked()) << "it is still registered";
    EXPECT_EQ(stored(settingskeys::launchAtSystemStart), QVariant(1LL));
}

TEST_F(OptionSettings, HelpButtonsExplainTheirOwnSwitchAndBlockThePanelMeanwhile)
{
    open();
    for (const auto& [button, title] : {std::pair{"retryAtMissedScheduleHelpButton", u"Retry After a Missed Backup"_s},
                                        {"retryAtFailureHelpButton", u"Retry After a Failed Backup"_s}}) {
        click(button);
        ASSERT_TRUE(runUntil([] { return alertButton(u"Close"_s); }));
        EXPECT_EQ(alertButton(u"Close"_s)->parentWidget()->accessibleName(), title);
        EXPECT_TRUE(isBlocked());
        EXPECT_TRUE(panel_->shouldDisableUserControls());
        QTest::mouseClick(&control("rotateBackupDisksCheckmark"), Qt::LeftButton);
        EXPECT_TRUE(control("rotateBackupDisksCheckmark").isChecked());
        EXPECT_TRUE(popover_->isShown()) << "a click on the panel is no click elsewhere";
        answerAlert(u"Close"_s);
        EXPECT_FALSE(isBlocked());
        EXPECT_TRUE(control("rotateBackupDisksCheckmark").isEnabled());
    }
}

TEST_F(OptionSettings, AnAlertThatOutlivesThePanelIsAnsweredWithoutIt)
{
    open();
    click("retryAtFailureHelpButton");
    popover_.reset();
    answerAlert(u"Close"_s);
}

} // namespace quillon
