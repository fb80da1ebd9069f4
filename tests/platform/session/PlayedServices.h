#pragma once

#include "EventLoop.h"
#include "PrivateBus.h"

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusMessage>

#include <gtest/gtest.h>

namespace quillon {

/// A service of the system or the session as python-dbusmock plays it, on a bus of the test's own.
class PlayedService {
public:
    /// Named as its template is; `service` and `path` are where callers find it.
    PlayedService(const PrivateBus& bus, const QString& name, QString service, QString path,
                  const QStringList& options = {})
        : name_(name)
        , service_(std::move(service))
        , path_(std::move(path))
        , bus_(bus.connect(name))
        , mock_(QStringLiteral("/usr/bin/python3"),
                QStringList{QStringLiteral("-m"), QStringLiteral("dbusmock"), QStringLiteral("--template"), name} +
                    options,
                {bus.variable().replace(QStringLiteral("SESSION"), QStringLiteral("SYSTEM")), bus.variable()})
    {
        EXPECT_TRUE(runUntil([this] { return bus_.interface()->isServiceRegistered(service_).value(); }))
            << "no python3-dbusmock";
    }
    PlayedService(const PlayedService&) = delete;
    PlayedService& operator=(const PlayedService&) = delete;
    ~PlayedService()
    {
        mock_.crash();
        EXPECT_TRUE(runUntil([this] { return !bus_.interface()->isServiceRegistered(service_).value(); }));
        QDBusConnection::disconnectFromBus(name_);
    }

    void emitSignal(const QString& interface, const QString& signal, const QString& signature,
                    const QVariantList& arguments)
    {
        play(QStringLiteral("EmitSignal"), {interface, signal, signature, arguments});
    }

protected:
    QDBusMessage play(const QString& method, const QVariantList& arguments)
    {
        return call(QStringLiteral("org.freedesktop.DBus.Mock"), method, arguments);
    }

    QDBusMessage call(const QString& interface, const QString& method, const QVariantList& arguments)
    {
        auto message = QDBusMessage::createMethodCall(service_, path_, interface, method);
        message.setArguments(arguments);
        const auto reply = bus_.call(message);
        EXPECT_EQ(reply.type(), QDBusMessage::ReplyMessage) << reply.errorMessage().toStdString();
        return reply;
    }

private:
    const QString name_;
    const QString service_;
    const QString path_;
    QDBusConnection bus_;
    ChildProgram mock_;
};

/// The locks that it hands out are real file descriptors.
class PlayedLogind final : public PlayedService {
public:
    explicit PlayedLogind(const PrivateBus& bus)
        : PlayedService(bus, QStringLiteral("logind"), QStringLiteral("org.freedesktop.login1"),
                        QStringLiteral("/org/freedesktop/login1"))
    {
    }

    /// Announces sleep (true) or wake (false).
    void prepareForSleep(bool start)
    {
        emitSignal(manager(), QStringLiteral("PrepareForSleep"), QStringLiteral("b"), {start});
    }

    /// The locks held right now, each as "what mode".
    QStringList locks()
    {
        QStringList result;
        const auto reply = call(manager(), QStringLiteral("ListInhibitors"), {});
        const auto list = reply.arguments().value(0).value<QDBusArgument>();
        list.beginArray();
        while (!list.atEnd()) {
            QString what, who, why, mode;
            list.beginStructure();
            list >> what >> who >> why >> mode;
            list.endStructure();
            result << what + u' ' + mode;
        }
        list.endArray(); // lets go of the reader's state
        return result;
    }

private:
    static QString manager() { return QStringLiteral("org.freedesktop.login1.Manager"); }
};

} // namespace quillon
