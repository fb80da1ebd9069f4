#pragma once

#include "Destination.h"
#include "Folders.h"
#include "ResticDiagnosis.h"

#include <QByteArray>
#include <QStringList>

#include <functional>

namespace quillon {

class StopRequest;

/// How a run of restic ended.
struct ResticOutcome {
    int exitStatus = 0; ///< the signal's number, negative, where a signal ended it
    QByteArray output;  ///< standard output, where no handler took it
    QString errorText;  ///< standard error without its JSON messages, up to a bound

    ResticDiagnosis diagnosis() const { return ResticDiagnosis::of(errorText, exitStatus); }
};

/// Runs restic on one repository. It gets nothing of this program's environment, is given up on gently when a stop is
/// requested, and does not outlive this program.
class Restic {
public:
    using LineHandler = std::function<void(const QByteArray& line)>;

    /// Throws Failure where restic is not installed. `stop` may be absent; it must outlive this object.
    Restic(const Destination& destination, const Folders& folders, const StopRequest* stop);

    /// The executable. Throws Failure where there is none.
    static QString executable();

    /// The tag of all snapshots made here; others in the same repository are left alone.
    static QString tag();

    /// Runs one command and waits for it in an event loop. Lines of standard output go to `onOutput` where it is given,
    /// JSON messages on standard error to `onMessage`.
    ResticOutcome run(const QStringList& arguments, const LineHandler& onOutput = {},
                      const LineHandler& onMessage = {}) const;

    /// The same on another folder than the destination's own.
    ResticOutcome runOn(const QString& repository, const QStringList& arguments, const LineHandler& onOutput = {},
                        const LineHandler& onMessage = {}) const;

    /// A path as a pattern that matches it and nothing else.
    static QString literalPattern(const QString& path);

    static QString cacheFolder(const Folders& folders);

private:
    QString executable_;
    QString repository_;
    QStringList environment_;
    const StopRequest* stop_;
};

} // namespace quillon
