#pragma once

#include "AlertPresenter.h"
#include "DataManager.h"
#include "RunFollower.h"
#include "UserDefaults.h"

#include <QObject>
#include <QString>

#include <cstdint>
#include <optional>

namespace quillon {

/// Starts and stops backups, for the user and for the schedule, one command at a time: a second click would take effect
/// twice, and a scheduled start waits until the command that is under way has been answered.
class BackupCommands final : public QObject {
    Q_OBJECT

public:
    struct Services {
        RunLoop& runLoop;
        UserDefaults& defaults;
        DataManager& dataManager;
        AlertPresenter& alerts;
        TMUtil& tmutil;
        RunFollower& follower;
    };

    explicit BackupCommands(const Services& services);

    bool isUnderWay() const { return isUnderWay_; }

    /// Starts a backup, or stops the one that runs.
    void backupNowClicked();
    /// Starts a backup, and leaves alone one that runs.
    void backupNowRequested();
    void backupNowSubMenuItemClicked(const QString& identifier);
    void startScheduledBackup();

Q_SIGNALS:
    /// A command is under way: clicks have no effect until it has been answered.
    void began();
    /// A scheduled start was accepted.
    void scheduledBackupStarts();

private:
    /// What a scheduled start was decided on.
    struct ScheduleSwitches {
        bool enabled;
        std::optional<Date> pauseUntil;

        bool operator==(const ScheduleSwitches&) const = default;
    };

    bool rotateBackupDisks() const;
    ScheduleSwitches switchesNow() const;
    void begin();
    void settle();
    void answerBackupNow(const TMStatus& status, bool offeredToStop);
    void requestStop();
    void requestStart(const QString& identifier, bool rotateBackupDisks);
    void tellOfFailedStart(std::int32_t exitStatus);
    void askForScheduledStart(const ScheduleSwitches& switches);
    void answerScheduledStart(const TMStatus& status, const ScheduleSwitches& switches);

    Services services_;
    bool isUnderWay_ = false;
    std::optional<ScheduleSwitches> waitingStart_;
};

} // namespace quillon
