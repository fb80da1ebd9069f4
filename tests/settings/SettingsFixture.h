#pragma once

#include "DataManager.h"
#include "FakeServices.h"
#include "LocalDates.h"
#include "MemoryDefaults.h"
#include "Popover.h"
#include "ScopedEnvironment.h"
#include "SettingsViewController.h"
#include "ShownAlerts.h"
#include "SimulatedTimeMachine.h"
#include "StoredAndSent.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QScrollArea>
#include <QTimeEdit>

#include <memory>

namespace quillon {

using namespace Qt::StringLiterals;

/// The settings panel in its popover, on a Saturday at ten in the morning.
class SettingsFixture : public testing::Test {
protected:
    SettingsFixture()
    {
        notifications_.addObserver(notifications::shouldUpdateStatusBar, &observer_,
                                   [this](const QVariantMap&) { ++menuBarUpdates_; });
    }
    void TearDown() override
    {
        if (popover_)
            close();
    }

    /// Starts the program with these rules and opens the panel.
    void open(const QList<CalendarIntervalRule>& rules = {{}})
    {
        popover_.reset();
        defaults_.stored[settingskeys::calendarIntervals] = CalendarIntervalRule::listToArray(rules);
        manager_ =
            std::make_unique<DataManager>(DataManager::Services{runLoop_, defaults_, notifications_, loginItem_});
        popover_ = std::make_unique<Popover>();
        panel_ = new SettingsViewController(
            {runLoop_, defaults_, notifications_, *manager_, loginItem_, tmutil_, workspace_, alerts_});
        popover_->setContentView(panel_);
        popover_->setBehavior(PopoverBehavior::Transient);
        popover_->setAnimates(false);
        show();
    }
    void show()
    {
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        popover_->showRelativeTo({.view = {}, .screenRect = QRect(screen.center().x(), 0, 60, 24)}, RectEdge::MinY);
        ASSERT_TRUE(QTest::qWaitForWindowActive(popover_.get()));
    }
    void close()
    {
        popover_->close();
        ASSERT_TRUE(runUntil([&] { return !popover_->isVisible(); }));
    }

    template<typename Control = QCheckBox>
    Control& control(const char* name) const
    {
        return *panel_->findChild<Control*>(QLatin1StringView(name));
    }
    template<typename Control>
    Control& inRow(int row, const char* name) const
    {
        return *rows().at(row)->findChild<Control*>(QLatin1StringView(name));
    }
    QWidgetList rows() const
    {
        auto cells = control<QWidget>("calendarIntervalTable").findChildren<QWidget*>(u"CalendarIntervalCell"_s);
        cells.removeIf([](const QWidget* cell) { return cell->isHidden(); });
        return cells;
    }
    void click(const char* name) const { click(control<QAbstractButton>(name)); }
    static void click(QAbstractButton& button)
    {
        // On the far left of a check box there is its box.
        QTest::mouseClick(&button, Qt::LeftButton, {}, QPoint(button.height() / 2, button.height() / 2));
    }
    /// With the keyboard, as a user does.
    static void choose(QComboBox& menu, const QString& item)
    {
        menu.setFocus();
        QTest::keyClick(&menu, Qt::Key_Home);
        while (menu.currentText() != item && menu.currentIndex() < menu.count() - 1)
            QTest::keyClick(&menu, Qt::Key_Down);
        ASSERT_EQ(menu.currentText(), item);
    }
    QString nextBackup() const { return control<QLabel>("nextBackupLabel").text(); }
    QVariant stored(const QString& key) const { return defaults_.stored.value(key); }
    static QVariantMap rule(qlonglong day, qlonglong time) { return {{u"day"_s, day}, {u"time"_s, time}}; }
    bool isBlocked() const { return control<QWidget>("disabledOverlayBox").isVisible(); }

    ScopedEnvironment zone_{"TZ", "Europe/Berlin"};
    ScopedEnvironment language_{"LC_ALL", "en_US.UTF-8"};
    VirtualRunLoop runLoop_{local(2026, 11, 21, 10)};
    SimulatedTimeMachine machine_{runLoop_};
    MemoryDefaults defaults_;
    NotificationCenter notifications_;
    FakeWorkspace workspace_;
    FakeAlerts alerts_;
    FakeLoginItem loginItem_;
    TMUtilQueue queue_{machine_, runLoop_, u"tmutil"_s};
    TimeMachineSettings timeMachineSettings_{machine_, runLoop_, workspace_, alerts_};
    TMUtil tmutil_{queue_, timeMachineSettings_};
    std::unique_ptr<DataManager> manager_;
    std::unique_ptr<Popover> popover_;
    SettingsViewController* panel_ = nullptr; ///< owned by the popover
    QObject observer_;
    int menuBarUpdates_ = 0;
};

} // namespace quillon
