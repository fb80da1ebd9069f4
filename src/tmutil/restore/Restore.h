#pragma once

#include "Destination.h"
#include "Listing.h"
#include "Paths.h"
#include "Placement.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

namespace quillon {

/// What `restic restore` complains of, file by file.
class RestoreErrors {
public:
    /// `isThere` says of an absolute path of the backup whether something came back of it, or it is the one asked for:
    /// a name may hold anything, also what ends one in restic's words.
    explicit RestoreErrors(std::function<bool(const QString& path)> isThere);

    /// Takes all of standard error, in which names may hold line breaks and bytes that are no UTF-8.
    void read(const QByteArray& text);

    /// The decodePath()s of those that did not come back as they were, in order. What came back of them is not the
    /// file.
    QStringList damaged() const;

    /// Whether the owner, the rights or other attributes of something could not be given back. Its contents were.
    bool lackAttributes() const { return lackAttributes_; }

    /// The first words on the target, which could not take something in; empty where it took all.
    const QString& targetProblem() const { return targetProblem_; }

private:
    void readMessage(const QString& text);

    std::function<bool(const QString& path)> isThere_;
    QStringList damaged_;
    bool lackAttributes_ = false;
    QString targetProblem_;
};

class StopRequest;

/// Where something is restored to.
struct RestoreTarget {
    QString folder; ///< one that exists
    QString name;   ///< empty for the name that it has in the backup
    RestoreRule rule = RestoreRule::Refuse;
};

/// What came of it.
struct Restored {
    QString path;           ///< where it is now; where `skipped`, what is in the way
    bool skipped = false;   ///< something is in the way, and stays
    bool isDamaged = false; ///< not all of it was to be read
    QString lost = {};      ///< sentences on what did not come back as it was; empty where all did
    TreeSize size = {};
};

/// Gives files or folders back, each whole or not at all, but for what is damaged in the backup. All must outlive this
/// object.
class Restore {
public:
    using ProgressHandler = std::function<void(const TreeSize& size)>;

    /// What has come back of one place is told at most twice a second, where a handler is given.
    Restore(const std::vector<Destination>& destinations, const Folders& folders, const StopRequest& stop,
            ProgressHandler onProgress = {});

    /// What is damaged takes no other file's place: it gets a name of its own. Throws Failure where nothing was
    /// restored.
    Restored run(const PlaceInBackup& place, const RestoreTarget& target) const;

private:
    RestoreErrors fetch(const PlaceInBackup& place, const QString& path, const QString& tree) const;
    QString put(const QString& from, const QString& to, RestoreRule rule, const QString& date) const;
    void watch(const QString& tree, const std::function<void()>& work) const;

    const std::vector<Destination>& destinations_;
    const Folders& folders_;
    const StopRequest& stop_;
    ProgressHandler onProgress_;
};

} // namespace quillon
