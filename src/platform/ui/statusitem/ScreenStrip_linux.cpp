#include "ScreenStrip_linux.h"

#include "X11_linux.h"

#include <QScreen>

#include <algorithm>
#include <array>
#include <span>

namespace quillon {

namespace {

bool hasScreenAbove(const QScreen& screen)
{
    const QRect own = screen.geometry();
    const auto siblings = screen.virtualSiblings();
    return std::any_of(siblings.begin(), siblings.end(), [&own](const QScreen* other) {
        const QRect geometry = other->geometry();
        return geometry.top() < own.top() && geometry.left() <= own.right() && own.left() <= geometry.right();
    });
}

void replaceProperty(xcb_connection_t* connection, WId window, std::string_view name, xcb_atom_t type,
                     std::span<const std::uint32_t> values)
{
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, static_cast<xcb_window_t>(window),
                        internAtom(connection, name), type, 32, static_cast<std::uint32_t>(values.size()),
                        values.data());
}

} // namespace

void makeDock(WId window)
{
    xcb_connection_t* connection = x11Connection();
    if (!connection)
        return;
    // Extended Window Manager Hints 1.5. Qt's own attribute for this has no effect on a window that it makes
    // afterwards.
    const std::array type{internAtom(connection, "_NET_WM_WINDOW_TYPE_DOCK")};
    replaceProperty(connection, window, "_NET_WM_WINDOW_TYPE", XCB_ATOM_ATOM, type);
    constexpr std::array<std::uint32_t, 1> everyDesktop{0xFFFFFFFF};
    replaceProperty(connection, window, "_NET_WM_DESKTOP", XCB_ATOM_CARDINAL, everyDesktop);
}

void reserveTopStrip(WId window, const QScreen& screen, const QRect& bar)
{
    xcb_connection_t* connection = x11Connection();
    if (!connection || hasScreenAbove(screen))
        return;
    // Qt scales sizes and distances inside a screen, but not where a screen begins.
    const qreal ratio = screen.devicePixelRatio();
    const QPoint origin = screen.geometry().topLeft();
    const int depth = origin.y() + qRound((bar.bottom() + 1 - origin.y()) * ratio);
    const int lastColumn = origin.x() + qRound(screen.geometry().width() * ratio) - 1;
    // left, right, top, bottom, then where each of them begins and ends: Extended Window Manager Hints 1.5,
    // _NET_WM_STRUT_PARTIAL.
    std::array<std::uint32_t, 12> strut{};
    strut[2] = static_cast<std::uint32_t>(depth);
    strut[8] = static_cast<std::uint32_t>(origin.x());
    strut[9] = static_cast<std::uint32_t>(lastColumn);
    replaceProperty(connection, window, "_NET_WM_STRUT_PARTIAL", XCB_ATOM_CARDINAL, strut);
    xcb_flush(connection);
}

} // namespace quillon
