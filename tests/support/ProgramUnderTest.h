#pragma once

#include "CalendarIntervalRule.h"
#include "DataManager.h"
#include "FakeServices.h"
#include "FakeStatusItem.h"
#include "MemoryDefaults.h"
#include "NotificationCenter.h"
#include "SettingsKeys.h"
#include "StatusMenuController.h"
#include "TMUtilQueue.h"

#include <QString>

#include <memory>

namespace quillon {

/// The whole program but its main, on a clock and in front of a tmutil that the test brings.
struct ProgramUnderTest {
    ProgramUnderTest(RunLoop& clock, TaskLauncher& processes, const QString& tool)
        : queue(processes, clock, tool)
        , clock_(clock)
        , processes_(processes)
    {
    }

    void setRules(const QList<CalendarIntervalRule>& rules)
    {
        defaults.stored[settingskeys::calendarIntervals] = CalendarIntervalRule::listToArray(rules);
    }

    /// What is stored before counts as left by an earlier run.
    void start() { startShowing(item); }
    void startShowing(StatusItem& statusItem)
    {
        controller.reset();
        manager = std::make_unique<DataManager>(DataManager::Services{clock_, defaults, notifications, loginItem});
        controller = std::make_unique<StatusMenuController>(StatusMenuController::Services{
            clock_, defaults, notifications, workspace, queue, processes_, alerts, *manager, loginItem, statusItem});
        controller->awakeFromNib();
    }

    MemoryDefaults defaults;
    NotificationCenter notifications;
    FakeWorkspace workspace;
    FakeAlerts alerts;
    FakeLoginItem loginItem;
    FakeStatusItem item;
    TMUtilQueue queue;
    std::unique_ptr<DataManager> manager;
    std::unique_ptr<StatusMenuController> controller;

private:
    RunLoop& clock_;
    TaskLauncher& processes_;
};

} // namespace quillon
