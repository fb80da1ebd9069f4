#include "SettingsFixture.h"

#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
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

TEST_F(ScheduleSettings, RowsShowTheRulesByTheUsersClockAndLeaveThemAsTheyAre)
{
    const QList<CalendarIntervalRule> rules{{1, 43200, {{u"mine"_s, u"kept"_s}}}, {8, 27931}, {42, 90000}};
    open(rules);
    ASSERT_EQ(rows().size(), 3);
    EXPECT_EQ(dayMenu(0).currentText(), u"every Sunday"_s);
    EXPECT_EQ(picker(0).text(), u"12:00 PM"_s);
    EXPECT_EQ(dayMenu(1).currentText(), u"Monday to Friday"_s);
    EXPECT_EQ(picker(1).text(), u"7:45 AM"_s);
    EXPECT_EQ(dayMenu(2).currentIndex(), -1) << "a day that nobody knows is not shown as another one";
    EXPECT_EQ(picker(2).text(), u"1:00 AM"_s);
    for (const auto& [language, noon] : {std::pair{"en_US.UTF-8", u"12:00 PM"_s},
                                         {"en_US@hours=h23", u"12:00"_s},
                                         {"de_DE.UTF-8", u"12:00"_s},
                                         {"ja_JP@hours=h12", u"午後12:00"_s},
                                         {"zh_TW@hours=h12", u"下午12:00"_s}}) {
        const ScopedEnvironment locale("LC_ALL", language);
        close();
        show();
        EXPECT_EQ(picker(0).text(), noon) << language;
    }
    EXPECT_EQ(storedRules(), CalendarIntervalRule::listToArray(rules));
}

TEST_F(ScheduleSettings, EditsAreStoredPlannedAtOnceAndReadOut)
{
    open({{1, 43200}});
    const std::pair<QString, qlonglong> days[] = {
        {u"every Tuesday"_s, 3},    {u"every Wednesday"_s, 4}, {u"every Thursday"_s, 5},
        {u"every Friday"_s, 6},     {u"every Saturday"_s, 7},  {u"every Sunday"_s, 1},
        {u"Monday to Friday"_s, 8}, {u"every day"_s, 0},       {u"every Monday"_s, 2}};
    for (const auto& [title, day] : days) {
        choose(dayMenu(0), title);
        EXPECT_EQ(storedRules(), QVariantList{rule(day, 43200)}) << title.toStdString();
    }
    EXPECT_EQ(deleteButton(0).accessibleDescription(), u"Back up every Monday at 12:00 PM"_s);
    EXPECT_EQ(nextBackup(), u"Monday, November 23, 2026, 12:00\u202fPM"_s);
    picker(0).setFocus();
    picker(0).setSelectedSection(QDateTimeEdit::HourSection); // as the Tab key does
    QTest::keyClicks(&picker(0), u"745AM"_s);
    EXPECT_EQ(storedRules(), QVariantList{rule(2, 27900)});
    EXPECT_EQ(deleteButton(0).accessibleDescription(), u"Back up every Monday at 7:45 AM"_s);
    EXPECT_EQ(nextBackup(), u"Monday, November 23, 2026, 7:45\u202fAM"_s);
}

TEST_F(ScheduleSettings, FiveRulesAreSeenAtOnceASixthIsRefusedAndThoseOfAnotherHandAreScrolled)
{
    open({{}, {}, {}, {}});
    auto& add = control<QPushButton>("addCalendarIntervalButton");
    add.setFocus();
    QTest::keyClick(&add, Qt::Key_Space);
    ASSERT_EQ(rows().size(), 5);
    EXPECT_TRUE(dayMenu(4).hasFocus()) << "a rule added by keyboard has the keyboard";
    QCoreApplication::processEvents();
    for (int row = 1; row < 5; ++row)
        EXPECT_LT(rows()[row - 1]->y(), rows()[row]->y());
    EXPECT_EQ(storedRules().last().toMap(), rule(0, 43200));
    click(add);
    answerAlert(u"OK"_s);
    EXPECT_EQ(rows().size(), 5);
    for (const int count : {5, 6}) {
        open(QList<CalendarIntervalRule>(count));
        const auto& table = control<QScrollArea>("calendarIntervalTable");
        const int scrollBar = count > 5 ? table.verticalScrollBar()->width() : 0;
        EXPECT_EQ(table.verticalScrollBar()->isVisible(), count > 5);
        EXPECT_EQ(table.sizeHint().width(), rows().first()->sizeHint().width() + scrollBar);
        EXPECT_EQ(table.widget()->width(), table.width() - scrollBar);
        EXPECT_NEAR(table.viewport()->height(), 5 * rows().first()->height(), 6);
    }
}

