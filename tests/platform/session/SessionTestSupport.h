#pragma once

#include <QFile>
#include <QProcess>

#include <gtest/gtest.h>

namespace quillon {

/// Makes an executable shell script of this body.
inline void writeScript(const QString& path, const QString& body)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    file.write("#!/bin/sh\n" + body.toUtf8());
    ASSERT_TRUE(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

inline QString contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

struct Finished {
    int status;     ///< exit status, -1 for any other end
    QString output; ///< standard output and error
};

/// Runs a program of the system to its end.
inline Finished run(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    const bool ended = process.waitForFinished(240'000) && process.exitStatus() == QProcess::NormalExit;
    return {ended ? process.exitCode() : -1, QString::fromUtf8(process.readAll())};
}

} // namespace quillon
