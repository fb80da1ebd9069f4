#include "LocalizedString.h"
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
    EXPECT_EQ(shownAlertText(), localizedString("loginItemRefusedMessage"));
    answerAlert(u"Close"_s);
}

TEST_F(OptionSettings, AlertsSayWhatTheirButtonIsAboutInTheWordsOfTheSystem)
{
    machine_.destinations.clear();
    for (const auto& [version, settings] :
         {std::pair{"12.6.9", "openSystemPreferencesTitle"}, {"13.0.0", "openSystemPreferencesTitleVentura"}}) {
        const ScopedEnvironment system("QUILLON_SYSTEM_VERSION", version);
        open({{}, {}, {}, {}, {}});
        const struct {
            const char* button;
            QString title, text, firstButton, lastButton;
        } alerts[] = {
            {"warningButton", localizedString("disksDisksTitle"), localizedString("setupNoDiskMessage"),
             localizedString(settings) + u"..."_s, u"Close"_s},
            {"addCalendarIntervalButton", localizedString("maximumRulesReachedTitle"),
             localizedString("maximumRulesReachedMessage").arg(5), u"OK"_s, u"OK"_s},
            {"deleteButton", localizedString("confirmDeleteRuleTitle"), localizedString("confirmDeleteRuleMessage"),
             u"Cancel"_s, u"Delete"_s},
            {"retryAtMissedScheduleHelpButton", localizedString("retryAfterMissedBackupTitle"),
             localizedString("retryAfterMissedBackupMessage"), u"Close"_s, u"Close"_s},
            {"retryAtFailureHelpButton", localizedString("retryAfterFailedBackupTitle"),
             localizedString("retryAfterFailedBackupMessage"), u"Close"_s, u"Close"_s},
        };
        for (const auto& alert : alerts) {
            click(alert.button);
            runLoop_.advance(Seconds(1));
            ASSERT_TRUE(runUntil([&] { return alertButton(alert.firstButton); })) << alert.button << version;
            const QWidget& shown = *alertButton(alert.firstButton)->parentWidget();
            EXPECT_EQ(shown.accessibleName(), alert.title) << alert.button;
            EXPECT_EQ(shownAlertText(), alert.text) << alert.button;
            const QPushButton* last = alertButton(alert.lastButton);
            ASSERT_TRUE(last) << alert.button;
            QTest::keyClick(alertButton(alert.firstButton), Qt::Key_Escape);
            EXPECT_TRUE(runUntil([&] { return !alertButton(alert.firstButton); })) << alert.button << version;
        }
        EXPECT_EQ(stored(settingskeys::calendarIntervals).toList().size(), 5);
        EXPECT_TRUE(workspace_.opened.isEmpty());
    }
}

TEST_F(OptionSettings, EverySwitchHasItsOwnTextAndALetterThatPressesIt)
{
    open();
    const std::pair<const char*, const char*> boxes[] = {
        {"enableScheduleCheckmark", "settingsEnableScheduledBackupsVia"},
        {"enableRetryAtMissedScheduleCheckmark", "settingsEnableAfterMissedBackup"},
        {"enableRetryAtFailureCheckmark", "settingsEnableAfterFailedBackup"},
        {"showRemainingMinutesCheckmark", "settingsShowDetailedTimeInMenuBar"},
        {"showMenuBarIconOnlyCheckmark", "settingsShowMenuBarIconOnly"},
        {"enableMenuBarColorsCheckmark", "settingsDisableIconColors"},
        {"rotateBackupDisksCheckmark", "settingsRotateBackupDisks"},
        {"enableAppAtSystemStartCheckmark", "settingsStartOnSystemStart"}};
    for (const auto& [name, key] : boxes) {
        EXPECT_EQ(control<QAbstractButton>(name).text().remove(u'&'), localizedString(key)) << name;
        EXPECT_TRUE(control<QAbstractButton>(name).text().contains(u'&')) << name;
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
