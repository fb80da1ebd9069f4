#include "TmutilScript.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <stdexcept>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

TmutilScript::Fault readFault(const QString& name)
{
    static const QStringList faults{u""_s, u"hang"_s, u"crash"_s, u"half"_s, u"endless"_s, u"notUtf8"_s, u"refused"_s};
    if (!faults.contains(name))
        throw std::runtime_error("unknown fault in a tmutil script");
    return TmutilScript::Fault(faults.indexOf(name));
}

} // namespace

TmutilScript TmutilScript::fromJson(const QByteArray& json)
{
    const auto document = QJsonDocument::fromJson(json);
    if (!document.isArray())
        throw std::runtime_error("a tmutil script is a JSON array");
    TmutilScript script;
    for (const auto& entry : document.array()) {
        const QJsonObject object = entry.toObject();
        Call call;
        call.expected = object.value("expect"_L1).toVariant().toStringList();
        call.output = object.value("output"_L1).toString().toUtf8();
        call.status = object.value("status"_L1).toInt();
        call.delay = object.value("delay"_L1).toDouble();
        call.fault = readFault(object.value("fault"_L1).toString());
        script.calls.append(call);
    }
    return script;
}

} // namespace quillon
