#pragma once

#include "ChildProgram.h"
#include "EventLoop.h"

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace quillon {

/// A Wayland compositor without a screen that anybody sees.
class WaylandCompositor {
public:
    WaylandCompositor()
    {
        EXPECT_TRUE(runUntil([this] { return QFile::exists(socket()); }));
    }

    /// The environment of its clients that use Qt.
    QStringList variables() const
    {
        return {QStringLiteral("QT_QPA_PLATFORM=wayland"), QStringLiteral("WAYLAND_DISPLAY=") + socket(),
                QStringLiteral("ASAN_OPTIONS=detect_leaks=0")}; // Qt's plugin for Wayland frees little at its end
    }
    /// How often clients or it have said something of that pattern so far.
    qsizetype said(const QString& pattern) const
    {
        QFile file(log());
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).count(QRegularExpression(pattern))
                                              : 0;
    }

private:
    QString socket() const { return folder_.filePath(QStringLiteral("wayland")); }
    QString log() const { return folder_.filePath(QStringLiteral("log")); }

    QTemporaryDir folder_;
    ChildProgram program_{QStringLiteral("weston"),
                          {QStringLiteral("--no-config"), QStringLiteral("--backend=headless-backend.so"),
                           QStringLiteral("--idle-time=0"), QStringLiteral("--socket=wayland"),
                           QStringLiteral("--log=") + log(), QStringLiteral("--logger-scopes=log,proto")},
                          {QStringLiteral("XDG_RUNTIME_DIR=") + folder_.path()}};
};

} // namespace quillon
