#pragma once

#include "ChildProgram.h"
#include "EventLoop.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QRect>

#include <optional>

namespace quillon {

/// The running program of DesktopProbe.cpp, on a display and a bus of its own.
class Probe {
public:
    /// @param scene "auto", "tray" or "bar", where a status item is placed, or "popover"
    /// @param environment a list of "NAME=value"; the variables of the display are among them
    Probe(const QString& scene, const QStringList& environment)
        : program_(QStringLiteral(DESKTOP_PROBE), {scene}, environment)
    {
    }

    /// Has the program do something and tells how things stand.
    QJsonObject tell(const QString& command)
    {
        program_.process().write(command.toUtf8() + '\n');
        return QJsonDocument::fromJson(program_.readLine().toUtf8()).object();
    }
    QJsonValue state(const QString& key) { return tell(QStringLiteral("state"))[key]; }
    bool becomes(const QString& key, const QJsonValue& value)
    {
        return runUntil([&] { return state(key) == value; });
    }
    /// Where something is, in logical pixels; nothing when there is none or nobody knows.
    std::optional<QRect> place(const QString& key)
    {
        const QJsonValue found = state(key);
        const auto number = [&found](const char* name) { return found[QLatin1StringView(name)].toInt(); };
        return found.isObject() ? std::optional(QRect(number("x"), number("y"), number("w"), number("h")))
                                : std::nullopt;
    }

private:
    ChildProgram program_;
};

} // namespace quillon
