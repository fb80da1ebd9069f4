#pragma once

#include "BackupCommands.h"
#include "Concerns.h"
#include "DataManager.h"
#include "Ledger.h"
#include "RunFollower.h"
#include "RunLoop.h"
#include "Services.h"
#include "UserDefaults.h"

#include <QObject>

#include <chrono>
#include <cstdint>
#include <optional>
#include <tuple>

namespace quillon {

/// Gives the user a word when something is wrong with the backups, and takes it back once it is mended. Its slot comes
/// behind those that act on the same step, so that a retry that they plan is known.
class ConcernWatch final : public QObject {
    Q_OBJECT

public:
    struct Services {
        RunLoop& runLoop;
        UserDefaults& defaults;
        const DataManager& dataManager;
        const RunFollower& follower;
        const BackupCommands& commands;
        Ledger& ledger;
        UserNotifications& notifications;
    };

    explicit ConcernWatch(const Services& services);

    void noteStep(const BackupRun::Step& step);

Q_SIGNALS:
    void backupNowChosen();
    void timeMachineSettingsChosen();
    void settingsChosen();

private:
    void rememberEarlierLaunch();
    void noteRun(const BackupRun& run);
    void noteSettings();
    void tell(const concerns::Change& change);
    void post(concerns::Kind kind);
    QString textOf(concerns::Kind kind) const;
    void storeTold();
    void carryOut(const QString& action);

    using Uptime = std::chrono::milliseconds;

    Services services_;
    concerns::Facts facts_; ///< while the status cannot be read, as of the last one that could
    concerns::Told told_;
    QList<concerns::Kind> shown_;
    bool remembersEarlierLaunch_ = false;
    std::tuple<QString, double, std::int64_t> progress_;
    std::optional<Uptime> startingSince_;
    std::optional<Uptime> withoutProgressSince_;
};

} // namespace quillon