TEST_F(ScheduleSettings, ARuleIsDeletedOnlyWhenTheUserConfirmsItAndTheLastOneGoesWithItsOwnButton)
{
    open({{2, 3600}, {3, 7200}, {4, 10800}});
    const int height = panel_->height();
    click(deleteButton(1));
    EXPECT_FALSE(dayMenu(0).isEnabled() || control("enableScheduleCheckmark").isEnabled());
    answerAlert(u"Cancel"_s);
    EXPECT_EQ(storedRules().size(), 3);
    click(deleteButton(1));
    answerAlert(u"Delete"_s);
    EXPECT_EQ(storedRules(), (QVariantList{rule(2, 3600), rule(4, 10800)}));
    ASSERT_EQ(rows().size(), 2);
    EXPECT_TRUE(deleteButton(1).hasFocus());
    deleteButton(0).setFocus();
    QTest::keyClick(&deleteButton(0), Qt::Key_Tab);
    EXPECT_TRUE(dayMenu(1).hasFocus());
    EXPECT_EQ(dayMenu(1).currentText(), u"every Wednesday"_s);
    choose(dayMenu(1), u"every Thursday"_s);
    EXPECT_EQ(storedRules().last().toMap(), rule(5, 10800)) << "rows belong to the rules that are left";
    click(deleteButton(1));
    answerAlert(u"Delete"_s);
    const QPointer<QAbstractButton> sender(&deleteButton(0));
    click(*sender);
    answerAlert(u"Delete"_s);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(sender);
    EXPECT_TRUE(control<QPushButton>("addCalendarIntervalButton").hasFocus());
    EXPECT_EQ(panel_->height(), height);
    EXPECT_TRUE(storedRules().isEmpty());
    EXPECT_EQ(nextBackup(), u"No backup is scheduled"_s);
    click("addCalendarIntervalButton");
    EXPECT_EQ(rows().size(), 1);
}

TEST_F(ScheduleSettings, RulesThatAreEditedElsewhereAreShownAtOnceAndNoOtherIsDeletedForOneThatIsGone)
{
    open({{2, 3600}, {3, 7200}});
    click(deleteButton(1));
    manager_->deleteBackupScheduleAtIndex(0);
    manager_->addNewSchedule({4, 10800});
    notifications_.post(notifications::rulesChanged);
    EXPECT_EQ(dayMenu(1).currentText(), u"every Wednesday"_s);
    answerAlert(u"Delete"_s);
    EXPECT_EQ(storedRules(), (QVariantList{rule(3, 7200), rule(4, 10800)}));
}

TEST_F(ScheduleSettings, TheNextBackupFollowsTheModelAndTheClockWhileThePanelIsOpen)
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
    close();
    runLoop_.advance(Seconds(86400));
    EXPECT_EQ(nextBackup(), u"Today, 10:01\u202fAM"_s) << "nobody sees it";
}

