#include "ModalAlertPresenter.h"

#include "Accessibility.h"
#include "Alert.h"
#include "WindowSystem.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWidget>
#include <QWindow>

#include <utility>

namespace quillon {

bool bringModalWindowToFront()
{
    QWidget* modal = QApplication::activeModalWidget();
    if (modal) {
        openAnew(*modal);
        bringToFront(*modal);
    }
    return modal;
}

void letClicksThrough(QWidget& window)
{
    QWindow* modal = QGuiApplication::modalWindow();
    if (!modal->isVisible()) // it blocks others until it is all gone
        return;
    // Qt blocks no window that belongs to the modal one. Window systems are told of that when a window comes up, and
    // this one is up.
    QWindow* own = window.windowHandle();
    own->setTransientParent(modal);
    // Under Wayland Qt closes what belongs to a window that goes.
    QObject::connect(
        modal, &QWindow::visibleChanged, own, [own] { own->setTransientParent(nullptr); }, Qt::SingleShotConnection);
}

AlertWindow::AlertWindow(const AlertRequest& request)
    : QDialog(nullptr, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint |
                           Qt::WindowStaysOnTopHint)
    , alert_(new Alert(request, this))
{
    setAccessibleRole(*this, QAccessible::AlertMessage);
    setWindowTitle(QGuiApplication::applicationDisplayName());
    setAccessibleName(alert_->accessibleName());
    setWindowModality(Qt::ApplicationModal);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(alert_);
    for (const QPushButton* button : alert_->buttons())
        connect(button, &QPushButton::clicked, this, [this, button] { done(alert_->responseOf(button)); });
}

void AlertWindow::beginModal(std::function<void(int response)> answer)
{
    connect(
        this, &QDialog::finished, this,
        [answer = std::move(answer)](int response) {
            if (answer)
                answer(response);
        },
        Qt::SingleShotConnection);
    show();
    bringToFront(*this);
}

void AlertWindow::reject()
{
    alert_->escapeButton()->click();
}

void AlertWindow::closeEvent(QCloseEvent* event)
{
    // The program's end closes every window too, by an event that is not spontaneous: it answers nothing for the user.
    if (event->spontaneous())
        QDialog::closeEvent(event);
}

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
