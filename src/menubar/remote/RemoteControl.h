#pragma once

#include "ControlRequest.h"
#include "StatusMenuController.h"
#include "TMReports.h"

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QObject>

#include <functional>
#include <optional>

namespace quillon {

/// Does for other programs of the user what the menu and the settings panel do for the user, and refuses what has no
/// use at that moment. Who asks gets the answer, and no alert.
class RemoteControl final : public QObject {
    Q_OBJECT

public:
    struct Services {
        RunLoop& runLoop;
        NotificationCenter& notifications;
        TMUtil& tmutil;
        DataManager& dataManager;
        StatusMenuController& controller;
    };

    /// Takes a line of an answer; false once nobody listens any more.
    using Listener = std::function<bool(const QByteArray& line)>;

    explicit RemoteControl(const Services& services);

    /// The listener is kept until it has got its one answer, or, while it watches, until it returns false.
    void take(const QByteArray& line, const Listener& listener);

private:
    ControlAnswer atOnce(const ControlRequest& request);
    ControlAnswer pause(const ControlRequest& request);
    ControlAnswer resume();
    ControlAnswer skipRetry();
    ControlAnswer skip();
    ControlAnswer postpone(std::chrono::seconds by);
    ControlAnswer rules() const;
    ControlAnswer addRule(const CalendarIntervalRule& rule);
    ControlAnswer removeRule(int number);
    ControlAnswer showSettings();

    void backUp(const Listener& listener);
    void askForDisk(const QString& disk, const Listener& listener);
    void backUpTo(const QString& disk, const std::optional<QList<BackupDestination>>& disks, const Listener& listener);
    void stop(const Listener& listener);
    void watch(const Listener& listener);
    void tellWatchers();

    /// Why the menu offers no start at this moment; empty where it does.
    QString whyNoStart() const;
    /// The same of a change to the next start.
    QString whyNoChange() const;
    /// Done, and what the schedule is now.
    ControlAnswer scheduled(const QString& text) const;
    ControlAnswer rulesEdited();

    Services services_;
    QList<Listener> watchers_;
    QJsonObject lastTold_;
};

} // namespace quillon
