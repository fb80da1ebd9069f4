#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>

namespace quillon {

/// A D-Bus daemon of the test's own.
class PrivateBus {
public:
    PrivateBus();
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;
    ~PrivateBus();

    const QString& address() const { return address_; }
    /// The daemon crashes.
    void crash();

    QDBusConnection connection() const { return QDBusConnection(address_); }

private:
    QTemporaryDir folder_;
    QProcess daemon_;
    QString address_;
};

/// logind as python-dbusmock plays it: the locks that it hands out are real file descriptors.
class PlayedLogind {
public:
    /// Returns when the name is owned.
    explicit PlayedLogind(const PrivateBus& bus);
    PlayedLogind(const PlayedLogind&) = delete;
    PlayedLogind& operator=(const PlayedLogind&) = delete;
    /// Returns when the name is free.
    ~PlayedLogind();

    /// Announces sleep (true) or wake (false).
    void prepareForSleep(bool start);
    /// The locks held right now, each as "what mode".
    QStringList locks();
    /// Hangs, and goes on.
    void stop();
    void resume();

private:
    bool hasOwner() const;

    QDBusConnection bus_;
    QProcess mock_;
};

} // namespace quillon
