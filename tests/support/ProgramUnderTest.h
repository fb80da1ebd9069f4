#pragma once

#include "DataManager.h"
#include "FakeServices.h"
#include "FakeStatusItem.h"
#include "MemoryDefaults.h"
#include "MemoryLedger.h"
#include "NextBackup.h"
#include "NotificationCenter.h"
#include "StatusMenuController.h"
#include "StoredAndSent.h"
#include "TMUtil.h"

#include <QString>

#include <memory>

namespace quillon {

/// The whole program but its main, on a clock and in front of a tmutil that the test brings.
struct ProgramUnderTest {
    ProgramUnderTest(RunLoop& clock, TaskLauncher& processes, const QString& tool)
        : queue(processes, clock, tool)
        , settings(processes, clock, workspace, alerts)
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
        hooks = std::make_unique<Hooks>(Hooks::Services{clock_, processes_, hooksFolder});
        controller = std::make_unique<StatusMenuController>(StatusMenuController::Services{
            clock_, defaults, notifications, workspace, tmutil, alerts, *manager, loginItem, statusItem, ledger,
            userNotifications, awakeLock, powerSupply, mountWatch, *hooks});
        controller->awakeFromNib();
    }

    MemoryDefaults defaults;
    NotificationCenter notifications;
    FakeWorkspace workspace;
    FakeAlerts alerts;
    FakeLoginItem loginItem;
    FakeUserNotifications userNotifications;
    FakeAwakeLock awakeLock;
    FakePowerSupply powerSupply;
    FakeMountWatch mountWatch;
    FakeStatusItem item;
    TMUtilQueue queue;
    TimeMachineSettings settings;
    TMUtil tmutil{queue, settings};
    MemoryLedger ledger;
    QString hooksFolder; ///< of the next launch; none unless a test names one
    std::unique_ptr<Hooks> hooks;
    std::unique_ptr<DataManager> manager;
    std::unique_ptr<StatusMenuController> controller;

private:
    RunLoop& clock_;
    TaskLauncher& processes_;
};

} // namespace quillon
