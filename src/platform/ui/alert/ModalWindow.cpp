#include "ModalWindow.h"

#include "WindowSystem.h"

#include <QApplication>
#include <QWidget>
#include <QWindow>

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

} // namespace quillon
