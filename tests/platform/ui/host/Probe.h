#pragma once

#include "PrivateBus.h"

#include <QJsonObject>
#include <QRect>

#include <optional>

namespace quillon {

/// A running program with a status item, on a display and a bus of its own.
class Probe {
public:
    /// @param placement "auto", "tray" or "bar"
    /// @param environment a list of "NAME=value"; the variables of the display are among them
    Probe(const PrivateBus& bus, const QString& placement, const QStringList& environment);

    /// Has the program do something (see StatusItemProbe.cpp) and tells how things stand.
    QJsonObject tell(const QString& command);
    /// Where the bar is, in logical pixels; nothing when there is none.
    std::optional<QRect> bar();
    /// Where the tray shows the icon, in logical pixels; nothing when there is none or nobody knows.
    std::optional<QRect> icon();
    bool isMenuOpen();

    /// Name of the program's windows.
    static QString windowName();

private:
    ChildProgram program_;
};

} // namespace quillon
