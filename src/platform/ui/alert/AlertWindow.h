#pragma once

#include "AlertPresenter.h"

#include <QDialog>

namespace quillon {

class Alert;

/// An alert in a window of its own. Closing the window stands for the button that Escape presses; the
/// program's end answers nothing. Main thread only.
class AlertWindow final : public QDialog {
    Q_OBJECT

public:
    explicit AlertWindow(const AlertRequest& request);

    /// Shows it application-modally and returns at once; `answer` gets the response code once the window is closed.
    void beginModal(std::function<void(int response)> answer);

    void reject() override;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    Alert* alert_;
};

} // namespace quillon
