#pragma once

#include "Ledger.h"
#include "RunLoop.h"
#include "Task.h"

#include <QObject>
#include <QString>

#include <functional>
#include <list>
#include <memory>

namespace quillon {

/// Runs the user's own programs ahead of a start and after what has become of one: executables in one folder, each
/// with the name of its event. Nothing waits for them but the start that one precedes.
class Hooks {
public:
    enum class Event { Before, Completed, Failed, Skipped };

    struct Services {
        RunLoop& runLoop;
        TaskLauncher& launcher;
        QString folder;
    };

    struct Result {
        bool succeeded = true;
        QString words{}; ///< what it printed, bounded; of one that failed its last line, or why it was not run
    };
    using Completion = std::function<void(const Result& result)>;

    explicit Hooks(Services services);
    Hooks(const Hooks&) = delete;
    Hooks& operator=(const Hooks&) = delete;
    ~Hooks();

    /// Calls the completion at once where the event has no program, else in a later turn, unless `whoAsks` is gone.
    void run(Event event, const LedgerEntry& entry, QObject* whoAsks, const Completion& completion);

private:
    struct Run;

    void launch(Run& run, const QString& program, const QStringList& environment);

    Services services_;
    std::list<Run> running_;
};

/// Where they are looked for.
QString hooksFolder();

} // namespace quillon
