#pragma once

#include "TMUtil.h"

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QStringList>

#include <chrono>
#include <functional>
#include <optional>

namespace quillon {

class AlertPresenter;

/// How a call of tmutil ended.
struct TmutilAnswer {
    bool success = false;
    QByteArray output;
    QString complaint; ///< one line for people; empty after a success
    int status = 0;    ///< tmutil(1), EXIT STATUS
};

/// Why something failed, by the word that tmutil has for it (tmutil(1), "restore --json"), with tmutil's own line
/// behind it; that alone where there is no such word.
QString toolReason(const QString& cause, const QString& line);

/// What went wrong with a call that failed, in a line for people.
QString toolComplaint(const TaskResult& result, const QString& executable);

/// Calls tmutil, one call after the other, and says in a line for people what went wrong. Calls that
/// wait or run when this goes away are given up.
class TmutilClient {
public:
    /// Called once, in a later turn. It may make further calls.
    using Handler = std::function<void(const TmutilAnswer&)>;

    /// Launcher and run loop must outlive this object.
    TmutilClient(TaskLauncher& launcher, RunLoop& runLoop, QString executable,
                 Seconds longestCall = std::chrono::minutes(1));
    TmutilClient(const TmutilClient&) = delete;
    TmutilClient& operator=(const TmutilClient&) = delete;
    /// tmutil may be ended at any point: what it writes, it writes whole.
    ~TmutilClient() { queue_.abandon(); }

    /// `input` is what tmutil reads from its standard input, where it is to read something.
    void call(const QStringList& arguments, const Handler& handler, const std::optional<QByteArray>& input = {});

private:
    QString executable_;
    Seconds longestCall_;
    TMUtilQueue queue_;
};

/// The setup of Time Machine as the pages of the window share it: tmutil is asked and told one thing after the other,
/// a change comes alone and is followed by reading anew.
class Setup final : public QObject {
    Q_OBJECT

public:
    /// All outlive the setup.
    struct Services {
        TaskLauncher& launcher;
        RunLoop& runLoop;
        AlertPresenter& alerts;
        QString tmutil; ///< path of the tool
    };
    /// Takes what tmutil has printed; false where that is not whole.
    using Reader = std::function<bool(const QByteArray& answer)>;

    explicit Setup(const Services& services);

    const Services& services() const { return services_; }

    /// Whether something is being read or changed.
    bool isBusy() const { return awaitedReads_ > 0 || changing_; }

    void read(const QStringList& arguments, const Reader& reader);

    /// `ended` is told ahead of what is read anew.
    void change(const QStringList& arguments, const std::optional<QByteArray>& input,
                const TmutilClient::Handler& ended);

    /// An alert with that headline says why it has failed. `then` takes what was printed otherwise.
    void change(const QStringList& arguments, const QString& headline, const Reader& then = {});

    /// Made ahead of the change that follows, which is made in any case.
    void prepare(const QStringList& arguments);

    /// Asks ahead of something that is not done lightly; the button that does it has that title.
    void confirm(const QString& message, const QString& informative, const QString& title,
                 const std::function<void()>& go) const;

    void complain(const QString& headline, const QString& complaint) const;

Q_SIGNALS:
    /// All that was asked for is in; what went wrong with it, or nothing.
    void readAll(const QString& trouble);
    /// While something is changed nothing else can be.
    void changing(bool begun);
    void changed();

private:
    Services services_;
    QString trouble_;      ///< of the answers since the last time all were in
    int awaitedReads_ = 0; ///< answers still to come
    bool changing_ = false;
    TmutilClient tmutil_; ///< last, so that no answer finds half a setup
};

/// A mounted file system that can be offered as a backup disk.
struct MountedDisk {
    QString name; ///< its label or, without one, that of its folder; fit to be shown
    QString path; ///< where it is mounted
    std::optional<qint64> bytesFree;

    bool operator==(const MountedDisk&) const = default;
};

/// The disks in what `lsblk` of util-linux prints as JSON: mounted, writable, and not part of the running system.
/// Nothing where it has printed something else.
std::optional<std::vector<MountedDisk>> readMountedDisks(const QByteArray& lsblk);

/// Which disks are mounted. lsblk is asked, in a process of its own: a disk that hangs would block whoever asks the
/// kernel for its room, and blocks lsblk, too, which then is given up.
class MountedDisks {
public:
    enum class State {
        Asked,  ///< for the first time
        Known,  ///< by the last answer
        Failed, ///< there was none, or none in time
    };

    /// Launcher and run loop must outlive this object.
    MountedDisks(TaskLauncher& launcher, RunLoop& runLoop, QString lsblk);
    MountedDisks(const MountedDisks&) = delete;
    MountedDisks& operator=(const MountedDisks&) = delete;
    ~MountedDisks();

    State state() const { return state_; }

    /// Empty unless they are known.
    const std::vector<MountedDisk>& list() const { return list_; }

    /// Asks anew, unless an answer is still awaited.
    void refresh();

private:
    void take(const TaskResult& result);
    void fail();

    TaskLauncher& launcher_;
    RunLoop& runLoop_;
    QString lsblk_;
    State state_ = State::Asked;
    Timer limit_;
    std::unique_ptr<RunningTask> child_;
    std::vector<MountedDisk> list_;
};

} // namespace quillon
