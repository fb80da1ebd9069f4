#pragma once

#include "AlertPresenter.h"

#include <QDialog>
#include <QPointer>

#include <deque>
#include <memory>

class QWidget;

namespace quillon {

/// Brings the window that blocks all others, and waits for an answer, to the front; false where there is none.
bool bringModalWindowToFront();

/// Lets clicks on a window through although a modal one blocks it. It is called when the window is told that it is
/// blocked, and makes the clicks the window's business: who clicks is to be shown what waits.
void letClicksThrough(QWidget& window);

class Alert;

/// An alert in a window of its own. Closing the window stands for the button that Escape presses; the
/// program's end answers nothing.
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

/// Shows alerts in windows, one at a time in the order in which they come: of two windows that block each other's input
/// one could hide the other. The keyboard goes back to the window that had it before. Those open or waiting when this
/// goes away are never answered.
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
