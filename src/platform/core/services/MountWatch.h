#pragma once

#include <QObject>

#include <memory>

namespace quillon {

/// Tells that a file system was mounted or unmounted, without looking at any: one that hangs stops nobody.
class MountWatch : public QObject {
    Q_OBJECT

Q_SIGNALS:
    /// Something about mounts has changed. One disk that appears may be told of several times.
    void changed();
};

/// Nothing where the system does not let itself be watched.
std::unique_ptr<MountWatch> makeMountWatch();

} // namespace quillon
