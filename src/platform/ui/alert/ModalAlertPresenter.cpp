#include "ModalAlertPresenter.h"

#include <QApplication>

#include <utility>

namespace quillon {

void ModalAlertPresenter::present(const AlertRequest& request, std::function<void(int response)> answer)
{
    alerts_.push_back({request, std::move(answer)});
    if (window_)
        return;
    keyboardOwner_ = QApplication::activeWindow();
    showFirst();
}

void ModalAlertPresenter::showFirst()
{
    window_ = std::make_unique<AlertWindow>(alerts_.front().request);
    window_->beginModal([this](int response) { finish(response); });
}

void ModalAlertPresenter::finish(int response)
{
    const auto answer = std::move(alerts_.front().answer);
    alerts_.pop_front();
    window_.release()->deleteLater(); // it is the window that calls
    if (!alerts_.empty())
        showFirst();
    else if (keyboardOwner_ && keyboardOwner_->isVisible())
        keyboardOwner_->activateWindow(); // not every window manager does
    if (answer)                           // comes last: it may end the presenter
        answer(response);
}

} // namespace quillon
