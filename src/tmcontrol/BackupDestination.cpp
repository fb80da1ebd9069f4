#include "BackupDestination.h"

#include "PropertyList.h"
#include "ShownText.h"
#include "TMStatus.h"

#include <QVariantMap>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace propertylist;

namespace {

/// The server's name in an address such as "smb://user@Server._smb._tcp.local/Share": what follows the "@" up to the
/// next "."; empty when there is none.
QString serverName(const QString& url)
{
    const auto at = url.indexOf(u'@');
    const auto dot = at < 0 ? -1 : url.indexOf(u'.', at + 1);
    return dot < 0 ? QString() : url.mid(at + 1, dot - at - 1);
}

std::optional<BackupDestination> readDestination(const QVariantMap& entry)
{
    const auto name = scalar(entry, u"Name"_s);
    if (!name.isValid())
        return std::nullopt;
    BackupDestination destination;
    destination.name = name.toString();
    if (scalar(entry, u"Kind"_s).toString() == "Network"_L1) {
        const auto server = serverName(scalar(entry, u"URL"_s).toString());
        if (!server.isEmpty())
            destination.name += u" - "_s + server + u".local"_s;
    }
    destination.id = scalar(entry, u"ID"_s).toString();
    destination.isLast = toInteger(scalar(entry, u"LastDestination"_s)) == 1;
    destination.isMounted = entry.contains(u"MountPoint"_s);
    return destination;
}

} // namespace

BackupDestinations BackupDestinations::fromOutput(const std::optional<QByteArray>& output)
{
    if (!output || output->isEmpty())
        return {};
    const auto list = parse(*output);
    const auto entries = list ? list->toMap().value(u"Destinations"_s) : QVariant();
    if (entries.typeId() != QMetaType::QVariantList)
        return {false, {}};
    BackupDestinations result;
    for (const auto& entry : entries.toList()) {
        if (auto destination = readDestination(entry.toMap()))
            result.list.append(std::move(*destination));
    }
    std::stable_sort(result.list.begin(), result.list.end(),
                     [](const auto& a, const auto& b) { return precedesByCodePoint(a.id, b.id); });
    return result;
}

} // namespace quillon
