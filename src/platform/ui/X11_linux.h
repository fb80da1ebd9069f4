#pragma once

#include <cstdlib>
#include <memory>
#include <string_view>
#include <xcb/xcb.h>

namespace quillon {

struct XcbFree {
    void operator()(void* reply) const { std::free(reply); } // NOLINT: replies come from malloc
};

/// Owner of a reply of the X11 server.
template<typename Reply>
using XcbReply = std::unique_ptr<Reply, XcbFree>;

/// Qt's own connection to the X11 display; nothing on other platforms.
xcb_connection_t* x11Connection();

/// The number of a name on the display; 0 when the connection is broken.
xcb_atom_t internAtom(xcb_connection_t* connection, std::string_view name);

} // namespace quillon
