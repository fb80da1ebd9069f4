#pragma once

#include <QObject>

#include <sys/types.h>

namespace quillon {

/// For a child between fork and exec: lets the kernel send it that signal when its parent dies. False where the parent,
/// whose number was taken before the fork, has died already; nobody would tell of that any more. Async-signal-safe.
bool endWithParent(int signal, pid_t parent) noexcept;

/// Turns SIGTERM, SIGINT and SIGHUP into a request to end in good order. The signals stay blocked in this process as
/// long as it lives; one object a process.
class StopRequest final : public QObject {
    Q_OBJECT

public:
    StopRequest();
    ~StopRequest() override;

    bool isMade() const { return made_; }

Q_SIGNALS:
    /// Once, at the first request.
    void made();

private:
    void readSignal();

    int descriptor_;
    bool made_ = false;
};

} // namespace quillon
