#pragma once

#include "DisksWindow.h"
#include "VirtualLauncher.h"

#include <memory>

namespace quillon {

/// The window of disks over a tmutil that is played: three disks, one with a failure, one that is away,
/// and a place on a server.
class PlayedDisks final : public VirtualLauncher {
public:
    PlayedDisks(VirtualRunLoop& runLoop, AlertPresenter& alerts);
    ~PlayedDisks() override;

    DisksWindow& window() { return *window_; }

protected:
    TmutilScript::Call behaviour(const TaskRequest& request) override;

private:
    std::unique_ptr<DisksWindow> window_;
};

} // namespace quillon
