#pragma once

#include "DataManager.h"
#include "FakeServices.h"
#include "FakeStatusItem.h"
#include "LocalDates.h"
#include "MemoryDefaults.h"
#include "Notifications.h"
#include "ScopedEnvironment.h"
#include "SettingsKeys.h"
#include "SimulatedTimeMachine.h"
#include "StatusMenuController.h"
#include "VirtualRunLoop.h"

#include <gtest/gtest.h>
#include <memory>

namespace quillon {

/// The whole program but its main, in virtual time, in front of a simulated Time Machine.
class ControllerFixture : public testing::Test {
protected:
    /// Starts the program; what is stored before counts as left by an earlier run.
    void launch()
    {
        manager = std::make_unique<DataManager>(DataManager::Services{runLoop, defaults, notifications, loginItem});
        controller = std::make_unique<StatusMenuController>(StatusMenuController::Services{
            runLoop, defaults, notifications, workspace, queue, machine, alerts, *manager, item});
        controller->awakeFromNib();
        runLoop.advance(Seconds(1));
    }

    void setRules(const QList<CalendarIntervalRule>& rules)
    {
        defaults.stored[settingskeys::calendarIntervals] = CalendarIntervalRule::listToArray(rules);
    }

    MenuBarIconState icon() const { return controller->menuBarIconState(); }
    static QString text(const QAction* action) { return action->text(); }
    const StatusMenu& menu() const { return controller->statusMenu(); }

    ScopedEnvironment zone{"TZ", "Europe/Berlin"};
    ScopedEnvironment language{"LC_ALL", "en_US.UTF-8"};
    // Saturday.
    VirtualRunLoop runLoop{local(2026, 11, 21, 10)};
    MemoryDefaults defaults;
    NotificationCenter notifications;
    FakeWorkspace workspace;
    FakeAlerts alerts;
    FakeLoginItem loginItem;
    FakeStatusItem item;
    SimulatedTimeMachine machine{runLoop};
    TMUtilQueue queue{machine, runLoop, QStringLiteral("tmutil")};
    std::unique_ptr<DataManager> manager;
    std::unique_ptr<StatusMenuController> controller;
};

} // namespace quillon
