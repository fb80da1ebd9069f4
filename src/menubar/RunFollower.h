#pragma once

#include "BackupRun.h"
#include "RunLoop.h"
#include "TMUtil.h"

#include <QObject>

#include <functional>

namespace quillon {

/// Follows Time Machine's runs: asks for the status at the pace that the run calls for, and takes in what is answered.
class RunFollower final : public QObject {
    Q_OBJECT

public:
    /// The tool must outlive it.
    RunFollower(RunLoop& runLoop, TMUtil& tmutil);

    const BackupRun& run() const { return run_; }

    /// Polls every `interval` seconds from now on, also while the menu is open.
    void startTimerWithInterval(double interval);
    void stopTimer() { timer_.invalidate(); }
    /// Polls at the pace of the run as it stands.
    void start();
    /// Polls now, and once more behind a poll that is awaited: who asks for it wants to know what is true from now on.
    void fire();
    /// Asks for the status, unless the answer to such a question is still awaited.
    void requestTimeMachineStatus() { request(0); }
    /// Queues a step of the run and returns at once.
    void updateStatusBar();

    /// Asks what Time Machine does now and acts once, however many reports the answer brings.
    void askForStatus(std::function<void(const TMStatus& status)> act);
    void take(const TMStatus& status, BackupRun::Asked asked);
    void startAccepted();
    void stopAccepted();

Q_SIGNALS:
    /// The poll timer has run, whether or not a question follows.
    void ticked();
    /// A step of the run has been made.
    void stepped(const quillon::BackupRun::Step& step);

private:
    void tick(int awaitedAtMost);
    void request(int awaitedAtMost);
    void keepPace();

    RunLoop& runLoop_;
    TMUtil& tmutil_;
    BackupRun run_;
    Timer timer_;
    double interval_ = 0;
    int pollsAwaited_ = 0;
};

} // namespace quillon
