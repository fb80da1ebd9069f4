#include "XEmbedHostWatcher_linux.h"

#include "TrayProtocols_linux.h"
#include "X11_linux.h"

#include <QGuiApplication>

#include <xcb/xfixes.h>

namespace quillon {

XEmbedHostWatcher::XEmbedHostWatcher()
    : connection_(x11Connection())
{
    if (!connection_ || !watchSelection())
        return;
    qGuiApp->installNativeEventFilter(this);
    present_ = isOwned(connection_, selection_);
}

XEmbedHostWatcher::~XEmbedHostWatcher() = default;

bool XEmbedHostWatcher::watchSelection()
{
    const xcb_query_extension_reply_t* extension = xcb_get_extension_data(connection_, &xcb_xfixes_id);
    if (!extension || !extension->present)
        return false;
    // The server knows the extension's other requests only after the client has told its version.
    const XcbReply<xcb_xfixes_query_version_reply_t> version(xcb_xfixes_query_version_reply(
        connection_, xcb_xfixes_query_version(connection_, XCB_XFIXES_MAJOR_VERSION, XCB_XFIXES_MINOR_VERSION),
        nullptr));
    selection_ = internAtom(connection_, trayprotocols::traySelection);
    if (!version || selection_ == XCB_ATOM_NONE)
        return false;
    selectionNotify_ = static_cast<std::uint8_t>(extension->first_event + XCB_XFIXES_SELECTION_NOTIFY);
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data->root;
    xcb_xfixes_select_selection_input(connection_, root, selection_,
                                      XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER |
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
    return true;
}

bool XEmbedHostWatcher::nativeEventFilter(const QByteArray& /*eventType*/, void* message, qintptr* /*result*/)
{
    const auto* event = static_cast<const xcb_generic_event_t*>(message);
    constexpr std::uint8_t sentFlag = 0x80; // set in events that another client has sent
    if ((event->response_type & ~sentFlag) != selectionNotify_)
        return false;
    const auto* notice = static_cast<const xcb_xfixes_selection_notify_event_t*>(message);
    if (notice->selection == selection_) {
        const bool owned =
            notice->subtype == XCB_XFIXES_SELECTION_EVENT_SET_SELECTION_OWNER && notice->owner != XCB_NONE;
        QMetaObject::invokeMethod(
            this, [this, owned] { setPresent(owned); }, Qt::QueuedConnection);
    }
    return false;
}

void XEmbedHostWatcher::setPresent(bool present)
{
    if (present_ == present)
        return;
    present_ = present;
    Q_EMIT changed();
}

} // namespace quillon
