#include "SourceSet.h"

#include "Restic.h"

#include <QFileInfo>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

bool isWithin(const QString& path, const QString& folder)
{
    return path != folder && path.startsWith(folder.endsWith(u'/') ? folder : folder + u'/');
}

/// A backup disk that lies in a source is left out whole, unless a source lies in it in turn: then only the backups.
QString excludedFolder(const Destination& destination, const QStringList& sources)
{
    const bool inSource =
        std::ranges::any_of(sources, [&](const QString& source) { return isWithin(destination.path, source); });
    const bool holdsSource = std::ranges::any_of(sources, [&](const QString& source) {
        return source == destination.path || isWithin(source, destination.path);
    });
    return inSource && !holdsSource ? destination.path : Destination::backupFolder(destination.path);
}

} // namespace

SourceSet SourceSet::of(const QStringList& sources, const std::vector<Destination>& destinations,
                        const Folders& folders)
{
    SourceSet set;
    for (const QString& source : sources) {
        const QString canonical = QFileInfo(source).canonicalFilePath();
        if (canonical.isEmpty())
            set.missing.append(source);
        else
            set.folders.append(canonical);
    }
    set.folders.removeDuplicates();

    for (const Destination& destination : destinations)
        set.excluded.append(excludedFolder(destination, set.folders));
    for (const QString& own : {folders.cache, folders.state}) {
        const QString canonical = QFileInfo(own).canonicalFilePath();
        set.excluded.append(canonical.isEmpty() ? own : canonical);
    }
    set.excluded.removeDuplicates();
    return set;
}

QStringList SourceSet::arguments() const
{
    QStringList arguments;
    for (const QString& path : excluded)
        arguments << u"--exclude"_s << Restic::literalPattern(path);
    return arguments << u"--"_s << folders;
}

} // namespace quillon
