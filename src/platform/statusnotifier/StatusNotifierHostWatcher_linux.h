#pragma once

#include <QDBusConnection>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <QObject>

#include <memory>

namespace quillon {

/// Knows whether a tray of the StatusNotifier protocol takes items; asks and listens, never waits. Main thread only.
class StatusNotifierHostWatcher final : public QObject {
    Q_OBJECT

public:
    explicit StatusNotifierHostWatcher(const QDBusConnection& bus);
    ~StatusNotifierHostWatcher() override;

    /// Whether the first answer has come; without a bus it is there from the beginning.
    bool isKnown() const { return known_; }
    bool isPresent() const { return present_; }

Q_SIGNALS:
    /// The first answer has come, or the answer has changed.
    void changed();

private Q_SLOTS:
    void ask();

private:
    void settle(bool present);

    QDBusConnection bus_;
    QDBusServiceWatcher serviceWatcher_;
    std::unique_ptr<QDBusPendingCallWatcher> question_;
    bool known_ = false;
    bool present_ = false;
};

} // namespace quillon
