#pragma once

#include <QWidget>

namespace quillon {

/// Lets the wheel change a control only where the user has gone to: what it merely passes over is scrolled. It is the
/// control's own. Main thread only.
class WheelGuard final : public QObject {
    Q_OBJECT

public:
    explicit WheelGuard(QWidget* control);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace quillon
