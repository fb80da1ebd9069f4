#include "StatusItemPlace.h"
#include "TrayProtocols_linux.h"

#include <QDBusConnection>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int answerTimeoutMs = 1000;

struct Disconnect {
    void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
};

bool statusNotifierHostIsThere()
{
    const auto answer =
        QDBusConnection::sessionBus().call(trayprotocols::statusNotifierQuestion(), QDBus::Block, answerTimeoutMs);
    return trayprotocols::isYes(answer);
}

/// A program with windows runs on Wayland where it can, unless it is told otherwise, and has no XEmbed there.
bool windowsAreOnX11()
{
    const QString platform = qEnvironmentVariable("QT_QPA_PLATFORM");
    return platform.isEmpty() ? qEnvironmentVariable("XDG_SESSION_TYPE") != "wayland"_L1
                              : platform.startsWith("xcb"_L1);
}

bool xembedHostIsThere()
{
    if (!windowsAreOnX11())
        return false;
    const std::unique_ptr<xcb_connection_t, Disconnect> connection(xcb_connect(nullptr, nullptr));
    return xcb_connection_has_error(connection.get()) == 0 &&
           isOwned(connection.get(), internAtom(connection.get(), trayprotocols::traySelection));
}

} // namespace

StatusItemPlace findStatusItemPlace()
{
    if (statusNotifierHostIsThere())
        return {u"tray"_s, u"a StatusNotifier host takes items"_s};
    if (xembedHostIsThere())
        return {u"tray"_s, u"the X11 display has an XEmbed tray"_s};
    return {u"bar"_s, u"there is neither a StatusNotifier host nor an XEmbed tray"_s};
}

} // namespace quillon
