#include "X11_linux.h"

#include <QGuiApplication>

namespace quillon {

xcb_connection_t* x11Connection()
{
    // Platforms without a display have the interface too, and no connection behind it.
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->connection() : nullptr;
}

} // namespace quillon
