#include "SourceSet.h"

#include "Configuration.h"
#include "Paths.h"
#include "Restic.h"

#include <QFileInfo>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

bool coveredByAny(const QStringList& folders, const QString& path)
{
    return std::ranges::any_of(folders, [&path](const QString& folder) { return covers(folder, path); });
}

/// A backup disk that lies in a source is left out whole, unless a source lies in it in turn: then only the backups.
QString excludedFolder(const Destination& destination, const QStringList& sources)
{
    const bool holdsSource =
        std::ranges::any_of(sources, [&](const QString& source) { return covers(destination.path, source); });
    return coveredByAny(sources, destination.path) && !holdsSource ? destination.path
                                                                   : Destination::backupFolder(destination.path);
}

} // namespace

SourceSet SourceSet::of(const Configuration& configuration, const Folders& folders)
{
    SourceSet set;
    set.excluded = configuration.exclusions();
    for (const QString& source : configuration.sources()) {
        const QString canonical = QFileInfo(source).canonicalFilePath();
        if (canonical.isEmpty())
            set.missing.append(source);
        else if (coveredByAny(set.excluded, canonical))
            set.leftOut.append(source);
        else
            set.folders.append(canonical);
    }
    set.folders.removeDuplicates();

    for (const Destination& destination : configuration.destinations())
        set.excluded.append(excludedFolder(destination, set.folders));
    for (const QString& own : {folders.cache, folders.state}) {
        const QString canonical = QFileInfo(own).canonicalFilePath();
        set.excluded.append(canonical.isEmpty() ? own : canonical);
    }
    set.excluded.removeDuplicates();
    return set;
}

bool SourceSet::contains(const QString& path) const
{
    return coveredByAny(folders, path) && !coveredByAny(excluded, path);
}

QStringList SourceSet::arguments() const
{
    QStringList arguments;
    for (const QString& path : excluded)
        arguments << u"--exclude"_s << Restic::literalPattern(path);
    return arguments << u"--"_s << folders;
}

} // namespace quillon
