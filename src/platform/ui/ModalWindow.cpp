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
    // Qt blocks no window that belongs to the modal one. Window systems are told of that when a window comes up, and
    // this one is up.
    window.windowHandle()->setTransientParent(QGuiApplication::modalWindow());
}

} // namespace quillon
