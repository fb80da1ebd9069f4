#pragma once

#include <QDBusMessage>
#include <QDBusVariant>
#include <QLatin1StringView>

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

/// How the two protocols of trays tell whether somebody takes items.
namespace quillon::trayprotocols {

/// The bus name, and the interface, of StatusNotifier's watcher:
/// https://www.freedesktop.org/wiki/Specifications/StatusNotifierItem/
inline constexpr QLatin1StringView statusNotifierWatcher("org.kde.StatusNotifierWatcher");
inline constexpr QLatin1StringView statusNotifierPath("/StatusNotifierWatcher");

/// Whether a host shows items, as a question to the watcher, which is not started for it.
inline QDBusMessage statusNotifierQuestion()
{
    using namespace Qt::StringLiterals;
    auto question = QDBusMessage::createMethodCall(statusNotifierWatcher, statusNotifierPath,
                                                   "org.freedesktop.DBus.Properties"_L1, "Get"_L1);
    question.setAutoStartService(false);
    question.setArguments({QString(statusNotifierWatcher), u"IsStatusNotifierHostRegistered"_s});
    return question;
}
inline bool isYes(const QDBusMessage& answer)
{
    return answer.type() == QDBusMessage::ReplyMessage &&
           answer.arguments().value(0).value<QDBusVariant>().variant().toBool();
}

/// XEmbed's tray owns this selection on the first X11 screen: https://specifications.freedesktop.org/systemtray-spec/
inline constexpr std::string_view traySelection = "_NET_SYSTEM_TRAY_S0";

} // namespace quillon::trayprotocols
