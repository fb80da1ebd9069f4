#pragma once

#include "Failure.h"
#include "Paths.h"
#include "ResticDiagnosis.h"

#include <QByteArray>
#include <QObject>
#include <QStringList>

#include <functional>
#include <sys/types.h>

class QProcess;

namespace quillon {

/// For a child between fork and exec: lets the kernel send it that signal when its parent dies. False where the parent,
/// whose number was taken before the fork, has died already; nobody would tell of that any more. Async-signal-safe.
bool endWithParent(int signal, pid_t parent) noexcept;

/// Turns SIGTERM, SIGINT and SIGHUP into a request to end in good order. The signals stay blocked in this process as
/// long as it lives; one object a process.
class StopRequest final : public QObject {
    Q_OBJECT

public:
    StopRequest();
    ~StopRequest() override;

    bool isMade() const { return made_; }

Q_SIGNALS:
    /// Once, at the first request.
    void made();

private:
    void readSignal();

    int descriptor_;
    bool made_ = false;
};

class Repository;

/// How a run of restic ended.
struct ResticOutcome {
    int exitStatus = 0;     ///< the signal's number, negative, where a signal ended it
    QByteArray output;      ///< standard output, where no handler took it
    QString errorText;      ///< standard error without its JSON messages, up to a bound
    QString workFolder;     ///< where it had its temporary files
    bool diskGone = false;  ///< the repository's folder was no longer where it had been; restic was ended for it
    bool onNetwork = false; ///< the repository is at a network place
    bool stuck = false;     ///< it waited for room on a full disk; it was ended for it

    ResticDiagnosis diagnosis() const;

    /// What its failing means to a backup or a command.
    Failure failure() const;

    /// Throws that where it has failed.
    void require() const;
};

/// Runs restic on one repository. It gets nothing of this program's environment, is given up on gently when a stop is
/// requested, and does not outlive this program. It works inside the repository's folder: when the disk goes away it
/// fails, and writes nothing to what then lies at the same path. Of a network place it is told by its environment and
/// options; no secret is among its arguments.
class Restic {
public:
    using LineHandler = std::function<void(const QByteArray& line)>;

    /// Throws Failure where restic is not installed, or the key is missing. `stop` may be absent; it and the folder
    /// must outlive this object. It is opened with the key that is kept for the destination, unless another file with
    /// one is given.
    Restic(const Repository& repository, const Folders& folders, const StopRequest* stop, const QString& keyFile = {});

    /// The executable, or that of another program. Throws Failure where there is none.
    static QString executable(const QString& program = QStringLiteral("restic"));

    /// Makes a process ready that runs one command.
    void prepare(QProcess& process, const QStringList& arguments) const;

    /// Runs one command and waits for it in an event loop. Lines of standard output go to `onOutput` where it is given,
    /// all lines of standard error to `onMessage`.
    ResticOutcome run(const QStringList& arguments, const LineHandler& onOutput = {},
                      const LineHandler& onMessage = {}) const;

    /// The same; where a process that has died left its lock, that is removed and it runs once more. One whose worker
    /// was killed is waited for, since it needs a moment to end.
    ResticOutcome runUnlocking(const QStringList& arguments, const LineHandler& onOutput = {},
                               const LineHandler& onMessage = {}) const;

    /// The same restic with a feature that it does not have by default.
    Restic withFeature(const QString& name) const;

    /// The same restic, ended where it is found to wait for room that does not come. It is looked twice a second.
    Restic endedWhen(const std::function<bool()>& isStuck) const;

    /// The same restic, whose standard output is handed on in pieces as they come, for output without line breaks.
    Restic readInPieces() const;

    /// A path as a pattern that matches it and, unless it has bytes that are no UTF-8, or what restic tells in their
    /// place, nothing else.
    static QString literalPattern(const QString& path);

    static QString cacheFolder(const Folders& folders);

private:
    bool isStopped() const;
    void pause() const;

    const Repository& repository_;
    QString executable_;
    QStringList environment_;
    QStringList options_; ///< of every command
    QString workFolder_;
    const StopRequest* stop_;
    std::function<bool()> isStuck_;
    bool inPieces_ = false;
};

} // namespace quillon
