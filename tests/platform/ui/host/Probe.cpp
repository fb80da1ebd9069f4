#include "Probe.h"

#include <QJsonDocument>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

std::optional<QRect> rect(const QJsonValue& json)
{
    if (!json.isObject())
        return std::nullopt;
    return QRect(json[u"x"_s].toInt(), json[u"y"_s].toInt(), json[u"w"_s].toInt(), json[u"h"_s].toInt());
}

} // namespace

Probe::Probe(const PrivateBus& bus, const QString& placement, const QStringList& environment)
    : program_(QStringLiteral(STATUS_ITEM_PROBE), {placement}, environment + QStringList{bus.variable()})
{
}

QJsonObject Probe::tell(const QString& command)
{
    program_.process().write(command.toUtf8() + '\n');
    return QJsonDocument::fromJson(program_.readLine().toUtf8()).object();
}

std::optional<QRect> Probe::bar()
{
    return rect(tell(u"state"_s)[u"bar"_s]);
}

std::optional<QRect> Probe::icon()
{
    return rect(tell(u"state"_s)[u"icon"_s]);
}

bool Probe::isMenuOpen()
{
    return tell(u"state"_s)[u"menuOpen"_s].toBool();
}

QString Probe::windowName()
{
    return u"status_item_probe"_s;
}

} // namespace quillon
