#pragma once

#include "ChildProgram.h"

#include <QDBusConnection>
#include <QTemporaryDir>

namespace quillon {

/// A session bus that nobody else is on and that starts no services.
class PrivateBus {
public:
    PrivateBus();

    /// "DBUS_SESSION_BUS_ADDRESS=..." for children.
    QString variable() const;
    /// A new connection to it, of that name inside this process.
    QDBusConnection connect(const QString& name) const;
    void crash() { daemon_.crash(); }

private:
    QTemporaryDir folder_;
    ChildProgram daemon_;
    QString address_;
};

} // namespace quillon
