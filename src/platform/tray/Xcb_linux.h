#pragma once

#include <cstdint>
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

/// The number of a name on the display; 0 when the connection is broken.
inline xcb_atom_t internAtom(xcb_connection_t* connection, std::string_view name)
{
    const XcbReply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(
        connection, xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data()), nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

/// Whether somebody owns the selection.
inline bool isOwned(xcb_connection_t* connection, xcb_atom_t selection)
{
    const XcbReply<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(connection, xcb_get_selection_owner(connection, selection), nullptr));
    return reply && reply->owner != XCB_NONE;
}

} // namespace quillon
