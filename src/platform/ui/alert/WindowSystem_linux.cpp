#include "ShownStatusItem_linux.h"
#include "WindowSystem.h"

#include <QGuiApplication>
#include <QWidget>

#include <array>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

bool compositorRuns(xcb_connection_t* connection)
{
    // The compositor of the first X11 screen owns this selection: Extended Window Manager Hints 1.5.
    return isOwned(connection, internAtom(connection, "_NET_WM_CM_S0"));
}

} // namespace

bool windowsAreTranslucent()
{
    xcb_connection_t* connection = x11Connection();
    return !connection || compositorRuns(connection);
}

bool windowsFade()
{
    xcb_connection_t* connection = x11Connection();
    return connection && compositorRuns(connection);
}

bool windowsCanBePlaced()
{
    return !QGuiApplication::platformName().startsWith("wayland"_L1);
}

void openAnew(QWidget& window)
{
    if (windowsCanBePlaced() || window.isActiveWindow() || !window.isVisible())
        return;
    window.hide();
    window.show();
}

void keepOutOfWindowLists(QWidget& window)
{
    xcb_connection_t* connection = x11Connection();
    if (!connection)
        return;
    // Extended Window Manager Hints 1.5: a client writes this property before it shows the window. Qt adds to it.
    const std::array states{internAtom(connection, "_NET_WM_STATE_SKIP_TASKBAR"),
                            internAtom(connection, "_NET_WM_STATE_SKIP_PAGER")};
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, static_cast<xcb_window_t>(window.winId()),
                        internAtom(connection, "_NET_WM_STATE"), XCB_ATOM_ATOM, 32, states.size(), states.data());
}

void bringToFront(QWidget& window)
{
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.raise();
    window.activateWindow();
}

} // namespace quillon
