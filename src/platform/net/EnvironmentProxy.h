#pragma once

#include <QNetworkProxy>
#include <QProcessEnvironment>
#include <QUrl>

namespace quillon {

/// Whether a host's name or address stands for this machine.
bool isThisMachine(const QString& host);

/// The proxy that the environment names for an HTTPS address: https_proxy, else all_proxy, unless no_proxy lists the
/// host; the names in capital letters count where those in small ones are not set. `host:port` means an HTTP proxy,
/// socks5:// and socks5h:// one for SOCKS, which also resolves the host's name; other kinds are passed over. no_proxy
/// has names, which stand for the names below them too, addresses and subnets, each with a port or without, or "*".
/// @return of the kind DefaultProxy where the environment says nothing, of the kind NoProxy where it forbids one
QNetworkProxy environmentProxy(const QUrl& address, const QProcessEnvironment& environment);

} // namespace quillon
