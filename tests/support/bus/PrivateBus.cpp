#include "PrivateBus.h"

#include <QFile>

#include <stdexcept>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

QString writeConfiguration(const QTemporaryDir& folder)
{
    QFile file(folder.filePath(u"bus.conf"_s));
    if (!file.open(QIODevice::WriteOnly))
        throw std::runtime_error("cannot write the configuration of the bus");
    file.write(
        u"<busconfig><type>session</type><listen>unix:path=%1</listen><policy context=\"default\">"
        "<allow send_destination=\"*\" eavesdrop=\"true\"/><allow eavesdrop=\"true\"/><allow own=\"*\"/></policy></busconfig>"_s
            .arg(folder.filePath(u"socket"_s))
            .toUtf8());
    return file.fileName();
}

} // namespace

PrivateBus::PrivateBus()
    : daemon_(u"dbus-daemon"_s,
              {u"--config-file="_s + writeConfiguration(folder_), u"--nofork"_s, u"--print-address"_s})
    , address_(daemon_.readLine())
{
}

QString PrivateBus::variable() const
{
    return u"DBUS_SESSION_BUS_ADDRESS="_s + address_;
}

QDBusConnection PrivateBus::connect(const QString& name) const
{
    return QDBusConnection::connectToBus(address_, name);
}

} // namespace quillon
