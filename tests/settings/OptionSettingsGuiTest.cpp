#include "Alert.h"
#include "Buttons.h"
#include "LocalizedString.h"
#include "SettingsFixture.h"

namespace quillon {

class OptionSettings : public SettingsFixture {
protected:
    static QImage pictureOf(QWidget& sign)
    {
        QImage picture(sign.size(), QImage::Format_RGB32);
        picture.fill(Qt::white);
        sign.render(&picture, {}, {}, {});
        return picture;
    }
};

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
        close();
        defaults_.stored[item.key] = item.atFirst ? 0LL : 1LL;
        show();
        EXPECT_EQ(control(item.box).isChecked(), !item.atFirst) << item.box << ": changed while the panel was away";
    }
}

TEST_F(OptionSettings, SwitchingARetryOffCancelsThePendingOne)
{
    for (const char* box : {"enableRetryAtMissedScheduleCheckmark", "enableRetryAtFailureCheckmark"}) {
        open();
        manager_->setRetryBackupDate(local(2026, 11, 21, 10, 6));
        menuBarUpdates_ = 0;
        click(box);
        EXPECT_FALSE(manager_->retryBackupDate()) << box;
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
    defaults_.stored[settingskeys::showMenuBarIconOnly] = 1LL;
    open();
    for (const bool iconOnly : {true, false, true}) {
        if (control("showMenuBarIconOnlyCheckmark").isChecked() != iconOnly)
            click("showMenuBarIconOnlyCheckmark");
        EXPECT_EQ(control("showRemainingMinutesCheckmark").isEnabled(), !iconOnly);
        EXPECT_EQ(control<QLabel>("showRemainingMinutesDetails").isEnabled(), !iconOnly);
    }
    click("retryAtFailureHelpButton");
    answerAlert(u"Close"_s);
    EXPECT_FALSE(control("showRemainingMinutesCheckmark").isEnabled()) << "also when an alert has been up";
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
    answerAlert(u"Close"_s);
}

TEST_F(OptionSettings, EveryAlertBlocksThePanelSaysItsWordsAndIsLeftByEscapeWithNothingDone)
{
    machine_.destinations.clear();
    loginItem_.accepts = false;
    open({{}, {}, {}, {}, {}});
    const QString settings = localizedString(manager_->openSystemPreferencesTitleLocaleKey());
    using enum AlertStyle;
    const struct {
        const char* opener;
        AlertStyle style;
        const char *title, *text;
        QStringList buttons;
    } alerts[] = {
        {"warningButton", Informational, "disksDisksTitle", "setupNoDiskMessage", {settings + u"..."_s, u"Close"_s}},
        {"addCalendarIntervalButton", Warning, "maximumRulesReachedTitle", "maximumRulesReachedMessage", {u"OK"_s}},
        {"deleteButton", Critical, "confirmDeleteRuleTitle", "confirmDeleteRuleMessage", {u"Cancel"_s, u"Delete"_s}},
        {"retryAtMissedScheduleHelpButton",
         Informational,
         "retryAfterMissedBackupTitle",
         "retryAfterMissedBackupMessage",
         {u"Close"_s}},
        {"retryAtFailureHelpButton",
         Informational,
         "retryAfterFailedBackupTitle",
         "retryAfterFailedBackupMessage",
         {u"Close"_s}},
        {"enableAppAtSystemStartCheckmark", Warning, "AlertTitleWarning", "loginItemRefusedMessage", {u"Close"_s}},
    };
    for (const auto& alert : alerts) {
        SCOPED_TRACE(alert.opener);
        auto& opener = control<QAbstractButton>(alert.opener);
        opener.setFocus();
        click(opener);
        runLoop_.advance(Seconds(1)); // the tool is asked for the disks before the first says anything
        ASSERT_TRUE(runUntil([&] { return alertButton(alert.buttons.first()); }));
        const QWidget& shown = *alertButton(alert.buttons.first())->parentWidget();
        QStringList buttons;
        for (const auto* button : shown.findChildren<QPushButton*>())
            buttons.append(button->accessibleName());
        EXPECT_EQ(buttons, alert.buttons);
        EXPECT_EQ(shown.accessibleName(), localizedString(alert.title));
        EXPECT_EQ(shownAlertText(), localizedString(alert.text).replace(u"%1"_s, u"5"_s));
        AlertIcon sign(alert.style, nullptr);
        EXPECT_EQ(pictureOf(*shown.findChild<AlertIcon*>()), pictureOf(sign));
        EXPECT_TRUE(isBlocked());
        EXPECT_TRUE(panel_->shouldDisableUserControls());
        EXPECT_FALSE(opener.isEnabled());
        QTest::keyClick(alertButton(alert.buttons.first()), Qt::Key_Escape);
        EXPECT_TRUE(runUntil([&] { return !alertButton(alert.buttons.first()); }));
        EXPECT_FALSE(isBlocked());
        EXPECT_FALSE(panel_->shouldDisableUserControls());
        EXPECT_TRUE(opener.hasFocus()) << "the keyboard goes on where it was";
    }
    EXPECT_EQ(stored(settingskeys::calendarIntervals).toList().size(), 5);
    EXPECT_TRUE(workspace_.opened.isEmpty());
}

TEST_F(OptionSettings, TheAdviceSaysWhereBackupsGoAndLeadsToTimeMachinesSettings)
{
    open();
    SignButton sign;
    sign.setAlertStyle(AlertStyle::Informational);
    sign.resize(control<SignButton>("warningButton").size());
    EXPECT_EQ(pictureOf(control<SignButton>("warningButton")), pictureOf(sign));
    click("warningButton");
    clickSetupAdvice(); // an impatient user asks once
    EXPECT_TRUE(shownAlertText().contains(u"First Disk"_s)) << shownAlertText().toStdString();
    answerAlert(u"Open Time Machine Settings..."_s);
    EXPECT_EQ(workspace_.opened, QList<QUrl>{TimeMachineSettings::address()});
    EXPECT_FALSE(isBlocked());
    click("warningButton");
    click("retryAtFailureHelpButton");
    runLoop_.advance(Seconds(1));
    EXPECT_EQ(shownAlertText(), localizedString("retryAfterFailedBackupMessage")) << "the user has turned to it";
    answerAlert(u"Close"_s);
}

TEST_F(OptionSettings, AnAlertThatOutlivesThePanelIsAnsweredWithoutIt)
{
    open();
    click("retryAtFailureHelpButton");
    popover_.reset();
    answerAlert(u"Close"_s);
}

} // namespace quillon
