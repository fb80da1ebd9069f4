#pragma once

#include "AlertPresenter.h"

#include <QObject>

namespace quillon {

/// Shows alerts as message boxes. Escape and closing the window stand for the last button. A box that is open when this
/// goes away closes without an answer. Main thread only.
class AlertBox final : public QObject, public AlertPresenter {
    Q_OBJECT

public:
    void present(const AlertRequest& request, std::function<void(int response)> answer) override;
};

} // namespace quillon
