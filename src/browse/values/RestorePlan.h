#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <deque>
#include <map>
#include <optional>
#include <vector>

namespace quillon {

/// What becomes of something that is to be restored where something of its name is already.
enum class ConflictRule { KeepBoth, Replace, Skip };

/// A line of `tmutil restore --json`.
struct RestoreEvent {
    enum class Kind { Progress, Restored, Skipped, Failed, Done };

    Kind kind = Kind::Progress;
    qint64 files = 0;
    qint64 totalFiles = 0;
    qint64 bytes = 0;
    qint64 totalBytes = 0;
    QString source = {}; ///< as it was asked for
    QString path = {};   ///< where it is, or was to be
    QString reason = {}; ///< of a failure, or what a restored thing lacks, fit to be shown
};
std::optional<RestoreEvent> readRestoreEvent(const QByteArray& line);

/// A restore from its first call of tmutil to the list of what did not come back. What is in nobody's way comes back
/// at once; about the rest the user is asked, and calls with the rules that were chosen follow.
class RestorePlan {
public:
    /// Something that cannot come back as it is without touching what is there.
    struct Conflict {
        QString source;
        QString path;
    };
    struct Loss {
        QString path;
        QString reason; ///< fit to be shown

        bool operator==(const Loss&) const = default;
    };

    /// `sources` are names of backups with the paths in them. Without a folder each comes back to its place.
    RestorePlan(const QStringList& sources, QString folder);

    /// The arguments of the next call; nothing while an answer is wanted, and when all is done.
    std::optional<QStringList> nextCall();
    void take(const RestoreEvent& event);
    /// The call has ended. What it has not told of is lost for that reason, or where the user stopped it, left alone.
    void endCall(const QString& complaint);
    /// The user stops it: no call follows.
    void stop();

    std::optional<Conflict> question() const;
    /// Whether an answer may hold for others, too.
    bool isMoreInTheWay() const { return conflicts_.size() > 1; }
    void answer(ConflictRule rule, bool forAll);

    /// How far the current call is.
    const RestoreEvent& progress() const { return progress_; }
    bool isStopped() const { return stopped_; }
    bool isDone() const;
    int restored() const { return restored_; }
    int skipped() const { return skipped_; }
    int lost() const { return lost_; }
    /// What is lost, and what of the restored lacks something.
    const std::vector<Loss>& losses() const { return losses_; }

private:
    bool isTried() const;
    void settle(const QString& source);
    void lose(const QString& path, const QString& reason);

    QString folder_;
    std::map<ConflictRule, QStringList> due_; ///< sources by the rule they are to be restored with
    ConflictRule running_ = ConflictRule::Skip;
    QStringList untold_; ///< sources of the running call that nothing was heard of
    std::deque<Conflict> conflicts_;
    RestoreEvent progress_;
    bool stopped_ = false;
    int restored_ = 0;
    int skipped_ = 0;
    int lost_ = 0;
    std::vector<Loss> losses_;
};

/// What is shown of a restore that runs, and at its end.
QString progressText(const RestoreEvent& progress);
QString summaryOf(const RestorePlan& plan);
/// The question about something that is in the way.
QString conflictText(const RestorePlan::Conflict& conflict);

} // namespace quillon
