#include "WindowSystem.h"
#include "X11_linux.h"

#include <QGuiApplication>
#include <QWidget>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

bool compositorRuns(xcb_connection_t* connection)
{
    // The compositor of the first X11 screen owns this selection: Extended Window Manager Hints 1.5.
    const xcb_atom_t selection = internAtom(connection, "_NET_WM_CM_S0");
    const XcbReply<xcb_get_selection_owner_reply_t> owner(
        xcb_get_selection_owner_reply(connection, xcb_get_selection_owner(connection, selection), nullptr));
    return owner && owner->owner != XCB_NONE;
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

void bringToFront(QWidget& window)
{
    window.raise();
    window.activateWindow();
}

} // namespace quillon