TEST_F(ScheduleSettings, SwitchingTheScheduleOffShowsInThePanelAndInTheMenuBar)
{
    open();
    auto& warning = control<QWidget>("warningButton");
    EXPECT_TRUE(warning.isVisible());
    click("enableScheduleCheckmark");
    EXPECT_EQ(stored(settingskeys::enableSchedule), QVariant(0LL));
    EXPECT_EQ(menuBarUpdates_, 1);
    EXPECT_EQ(nextBackup(), u"Disabled"_s);
    EXPECT_FALSE(warning.isVisible());
    choose(dayMenu(0), u"every Monday"_s);
    EXPECT_EQ(nextBackup(), u"Disabled"_s) << "although a rule was edited";
    menuBarUpdates_ = 0;
    close();
    EXPECT_EQ(menuBarUpdates_, 1) << "as the panel goes";
    show();
    EXPECT_FALSE(warning.isVisible() || control("enableScheduleCheckmark").isChecked());
    click("enableScheduleCheckmark");
    EXPECT_EQ(stored(settingskeys::enableSchedule), QVariant(1LL));
    EXPECT_EQ(nextBackup(), u"Monday, November 23, 2026, 12:00\u202fPM"_s);
    EXPECT_TRUE(warning.isVisible());
    close();
    manager_->setIsScheduleEnabled(false);
    show();
    EXPECT_FALSE(control("enableScheduleCheckmark").isChecked() || warning.isVisible()) << "it was switched elsewhere";
}

TEST_F(ScheduleSettings, TheWheelChangesNothingThatItPassesOver)
{
    open();
    for (QWidget* target : {static_cast<QWidget*>(&dayMenu(0)), static_cast<QWidget*>(&picker(0)),
                            &control<QWidget>("schedulePopup"), &control<QWidget>("scheduleIntervalValueStepper")}) {
        for (const bool hasFocus : {false, true}) {
            (hasFocus ? target : &control("rotateBackupDisksCheckmark"))->setFocus();
            const QPointF middle = QRectF(target->rect()).center();
            QWheelEvent wheel(middle, target->mapToGlobal(middle), {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
            QApplication::sendEvent(target, &wheel);
            EXPECT_EQ(wheel.isAccepted(), hasFocus || !target->isVisible()) << target->objectName().toStdString();
        }
        EXPECT_FALSE(target->focusPolicy() & ~Qt::StrongFocus) << "the wheel brings no focus along";
    }
    EXPECT_NE(dayMenu(0).currentIndex(), 0) << "it does where the keyboard is";
}

TEST_F(ScheduleSettings, TheIntervalPageKeepsItsControlsInStepAndDrivesNothing)
{
    open();
    choose(control<QComboBox>("schedulePopup"), u"interval"_s);
    EXPECT_EQ(control<QStackedWidget>("scheduleTab").currentIndex(), 1);
    EXPECT_EQ(control<QLabel>("scheduleLabel").height(), control<QLabel>("intervalLabel").height()) << "on one line";
    auto& field = control<QLineEdit>("scheduleIntervalValueTextField");
    auto& stepper = control<QSpinBox>("scheduleIntervalValueStepper");
    const auto expect = [&](int value) {
        EXPECT_EQ(field.text(), QString::number(value));
        EXPECT_EQ(stepper.value(), value);
        EXPECT_EQ(panel_->scheduleIntervalValue(), value);
        EXPECT_EQ(control<QLabel>("intervalUnit").text(), value == 1 ? u"hour"_s : u"hours"_s);
    };
    EXPECT_GT(field.width(), field.minimumSizeHint().width() + field.fontMetrics().horizontalAdvance(u"00"_s));
    expect(2);
    QTest::keyClick(&stepper, Qt::Key_Up);
    expect(3);
    for (const auto& [typed, value] : {std::pair{u"1"_s, 1}, {u"24"_s, 24}, {u"0"_s, 24}, {u"25"_s, 2}, {u"x"_s, 2}}) {
        SCOPED_TRACE(typed.toStdString());
        field.setFocus();
        field.selectAll();
        QTest::keyClick(&field, Qt::Key_Delete);
        QTest::keyClicks(&field, typed);
        EXPECT_TRUE(typed.toInt() != value || panel_->scheduleIntervalValue() == value) << "at once";
        QTest::keyClick(&field, Qt::Key_Return);
        expect(value);
    }
    EXPECT_EQ(storedRules(), QVariantList{rule(0, 43200)});
}

} // namespace quillon
