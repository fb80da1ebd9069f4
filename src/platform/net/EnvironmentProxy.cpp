#include "EnvironmentProxy.h"

#include <QHostAddress>
#include <QRegularExpression>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int httpsPort = 443;
constexpr int httpPort = 80;
constexpr int socksPort = 1080;

QString variable(const QProcessEnvironment& environment, const QString& name)
{
    const QString value = environment.value(name).trimmed();
    return value.isEmpty() ? environment.value(name.toUpper()).trimmed() : value;
}

/// @param entry of no_proxy
bool covers(const QString& entry, const QUrl& address)
{
    static const QRegularExpression form(uR"(^(?:\*?\.)?(?:\[([^\]]+)\]|([^:]+)|(.*:.*:.*?))(?::(\d+))?$)"_s);
    const auto parts = form.match(entry);
    if (!parts.hasMatch())
        return false;
    if (!parts.captured(4).isEmpty() && parts.captured(4).toInt() != address.port(httpsPort))
        return false;
    const QString named = parts.captured(1) + parts.captured(2) + parts.captured(3);
    const QString host = address.host();
    if (const QHostAddress numeric(host); !numeric.isNull()) {
        const auto subnet = QHostAddress::parseSubnet(named);
        return numeric.isEqual(QHostAddress(named)) || (named.contains('/'_L1) && numeric.isInSubnet(subnet));
    }
    return host.compare(named, Qt::CaseInsensitive) == 0 || host.endsWith(u'.' + named, Qt::CaseInsensitive);
}

bool isExempt(const QUrl& address, const QString& exceptions)
{
    const QStringList entries = exceptions.split(u',', Qt::SkipEmptyParts);
    return std::ranges::any_of(
        entries, [&](const QString& entry) { return entry.trimmed() == "*"_L1 || covers(entry.trimmed(), address); });
}

QNetworkProxy parsed(const QString& value)
{
    const QUrl proxy(value.contains("://"_L1) ? value : u"http://"_s + value);
    const bool isSocks = proxy.scheme() == "socks5"_L1 || proxy.scheme() == "socks5h"_L1;
    if (proxy.host().isEmpty() || (!isSocks && proxy.scheme() != "http"_L1))
        return QNetworkProxy::DefaultProxy;
    return {isSocks ? QNetworkProxy::Socks5Proxy : QNetworkProxy::HttpProxy, proxy.host(),
            static_cast<quint16>(proxy.port(isSocks ? socksPort : httpPort)), proxy.userName(QUrl::FullyDecoded),
            proxy.password(QUrl::FullyDecoded)};
}

} // namespace

bool isThisMachine(const QString& host)
{
    return host == "localhost"_L1 || QHostAddress(host).isLoopback();
}

QNetworkProxy environmentProxy(const QUrl& address, const QProcessEnvironment& environment)
{
    if (isThisMachine(address.host()) || isExempt(address, variable(environment, u"no_proxy"_s)))
        return QNetworkProxy::NoProxy;
    const QString forHttps = variable(environment, u"https_proxy"_s);
    return parsed(forHttps.isEmpty() ? variable(environment, u"all_proxy"_s) : forHttps);
}

} // namespace quillon
