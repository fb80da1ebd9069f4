#pragma once

#include "Date.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace quillon {

/// What quillonctl was asked for.
struct Arguments {
    enum class Command { Help, Version, Status, Destinations, Next, History, Doctor, OfRunning };

    Command command = Command::Help;
    bool json = false;
    int count = 5;            ///< how many coming dates, or past starts
    std::optional<Date> from; ///< look for them from here on instead of from now
    QStringList request{};    ///< OfRunning: what the running Quillon is asked for, as ControlRequest reads it

    /// Reads the words behind the program's name; nothing, with one clear line in `error`, when they are wrong.
    static std::optional<Arguments> parse(const QStringList& words, QString* error);
};

class RunLoop;
class TaskLauncher;

struct ProgramServices {
    RunLoop& runLoop;
    TaskLauncher& launcher;
};

/// Answers the words behind the program's name on standard output, and returns the exit status: 1 where what was asked
/// for cannot be told, is refused, or something is wrong, 2 where it takes a running Quillon and there is none;
/// standard error says what. Words that cannot be read end it with 2, and with 64 where they are for a running Quillon.
int runQuillonctl(const QStringList& words, const ProgramServices& services);

} // namespace quillon
