#include "Destination.h"

#include "Failure.h"
#include "History.h"
#include "NetworkPlace.h"
#include "RepositoryFolder.h"
#include "ShownText.h"

#include <QDir>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

bool Destination::isNetwork() const
{
    return NetworkPlace::isUrl(path);
}

QString Destination::repository() const
{
    return bare || isNetwork() ? path : backupFolder(path) + u'/' + id;
}

bool Destination::isPresent() const
{
    return isNetwork() || RepositoryFolder::open(*this).has_value();
}

QString Destination::absence() const
{
    if (isNetwork())
        return u"The network place \"%1\" cannot be reached."_s.arg(path);
    if (const QString trap = RepositoryFolder::trap(*this); !trap.isEmpty())
        return u"\"%1\" is neither a file nor a folder, or is a link, and would keep these backups from being read. "
               "Whoever can change the disk has put it there. Remove it."_s.arg(shownLongText(trap));
    if (RepositoryFolder::contents(*this) == RepositoryFolder::Contents::Foreign)
        return u"\"%1\" is not yours, or leads elsewhere."_s.arg(repository());
    // An empty mount point, or none, stands for a disk that is not connected.
    if (bare || QDir(path).isEmpty())
        return u"The backup disk \"%1\" is not there."_s.arg(name);
    return u"The disk at \"%1\" has no backups of yours: it is another one, or has been erased. To begin anew on it, "
           "set it again with \"tmutil setdestination\"."_s.arg(path);
}

QString Destination::backupFolder(const QString& path)
{
    return (path.endsWith(u'/') ? path : path + u'/') + "Quillon.backups"_L1;
}

namespace {

void requireAny(const std::vector<Destination>& destinations)
{
    if (destinations.empty())
        throw Failure(ExitStatus::NoDestination,
                      u"No backup disk or network place is set. Set one with \"tmutil setdestination\"."_s);
}

void requirePresent(const std::vector<Destination>& present, const std::vector<Destination>& destinations)
{
    if (present.empty())
        throw Failure(ExitStatus::DestinationMissing, destinations.size() == 1
                                                          ? destinations.front().absence()
                                                          : u"None of the backup disks and network places is there."_s);
}

} // namespace

Destination namedDestination(const std::vector<Destination>& destinations, const QString& id)
{
    requireAny(destinations);
    const auto found = std::ranges::find_if(destinations, [&id](const Destination& destination) {
        return destination.id.compare(id, Qt::CaseInsensitive) == 0;
    });
    if (found == destinations.end())
        throw Failure(ExitStatus::UnknownDestination,
                      u"No backup disk or network place has the identifier \"%1\"."_s.arg(id));
    if (!found->isPresent())
        throw Failure(ExitStatus::DestinationMissing, found->absence());
    return *found;
}

Destination usualDestination(const std::vector<Destination>& destinations, const History& history,
                             const PresenceQuestion& presentOf)
{
    requireAny(destinations);
    auto others = destinations;
    const auto last = std::ranges::find(others, history.lastDestination(), &Destination::id);
    if (last != others.end()) {
        if (!presentOf({*last}).empty())
            return *last;
        others.erase(last);
    }
    const auto present = presentOf(others);
    requirePresent(present, destinations);
    return present.front();
}

Destination rotatedDestination(const std::vector<Destination>& destinations, const History& history,
                               const PresenceQuestion& presentOf)
{
    requireAny(destinations);
    const auto present = presentOf(destinations);
    requirePresent(present, destinations);
    // An invalid date, which stands for "never", is before every other.
    return *std::ranges::min_element(
        present, {}, [&history](const Destination& destination) { return history.lastBackup(destination.id); });
}

} // namespace quillon
