#pragma once

#include "VirtualLauncher.h"

#include <QMap>

#include <optional>

namespace quillon {

/// A Time Machine in virtual time behind a played tmutil: it runs backups, in phases that take their time, when told
/// to.
class SimulatedTimeMachine final : public VirtualLauncher {
public:
    struct Phase {
        QString word;
        double seconds;
        bool reportsProgress = false;
    };
    struct Destination {
        QString id;
        QString name;
        bool isMounted = true;
    };
    /// The fault of the n-th call, counted from 1; of the n-th call of one command where that is named.
    struct Injection {
        int call = 0;
        TmutilScript::Fault fault = TmutilScript::Fault::None;
        int status = 0;
        QString command = {};
    };

    explicit SimulatedTimeMachine(VirtualRunLoop& runLoop);

    /// What a run goes through; a run that is to fail leaves the finishing phases out.
    QList<Phase> phases{{QStringLiteral("FindingChanges"), 6},
                        {QStringLiteral("Copying"), 60, true},
                        {QStringLiteral("ThinningPostBackup"), 9},
                        {QStringLiteral("Finishing"), 9}};
    QList<Destination> destinations{{QStringLiteral("A"), QStringLiteral("First Disk")}};
    QMap<QString, TmutilScript::Call> programs; ///< other ones than tmutil, by the name of the file
    bool hasDamage = false;                     ///< in its backups
    qint64 totalBytes = 5'000'000;
    double callDuration = 0.05;
    Injection injection;

    /// Somebody else starts or stops a backup.
    void start(const QString& destination);
    void stop();

    bool isRunning() const;
    int starts() const { return int(startUptimes_.size()); }
    /// On the clock that nobody sets.
    const QList<std::chrono::milliseconds>& startUptimes() const { return startUptimes_; }

protected:
    TmutilScript::Call behaviour(const TaskRequest& request) override;

private:
    int startBackup(const QStringList& arguments);
    QString chosenDestination(const QStringList& arguments) const;
    QByteArray status() const;
    QByteArray idleStatus() const;
    QByteArray destinationInfo() const;
    double elapsed() const;
    double runLength() const;
    bool isInjected() const;

    VirtualRunLoop& runLoop_;
    std::optional<Date> begun_;
    std::optional<double> stoppedAfter_;
    QStringList used_; ///< disk of each run, the latest last
    QList<std::chrono::milliseconds> startUptimes_;
};

} // namespace quillon
