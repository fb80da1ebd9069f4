#include "Alert.h"
#include "LocalizedString.h"
#include "SettingsFixture.h"

#include <QSignalSpy>

namespace quillon {

class OptionSettings : public SettingsFixture {
protected:
    static QImage drawn(QWidget& widget)
    {
        QImage image(widget.size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        widget.render(&image, {}, {}, {});
        return image;
    }
};

TEST_F(OptionSettings, EverySwitchIsStoredAsAnIntegerAtOnceAndTheMenuBarIsToldOfItsOwn)
{
    open();
    const struct {
        const char* box;
        QString key;
        bool atFirst, inMenuBar;
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
        SCOPED_TRACE(item.box);
        EXPECT_EQ(control(item.box).isChecked(), item.atFirst);
        EXPECT_FALSE(stored(item.key).isValid()) << "showing a setting does not store it";
        menuBarUpdates_ = 0;
        for (const bool on : {!item.atFirst, item.atFirst}) {
            click(item.box);
            EXPECT_EQ(stored(item.key), QVariant(on ? 1LL : 0LL));
            EXPECT_EQ(stored(item.key).metaType(), QMetaType::fromType<qlonglong>());
        }
        EXPECT_EQ(menuBarUpdates_, item.inMenuBar ? 2 : 0);
        close();
        defaults_.stored[item.key] = item.atFirst ? 0LL : 1LL;
        show();
        EXPECT_EQ(control(item.box).isChecked(), !item.atFirst) << "changed while the panel was away";
    }
    EXPECT_EQ(loginItem_.calls, (std::vector<bool>{true, false, true})) << "at the first launch, and as the box says";
}

TEST_F(OptionSettings, SwitchingARetryOffCancelsThePendingOne)
{
    for (const char* box : {"enableRetryAtMissedScheduleCheckmark", "enableRetryAtFailureCheckmark"}) {
        open();
        manager_->setRetryBackupDate(local(2026, 11, 21, 10, 6));
        menuBarUpdates_ = 0;
        runLoop_.advance(Seconds(1));
        EXPECT_EQ(nextBackup(), u"Today, 10:06\u202fAM"_s);
        click(box);
        EXPECT_EQ(nextBackup(), u"Today, 12:00\u202fPM"_s);
        manager_->setRetryBackupDate(local(2026, 11, 21, 10, 6));
        click(box);
        EXPECT_TRUE(manager_->retryBackupDate()) << box << ": switching it on does nothing else";
        EXPECT_EQ(menuBarUpdates_, 1);
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

TEST_F(OptionSettings, TheBackupLogIsAskedForByItsButton)
{
    open();
    const QSignalSpy asked(panel_, &SettingsViewController::backupLogButtonPressed);
    click("backupLogButton");
    EXPECT_EQ(asked.count(), 1);
}

TEST_F(OptionSettings, EveryAlertBlocksThePanelSaysItsWordsAndIsLeftByEscapeWithNothingDone)
{
    machine_.destinations.clear();
    loginItem_.accepts = false;
    open({{}, {}, {}, {}, {}});
    const QString settings = localizedString(manager_->openSystemPreferencesTitleLocaleKey());
    const struct {
        const char* opener;
        const char *title, *text;
        QString buttons;
        AlertStyle style = AlertStyle::Informational;
    } alerts[] = {
        {"warningButton", "disksDisksTitle", "setupNoDiskMessage", settings + u"..., Close"_s},
        {"addCalendarIntervalButton", "maximumRulesReachedTitle", "maximumRulesReachedMessage", u"OK"_s,
         AlertStyle::Warning},
        {"deleteButton", "confirmDeleteRuleTitle", "confirmDeleteRuleMessage", u"Cancel, Delete"_s,
         AlertStyle::Critical},
        {"retryAtMissedScheduleHelpButton", "retryAfterMissedBackupTitle", "retryAfterMissedBackupMessage", u"Close"_s},
        {"retryAtFailureHelpButton", "retryAfterFailedBackupTitle", "retryAfterFailedBackupMessage", u"Close"_s},
        {"enableAppAtSystemStartCheckmark", "AlertTitleWarning", "loginItemRefusedMessage", u"Close"_s,
         AlertStyle::Warning},
    };
    for (const auto& alert : alerts) {
        SCOPED_TRACE(alert.opener);
        auto& opener = control<QAbstractButton>(alert.opener);
        opener.setFocus();
        click(opener);
        runLoop_.advance(Seconds(1)); // the tool is asked for the disks before the first says anything
        const QString first = alert.buttons.section(u", "_s, 0, 0);
        ASSERT_TRUE(runUntil([&] { return alertButton(first); }));
        const QWidget& shown = *alertButton(first)->parentWidget();
        QStringList buttons;
        for (const auto* button : shown.findChildren<QPushButton*>())
            buttons.append(button->accessibleName());
        EXPECT_EQ(buttons.join(u", "_s), alert.buttons);
        EXPECT_EQ(shown.accessibleName(), localizedString(alert.title));
        AlertIcon sign(alert.style, nullptr);
        EXPECT_TRUE(drawn(*shown.findChild<AlertIcon*>()) == drawn(sign));
        EXPECT_EQ(shownAlertText(), localizedString(alert.text).replace(u"%1"_s, u"5"_s));
        EXPECT_TRUE(isBlocked() && panel_->shouldDisableUserControls() && !opener.isEnabled());
        QTest::keyClick(alertButton(first), Qt::Key_Escape);
        EXPECT_TRUE(runUntil([&] { return !alertButton(first); }));
        EXPECT_FALSE(isBlocked() || panel_->shouldDisableUserControls());
        EXPECT_TRUE(opener.hasFocus()) << "the keyboard goes on where it was";
    }
    EXPECT_EQ(stored(settingskeys::calendarIntervals).toList().size(), 5);
    EXPECT_TRUE(workspace_.opened.isEmpty());
    EXPECT_TRUE(control("enableAppAtSystemStartCheckmark").isChecked()) << "it is still registered";
    EXPECT_EQ(stored(settingskeys::launchAtSystemStart), QVariant(1LL));
}

TEST_F(OptionSettings, TheAdviceSaysWhereBackupsGoAndLeadsToTimeMachinesSettings)
{
    open();
    click("warningButton");
    click("warningButton"); // an impatient user is told once
    runLoop_.advance(Seconds(1));
    EXPECT_TRUE(shownAlertText().contains(u"First Disk"_s));
    answerAlert(u"Open Time Machine Settings..."_s);
    EXPECT_EQ(workspace_.opened, QList<QUrl>{TimeMachineSettings::address()});
    click("warningButton");
    click("retryAtFailureHelpButton");
    runLoop_.advance(Seconds(1));
    EXPECT_EQ(shownAlertText(), localizedString("retryAfterFailedBackupMessage")) << "the user has turned to it";
    answerAlert(u"Close"_s);
    click("warningButton");
    runLoop_.advance(Seconds(1));
    EXPECT_TRUE(shownAlertText().contains(u"First Disk"_s)) << "it is asked for anew";
    answerAlert(u"Close"_s);
    QApplication::focusWidget()->clearFocus();
    control<QAbstractButton>("retryAtFailureHelpButton").click();
    answerAlert(u"Close"_s); // nothing gets the keyboard back
}

TEST_F(OptionSettings, AnAlertThatOutlivesThePanelIsAnsweredWithoutIt)
{
    open();
    click("retryAtFailureHelpButton");
    popover_.reset();
    answerAlert(u"Close"_s);
}

} // namespace quillon
