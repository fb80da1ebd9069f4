#pragma once

#include <QDBusMessage>
#include <QLatin1StringView>

#include <string_view>

/// How the two protocols of trays tell whether somebody takes items.
namespace quillon::trayprotocols {

/// The bus name, and the interface, of StatusNotifier's watcher:
/// https://www.freedesktop.org/wiki/Specifications/StatusNotifierItem/
inline constexpr QLatin1StringView statusNotifierWatcher("org.kde.StatusNotifierWatcher");
inline constexpr QLatin1StringView statusNotifierPath("/StatusNotifierWatcher");

/// Whether a host shows items, as a question to the watcher, which is not started for it.
QDBusMessage statusNotifierQuestion();
bool isYes(const QDBusMessage& answer);

/// XEmbed's tray owns this selection on the first X11 screen: https://specifications.freedesktop.org/systemtray-spec/
inline constexpr std::string_view traySelection = "_NET_SYSTEM_TRAY_S0";

} // namespace quillon::trayprotocols
