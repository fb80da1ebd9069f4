#pragma once

#include "Xcb_linux.h"

namespace quillon {

/// Qt's own connection to the X11 display; nothing on other platforms.
xcb_connection_t* x11Connection();

} // namespace quillon
