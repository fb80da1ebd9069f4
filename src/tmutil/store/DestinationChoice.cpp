#include "DestinationChoice.h"

#include "Failure.h"
#include "History.h"

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

void requireAny(const std::vector<Destination>& destinations)
{
    if (destinations.empty())
        throw Failure(ExitStatus::NoDestination, u"No backup disk is set. Set one with \"tmutil setdestination\"."_s);
}

std::vector<Destination> presentOnes(const std::vector<Destination>& destinations)
{
    requireAny(destinations);
    std::vector<Destination> present;
    std::ranges::copy_if(destinations, std::back_inserter(present), &Destination::isPresent);
    if (present.empty())
        throw Failure(ExitStatus::DestinationMissing, destinations.size() == 1
                                                          ? destinations.front().absence()
                                                          : u"None of the backup disks is there."_s);
    return present;
}

} // namespace

Destination namedDestination(const std::vector<Destination>& destinations, const QString& id)
{
    requireAny(destinations);
    const auto found = std::ranges::find_if(destinations, [&id](const Destination& destination) {
        return destination.id.compare(id, Qt::CaseInsensitive) == 0;
    });
    if (found == destinations.end())
        throw Failure(ExitStatus::UnknownDestination, u"No backup disk has the identifier \"%1\"."_s.arg(id));
    if (!found->isPresent())
        throw Failure(ExitStatus::DestinationMissing, found->absence());
    return *found;
}

Destination usualDestination(const std::vector<Destination>& destinations, const History& history)
{
    const auto present = presentOnes(destinations);
    const auto last = std::ranges::find(present, history.lastDestination(), &Destination::id);
    return last != present.end() ? *last : present.front();
}

Destination rotatedDestination(const std::vector<Destination>& destinations, const History& history)
{
    const auto present = presentOnes(destinations);
    // An invalid date, which stands for "never", is before every other.
    return *std::ranges::min_element(
        present, {}, [&history](const Destination& destination) { return history.lastBackup(destination.id); });
}

} // namespace quillon
