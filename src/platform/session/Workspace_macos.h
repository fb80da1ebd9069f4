#pragma once

#include "Workspace.h"

#include <IOKit/pwr_mgt/IOPMLib.h>

namespace quillon {

class RunLoop;

/// Opens addresses with LaunchServices, hears of sleep from the power management of IOKit.
class MacWorkspace final : public Workspace {
public:
    explicit MacWorkspace(RunLoop& runLoop);
    ~MacWorkspace() override;

    /// The completion gets true when LaunchServices has found the program and taken the request; it does not wait for
    /// the launch.
    void openURL(const QUrl& url, Completion completion) override;
    void openApplication(const QString& bundleIdentifier, Completion completion) override;

private:
    void report(bool opened, Completion completion);
    static void powerChanged(void* workspace, io_service_t, natural_t message, void* argument);

    RunLoop& runLoop_;
    IONotificationPortRef port_ = nullptr;
    io_object_t notifier_ = IO_OBJECT_NULL;
    io_connect_t rootPort_ = MACH_PORT_NULL;
};

} // namespace quillon
