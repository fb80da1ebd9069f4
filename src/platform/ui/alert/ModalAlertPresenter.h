#pragma once

#include "AlertPresenter.h"
#include "AlertWindow.h"

#include <QPointer>

#include <deque>
#include <memory>

namespace quillon {

/// Shows alerts in windows, one at a time in the order in which they come: of two windows that block each other's input
/// one could hide the other. The keyboard goes back to the window that had it before. Those open or waiting when this
/// goes away are never answered. Main thread only.
class ModalAlertPresenter final : public AlertPresenter {
public:
    void present(const AlertRequest& request, std::function<void(int response)> answer) override;

private:
    struct Presented {
        AlertRequest request;
        std::function<void(int response)> answer;
    };

    void showFirst();
    void finish(int response);

    std::deque<Presented> alerts_; ///< the first one is open
    std::unique_ptr<AlertWindow> window_;
    QPointer<QWidget> keyboardOwner_; ///< before the first one came
};

} // namespace quillon
