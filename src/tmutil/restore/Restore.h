#pragma once

#include "Destination.h"
#include "Folders.h"
#include "Listing.h"
#include "Placement.h"
#include "RestoreErrors.h"
#include "RestoredTree.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

namespace quillon {

class Restic;
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
