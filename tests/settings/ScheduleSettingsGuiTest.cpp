#include "SettingsFixture.h"

#include <QPointer>
#include <QPushButton>
#include <QSpinBox>
#include <QStackedWidget>
#include <QWheelEvent>

namespace quillon {

class ScheduleSettings : public SettingsFixture {
protected:
    QVariantList storedRules() const { return stored(settingskeys::calendarIntervals).toList(); }
    QComboBox& dayMenu(int row) const { return inRow<QComboBox>(row, "calendarIntervalDayPopupButton"); }
    QTimeEdit& picker(int row) const { return inRow<QTimeEdit>(row, "calendarIntervalDatePicker"); }
    QAbstractButton& deleteButton(int row) const { return inRow<QAbstractButton>(row, "deleteButton"); }
};

TEST_F(ScheduleSettings, RowsShowTheRulesAndLeaveThemAsTheyAre)
{
    const QList<CalendarIntervalRule> rules{{1, 43200, {{u"mine"_s, u"kept"_s}}}, {8, 27931}, {42, 90000}};
    open(rules);
    ASSERT_EQ(rows().size(), 3);
    EXPECT_EQ(dayMenu(0).currentText(), u"every Sunday"_s);
    EXPECT_EQ(picker(0).text(), u"12:00 PM"_s);
    EXPECT_EQ(dayMenu(1).currentText(), u"Monday to Friday"_s);
    EXPECT_EQ(picker(1).time(), QTime(7, 45)) << "seconds are not shown";
    EXPECT_EQ(dayMenu(2).currentIndex(), -1) << "a day that nobody knows is not shown as another one";
    EXPECT_EQ(picker(2).time(), QTime(1, 0)) << "whole days are dropped, as the schedule does";
    close();
    show();
    EXPECT_EQ(storedRules(), CalendarIntervalRule::listToArray(rules));
}

TEST_F(ScheduleSettings, EditsAreStoredAsIntegersAndPlannedAtOnce)
{
    open({{1, 43200}});
    choose(dayMenu(0), u"every Monday"_s);
    EXPECT_EQ(storedRules(), QVariantList{rule(2, 43200)});
    type(picker(0), u"745AM"_s);
    EXPECT_EQ(storedRules(), QVariantList{rule(2, 27900)});
    const QVariantMap edited = storedRules().first().toMap();
    for (const auto& key : {u"day"_s, u"time"_s})
        EXPECT_EQ(edited[key].metaType(), QMetaType::fromType<qlonglong>());
    EXPECT_EQ(manager_->nextScheduledBackupDate(), local(2026, 11, 23, 7, 45));
    EXPECT_TRUE(manager_->startBackupTimer().isValid());
    EXPECT_EQ(nextBackup(), u"Monday, November 23, 2026, 7:45\u202fAM"_s);
}

TEST_F(ScheduleSettings, HalvesOfTheDayAreChangedByArrowsAndLettersWhereverTheyStand)
{
    const struct {
        const char* locale;
        QString morning;
        QString afternoon;
    } table[] = {
        {"en_US.UTF-8", u"9:05 AM"_s, u"9:05 PM"_s},       {"en_AU.UTF-8", u"9:05 am"_s, u"9:05 pm"_s},
        {"ko_KR.UTF-8", u"오전 9:05"_s, u"오후 9:05"_s},   {"zh_TW.UTF-8", u"上午9:05"_s, u"下午9:05"_s},
        {"ja_JP@hours=h12", u"午前9:05"_s, u"午後9:05"_s},
    };
    for (const auto& [name, morning, afternoon] : table) {
        const ScopedEnvironment locale("LC_ALL", name);
        open({{0, 9 * 3600 + 5 * 60}});
        EXPECT_EQ(picker(0).text(), morning) << name;
        picker(0).setFocus();
        picker(0).setSelectedSection(QDateTimeEdit::AmPmSection);
        for (const auto& [key, shown] : {std::pair{Qt::Key_Up, afternoon},
                                         {Qt::Key_Up, morning},
                                         {Qt::Key_Down, afternoon},
                                         {Qt::Key_Down, morning},
                                         {Qt::Key_P, afternoon},
                                         {Qt::Key_P, afternoon},
                                         {Qt::Key_A, morning}}) {
            QTest::keyClick(&picker(0), key);
            EXPECT_EQ(picker(0).text(), shown) << name << ' ' << key;
            const qlonglong hour = shown == morning ? 9 : 21;
            EXPECT_EQ(storedRules(), QVariantList{rule(0, hour * 3600 + 300)}) << name << ' ' << key;
        }
        picker(0).setSelectedSection(QDateTimeEdit::HourSection);
        QTest::keyClick(&picker(0), Qt::Key_Up);
        EXPECT_EQ(storedRules(), QVariantList{rule(0, 10 * 3600 + 300)}) << name;
    }
}

TEST_F(ScheduleSettings, TheSixthRuleIsRefusedAndTheFifthIsNot)
{
    open({{}, {}, {}, {}});
    click("addCalendarIntervalButton");
    ASSERT_EQ(rows().size(), 5);
    EXPECT_EQ(storedRules().last().toMap(), rule(0, 43200));
    EXPECT_EQ(control<QScrollArea>("calendarIntervalTable").widget()->visibleRegion().boundingRect().height(),
              control<QScrollArea>("calendarIntervalTable").widget()->height())
        << "five rules are seen without scrolling";
    click("addCalendarIntervalButton");
    EXPECT_TRUE(isBlocked());
    answerAlert(u"OK"_s);
    EXPECT_FALSE(isBlocked());
    EXPECT_EQ(rows().size(), 5);
    EXPECT_EQ(storedRules().size(), 5);
}

TEST_F(ScheduleSettings, ARuleIsDeletedOnlyWhenTheUserConfirmsIt)
{
    open({{2, 3600}, {3, 7200}, {4, 10800}});
    click(deleteButton(1));
    EXPECT_TRUE(isBlocked());
    EXPECT_FALSE(dayMenu(0).isEnabled());
    EXPECT_FALSE(control("enableScheduleCheckmark").isEnabled());
    answerAlert(u"Cancel"_s);
    EXPECT_EQ(storedRules().size(), 3);
    EXPECT_FALSE(isBlocked());
    EXPECT_TRUE(dayMenu(0).isEnabled());
    EXPECT_TRUE(deleteButton(1).hasFocus()) << "the keyboard goes on where it was";
    click(deleteButton(1));
    ASSERT_TRUE(runUntil([] { return alertButton(u"Delete"_s); }));
    QTest::keyClick(alertButton(u"Delete"_s), Qt::Key_Escape);
    EXPECT_TRUE(runUntil([] { return !alertButton(u"Delete"_s); }));
    EXPECT_EQ(storedRules().size(), 3);

    click(deleteButton(1));
    answerAlert(u"Delete"_s);
    EXPECT_EQ(storedRules(), (QVariantList{rule(2, 3600), rule(4, 10800)}));
    ASSERT_EQ(rows().size(), 2);
    EXPECT_EQ(dayMenu(1).currentText(), u"every Wednesday"_s);
    choose(dayMenu(1), u"every Thursday"_s);
    EXPECT_EQ(storedRules().last().toMap(), rule(5, 10800)) << "rows belong to the rules that are left";
}

TEST_F(ScheduleSettings, TheLastRowGoesAwayWithItsOwnButton)
{
    open();
    const QPointer<QAbstractButton> sender(&deleteButton(0));
    click(*sender);
    answerAlert(u"Delete"_s);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(sender);
    EXPECT_TRUE(stored(settingskeys::calendarIntervals).isValid()) << "an empty list, not the default rule";
    EXPECT_TRUE(storedRules().isEmpty());
    EXPECT_EQ(nextBackup(), u"No backup is scheduled"_s);
    EXPECT_FALSE(manager_->startBackupTimer().isValid());
    click("addCalendarIntervalButton");
    EXPECT_EQ(rows().size(), 1);
}

TEST_F(ScheduleSettings, TheNextBackupFollowsTheModelAndTheClock)
{
    open({{0, 10 * 3600 + 60}});
    EXPECT_EQ(nextBackup(), u"Today, 10:01\u202fAM"_s);
    manager_->setRetryBackupDate(local(2026, 11, 21, 10, 0, 30));
    runLoop_.advance(Seconds(1));
    EXPECT_EQ(nextBackup(), u"Today, 10:00\u202fAM"_s);
    runLoop_.advanceTo(local(2026, 11, 21, 10, 1, 2));
    EXPECT_EQ(nextBackup(), u"Tomorrow, 10:01\u202fAM"_s) << "the backup has started";
    runLoop_.stepWallClock(Seconds(14 * 3600));
    runLoop_.advance(Seconds(1));
    EXPECT_EQ(nextBackup(), u"Today, 10:01\u202fAM"_s) << "another day";
}

TEST_F(ScheduleSettings, SwitchingTheScheduleOffShowsInThePanelAndInTheMenuBar)
{
    open();
    auto& warning = control<QWidget>("warningButton");
    EXPECT_TRUE(warning.isVisible());
    click("enableScheduleCheckmark");
    EXPECT_EQ(stored(settingskeys::enableSchedule), QVariant(0LL));
    EXPECT_FALSE(manager_->isScheduleEnabled());
    EXPECT_EQ(nextBackup(), u"Disabled"_s);
    EXPECT_FALSE(warning.isVisible());
    EXPECT_EQ(menuBarUpdates_, 1);
    choose(dayMenu(0), u"every Monday"_s);
    EXPECT_EQ(nextBackup(), u"Disabled"_s) << "although a rule was edited";
    click("enableScheduleCheckmark");
    EXPECT_EQ(stored(settingskeys::enableSchedule), QVariant(1LL));
    EXPECT_EQ(nextBackup(), u"Monday, November 23, 2026, 12:00\u202fPM"_s);
    EXPECT_TRUE(warning.isVisible());
    close();
    EXPECT_EQ(menuBarUpdates_, 3) << "once more as the panel goes";
}

TEST_F(ScheduleSettings, ThePanelComesBackAsItWasLeftInTheMiddleOfAnEdit)
{
    open();
    type(picker(0), u"1"_s);
    close();
    show();
    const int seconds = SettingsViewController::secondsSinceMidnightFromDate(picker(0).time());
    EXPECT_EQ(storedRules(), QVariantList{rule(0, seconds)}) << "what is shown is what is stored";
    type(picker(0), u"930PM"_s);
    EXPECT_EQ(storedRules(), QVariantList{rule(0, 77400)});
}

TEST_F(ScheduleSettings, DigitsFillTheTimeFromItsHoursOn)
{
    const struct {
        const char* locale;
        QString keys;
        QTime time;
    } table[] = {
        {"en_US.UTF-8", u"0815"_s, {20, 15}}, {"en_US.UTF-8", u"130"_s, {13, 30}}, {"en_US.UTF-8", u"1215A"_s, {0, 15}},
        {"de_DE.UTF-8", u"0815"_s, {8, 15}},  {"de_DE.UTF-8", u"130"_s, {13, 0}},  {"de_DE.UTF-8", u"245"_s, {2, 45}},
        {"de_DE.UTF-8", u"97"_s, {9, 7}},     {"ko_KR.UTF-8", u"130"_s, {13, 30}},
    };
    for (const auto& [locale, keys, time] : table) {
        const ScopedEnvironment language("LC_ALL", locale);
        open({{0, 12 * 3600 + 45 * 60}});
        picker(0).setFocus();
        QTest::keyClick(&picker(0), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(&picker(0), keys);
        EXPECT_EQ(picker(0).time(), time) << locale << ' ' << keys.toStdString();
        EXPECT_EQ(storedRules(), QVariantList{rule(0, QTime(0, 0).secsTo(time))})
            << locale << ' ' << keys.toStdString();
    }
}

TEST_F(ScheduleSettings, ARuleAddedByKeyboardHasTheKeyboard)
{
    open();
    auto& add = control<QPushButton>("addCalendarIntervalButton");
    add.setFocus();
    QTest::keyClick(&add, Qt::Key_Space);
    ASSERT_EQ(rows().size(), 2);
    EXPECT_TRUE(dayMenu(1).hasFocus());
}

TEST_F(ScheduleSettings, WhatIsTypedReplacesThePartOfTheTimeThatWasClickedOn)
{
    for (const auto& [locale, keys] : {std::pair{"en_US.UTF-8", u"0745AM"_s}, {"de_DE.UTF-8", u"0745"_s}}) {
        const ScopedEnvironment language("LC_ALL", locale);
        open();
        auto* field = picker(0).findChild<QLineEdit*>();
        QTest::mouseClick(field, Qt::LeftButton, {}, QPoint(3, field->height() / 2));
        QTest::keyClicks(&picker(0), keys);
        EXPECT_EQ(storedRules(), QVariantList{rule(0, 27900)}) << locale;
        QTest::keyClick(&picker(0), Qt::Key_Home);
        QTest::keyClick(&picker(0), Qt::Key_Right);
        QTest::keyClicks(&picker(0), u"30"_s);
        EXPECT_EQ(storedRules(), QVariantList{rule(0, 27000)}) << locale;
        QTest::keyClick(&picker(0), Qt::Key_End);
        QTest::keyClick(&picker(0), Qt::Key_Left);
        QTest::keyClick(&picker(0), Qt::Key_Home);
        QTest::keyClicks(&picker(0), u"09"_s + keys.mid(2));
        EXPECT_EQ(storedRules(), QVariantList{rule(0, 35100)}) << locale;
    }
}

TEST_F(ScheduleSettings, TheWheelChangesNothingThatItPassesOver)
{
    open();
    for (QWidget* target : {static_cast<QWidget*>(&dayMenu(0)), static_cast<QWidget*>(&picker(0)),
                            &control<QWidget>("schedulePopup"), &control<QWidget>("scheduleIntervalValueStepper")}) {
        control("rotateBackupDisksCheckmark").setFocus();
        const QPointF middle = QRectF(target->rect()).center();
        QWheelEvent wheel(middle, target->mapToGlobal(middle), {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
        QApplication::sendEvent(target, &wheel);
    }
    EXPECT_EQ(storedRules(), QVariantList{rule(0, 43200)});
    EXPECT_EQ(control<QComboBox>("schedulePopup").currentIndex(), 0);
    EXPECT_EQ(panel_->scheduleIntervalValue(), 2);
}

TEST_F(ScheduleSettings, TheIntervalPageKeepsItsControlsInStepAndSaysThatItDrivesNothing)
{
    open();
    auto& page = control<QStackedWidget>("scheduleTab");
    choose(control<QComboBox>("schedulePopup"), u"interval"_s);
    EXPECT_EQ(page.currentIndex(), 1);
    const auto middleOf = [this](const char* label) {
        const auto& widget = control<QLabel>(label);
        return widget.mapTo(panel_, widget.rect().center()).y();
    };
    EXPECT_EQ(middleOf("scheduleLabel"), middleOf("intervalLabel")) << "caption and row stand on one line";
    EXPECT_TRUE(control<QLabel>("intervalNote").text().contains(u"not in use"_s));
    auto& field = control<QLineEdit>("scheduleIntervalValueTextField");
    auto& stepper = control<QSpinBox>("scheduleIntervalValueStepper");
    EXPECT_EQ(field.text(), u"2"_s);
    QTest::keyClick(&stepper, Qt::Key_Up);
    EXPECT_EQ(field.text(), u"3"_s);
    for (const auto& [typed, unit] : {std::pair{u"1"_s, u"hour"_s}, {u"24"_s, u"hours"_s}}) {
        field.setFocus();
        field.selectAll();
        QTest::keyClicks(&field, typed);
        EXPECT_EQ(control<QLabel>("intervalUnit").text(), unit);
    }
    EXPECT_EQ(stepper.value(), 24);
    QTest::keyClick(&stepper, Qt::Key_Up);
    EXPECT_EQ(stepper.value(), 24) << "a day at most";
    for (const auto& nonsense : {u"0"_s, u"99"_s, u"x"_s, u"-5"_s, u""_s}) {
        field.selectAll();
        QTest::keyClick(&field, Qt::Key_Delete);
        QTest::keyClicks(&field, nonsense);
        QTest::keyClick(&field, Qt::Key_Return);
        EXPECT_EQ(field.text(), QString::number(panel_->scheduleIntervalValue())) << nonsense.toStdString();
        EXPECT_EQ(stepper.value(), panel_->scheduleIntervalValue());
    }
    EXPECT_EQ(storedRules(), QVariantList{rule(0, 43200)});
    EXPECT_EQ(nextBackup(), u"Today, 12:00\u202fPM"_s);
}

TEST_F(ScheduleSettings, TheAdviceSaysWhereBackupsGoAndLeadsToTimeMachinesSettings)
{
    open();
    click("warningButton");
    clickSetupAdvice(); // an impatient user asks once
    EXPECT_TRUE(shownAlertText().contains(u"First Disk"_s)) << shownAlertText().toStdString();
    answerAlert(u"Close"_s);
    EXPECT_TRUE(workspace_.opened.isEmpty());
    EXPECT_FALSE(isBlocked());
    clickSetupAdvice();
    answerAlert(u"Open Time Machine Settings..."_s);
    EXPECT_EQ(workspace_.opened, QList<QUrl>{TMUtil::settingsAddress()});
    EXPECT_FALSE(isBlocked());
}

} // namespace quillon
