#pragma once

#include "NotificationCenter.h"
#include "RunLoop.h"
#include "Services.h"
#include "TMUtil.h"
#include "UserDefaults.h"

#include <QObject>
#include <QString>

namespace quillon {

struct SetupAdvice;

/// What belongs to the program as a whole: the check for a newer version, at launch, on wake and once a day, and the
/// alert of the first launch, which is followed by Time Machine's settings where a disk is yet to be set up.
class AppDelegate final : public QObject {
    Q_OBJECT

public:
    struct Services {
        RunLoop& runLoop;
        UserDefaults& defaults;
        NotificationCenter& notifications;
        Workspace& workspace;
        AlertPresenter& alerts;
        TMUtil& tmutil;
        QString version; ///< of the program, such as 2.4.1
    };

    explicit AppDelegate(const Services& services);

    /// Called once, when everything else has been started.
    void applicationDidFinishLaunching();

    /// Whether launching has finished.
    bool isRunning() const { return isRunning_; }
    const Timer& checkForAppUpdateTimer() const { return checkForAppUpdateTimer_; }

    /// Asks for the latest version, the service itself at most every 12 hours. Failures are silent.
    void retrieveLatestAppVersion();
    /// Announces what the answer means for this program on this system, in a notification. `versions` is a JSON object
    /// with "app", the newest version, and "os", the lowest system version that it runs on; nothing is announced when
    /// it is anything else, or when this system is older.
    void isAppUpdateAvailable(const QString& versions);
    /// Checks every 24 hours from now on.
    void scheduleCheckForAppUpdateTimer();

private:
    void checkNowAndDaily();
    void presentFirstLaunchAlert(const SetupAdvice& advice);

    RunLoop& runLoop_;
    UserDefaults& defaults_;
    NotificationCenter& notifications_;
    Workspace& workspace_;
    AlertPresenter& alerts_;
    TMUtil& tmutil_;
    const QString version_;
    bool isRunning_ = false;
    Timer checkForAppUpdateTimer_;
};

} // namespace quillon
