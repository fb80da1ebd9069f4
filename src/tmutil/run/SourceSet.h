#pragma once

#include "Paths.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <utility>
#include <vector>

namespace quillon {

/// Whether a folder is tagged as a cache ("Cache Directory Tagging Specification"), of which restic is told to keep
/// nothing but the tag.
bool isTaggedAsCache(const QString& folder);

/// Those that are, at that folder or below it, but none in another one, and none in what is skipped.
QStringList foldersTaggedAsCache(const QString& folder, const std::function<bool(const QString& folder)>& isSkipped);

class Configuration;

/// What a backup reads and what it leaves out.
struct SourceSet {
    QStringList folders;  ///< those that are there, free of links: restic would store a link itself
    QStringList missing;  ///< those that are not
    QStringList moved;    ///< as they were named, those that a link has come in the way of since
    QStringList leftOut;  ///< those that an exclusion leaves nothing of
    QStringList excluded; ///< by the user or not

    QStringList excludedNames;
    qlonglong largestFile = 0; ///< bytes; 0 for any

    /// Of those the ones that no user has named, each with the reason.
    std::vector<std::pair<QString, QString>> automatic;
    QStringList otherFileSystems; ///< of those the ones mounted in a source

    /// Backup disks, restic's cache and the state folder are always left out, besides what the user excludes; the
    /// user's cache folder, the wastebaskets and other file systems are, unless a source lies in them.
    static SourceSet of(const Configuration& configuration, const Folders& folders,
                        const MountTable& mounts = MountTable::current());

    /// Of the folders those in which no file is found, be it that they cannot be read.
    QStringList withoutFiles() const;

    /// What those names and that size, which stand for themselves, leave out of what would be read.
    struct Omission {
        qlonglong files = 0;
        qlonglong bytes = 0;
    };
    Omission omittedBy(const QStringList& names, qlonglong largest) const;

    /// Whether a backup reads that path, if there is something.
    bool contains(const QString& path) const;

    /// Of the folders that are read those that are left out for being tagged as caches. All folders are looked into.
    QStringList caches() const;

    /// The arguments of `restic backup` that say so. Folders that are tagged as caches are left out, too, unless a
    /// source is one.
    QStringList arguments() const;

private:
    bool leavesCachesOut() const;
    bool leaveOut(const QString& path, const QString& reason);
    bool leaveOutUnlessSource(const QString& path, const QString& reason);
};

} // namespace quillon
