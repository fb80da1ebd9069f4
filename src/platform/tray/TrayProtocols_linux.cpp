#include "TrayProtocols_linux.h"

#include <QDBusVariant>

namespace quillon::trayprotocols {

using namespace Qt::StringLiterals;

QDBusMessage statusNotifierQuestion()
{
    auto question = QDBusMessage::createMethodCall(statusNotifierWatcher, statusNotifierPath,
                                                   "org.freedesktop.DBus.Properties"_L1, "Get"_L1);
    question.setAutoStartService(false);
    question.setArguments({QString(statusNotifierWatcher), u"IsStatusNotifierHostRegistered"_s});
    return question;
}

bool isYes(const QDBusMessage& answer)
{
    return answer.type() == QDBusMessage::ReplyMessage &&
           answer.arguments().value(0).value<QDBusVariant>().variant().toBool();
}

} // namespace quillon::trayprotocols
