#include "Probe.h"

#include <QJsonDocument>

namespace quillon {

using namespace Qt::StringLiterals;

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
    const QJsonValue bar = tell(u"state"_s)[u"bar"_s];
    if (!bar.isObject())
        return std::nullopt;
    return QRect(bar[u"x"_s].toInt(), bar[u"y"_s].toInt(), bar[u"w"_s].toInt(), bar[u"h"_s].toInt());
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
