#pragma once

#include <QObject>

#include <memory>

namespace quillon {

/// Tells that a file system was mounted or unmounted, without looking at any: one that hangs stops nobody.
class MountWatch : public QObject {
    Q_OBJECT

public:
    /// Begins or ends the watch; the state it is in already changes nothing. Where the system does not let itself be
    /// watched, nothing is told.
    virtual void setWatching(bool watching) = 0;

Q_SIGNALS:
    /// Something about mounts has changed. One disk that appears may be told of several times.
    void changed();
};

std::unique_ptr<MountWatch> makeMountWatch();

} // namespace quillon
