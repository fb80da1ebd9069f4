#pragma once

#include "RunLoop.h"

#include <QObject>
#include <QTimer>

#include <chrono>

namespace quillon {

/// The run loop of a real program, on the Qt event loop. Its blocks run also while a menu or an alert is open.
class QtRunLoop final : public QObject, public RunLoop {
    Q_OBJECT

public:
    QtRunLoop();

    Date now() const override;
    std::chrono::milliseconds uptime() const override;

protected:
    void wakeAt(std::chrono::milliseconds uptime) override;

private:
    QTimer wake_;
};

} // namespace quillon
