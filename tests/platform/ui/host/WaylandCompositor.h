#pragma once

#include "ChildProgram.h"

#include <QTemporaryDir>

namespace quillon {

/// A Wayland compositor without a screen that anybody sees.
class WaylandCompositor {
public:
    WaylandCompositor();

    /// The environment of its clients that use Qt.
    QStringList variables() const;
    /// What clients asked of it and what it told them so far, one protocol message a line.
    QByteArray messages() const;

private:
    QString logFile() const { return folder_.filePath(QStringLiteral("log")); }

    QTemporaryDir folder_;
    ChildProgram program_;
};

} // namespace quillon
