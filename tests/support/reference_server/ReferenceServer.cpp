#include "ReferenceServer.h"

#include <QJsonDocument>

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

ReferenceServer::ReferenceServer(const QString& certificate, const QString& name)
{
    QStringList arguments{QStringLiteral(REFERENCE_SERVER), u"--name"_s, name};
    if (!certificate.isEmpty())
        arguments << u"--certificate"_s << certificate;
    process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process_.start(u"/usr/bin/python3"_s, arguments);
    address_ = QString::fromUtf8(line()).trimmed();
    EXPECT_FALSE(address_.isEmpty()) << "no reference server";
}

ReferenceServer::~ReferenceServer()
{
    process_.closeWriteChannel(); // also a test that crashes ends the server this way
    if (!process_.waitForFinished(-1))
        process_.kill();
}

void ReferenceServer::play(const QString& fault, const QString& detail)
{
    command({{u"fault"_s, fault}, {u"detail"_s, detail}});
}

void ReferenceServer::setStatus(int status)
{
    command({{u"status"_s, status}});
}

QJsonArray ReferenceServer::requests()
{
    return command({}).value(u"requests"_s).toArray();
}

int ReferenceServer::dripped()
{
    return command({}).value(u"dripped"_s).toInt();
}

int ReferenceServer::left()
{
    return command({}).value(u"left"_s).toInt();
}

QJsonObject ReferenceServer::command(const QJsonObject& command)
{
    process_.write(QJsonDocument(command).toJson(QJsonDocument::Compact) + '\n');
    return QJsonDocument::fromJson(line()).object();
}

QByteArray ReferenceServer::line()
{
    while (!process_.canReadLine() && process_.waitForReadyRead(-1)) {
    }
    EXPECT_TRUE(process_.canReadLine()) << "the reference server is silent";
    return process_.readLine();
}

} // namespace quillon
