#pragma once

#include "BrowseWindow.h"
#include "FakeServices.h"
#include "VirtualLauncher.h"

#include <QTemporaryDir>

#include <memory>

namespace quillon {

/// The window of backups over a tmutil that is played: two disks, backups of many weeks, one of them incomplete and one
/// damaged, and a folder in which some things were changed or deleted later.
class PlayedBackups final : public VirtualLauncher {
public:
    /// Without backups the window says what to do.
    PlayedBackups(VirtualRunLoop& runLoop, AlertPresenter& alerts, bool withBackups);
    ~PlayedBackups() override;

    BrowseWindow& window() { return *window_; }

protected:
    TmutilScript::Call behaviour(const TaskRequest& request) override;

private:
    QByteArray answerTo(const QStringList& arguments) const;
    QVariantList backups() const;

    QTemporaryDir cache_;
    FakeWorkspace workspace_;
    Date now_;
    bool withBackups_;
    std::unique_ptr<BrowseWindow> window_;
};

} // namespace quillon
