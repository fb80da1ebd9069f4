#include "AlertWindow.h"

#include "AccessibleRole.h"
#include "Alert.h"
#include "WindowSystem.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace quillon {

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
    // The program's end closes every window, and that is no spontaneous event: what nobody has read is not answered.
    if (event->spontaneous())
        QDialog::closeEvent(event);
}

} // namespace quillon
