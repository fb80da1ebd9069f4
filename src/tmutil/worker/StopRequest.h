#pragma once

#include <QObject>

namespace quillon {

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
