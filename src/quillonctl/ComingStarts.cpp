#include "ComingStarts.h"

#include "NextBackup.h"
#include "SettingsKeys.h"

namespace quillon {

using namespace std::chrono_literals;

QList<Date> comingStarts(const UserDefaults& defaults, Date from, int count)
{
    QList<Date> starts;
    if (defaults.integer(settingskeys::enableSchedule) != 1)
        return starts;
    const auto rules = CalendarIntervalRule::listFromArray(defaults.array(settingskeys::calendarIntervals));
    const Calendar calendar;
    Date reference = nextbackup::referenceDate(from, defaults.date(settingskeys::pauseUntilDate), std::nullopt);
    while (starts.size() < count) {
        const auto next = nextbackup::nextBackupDate(rules, reference, calendar);
        if (!next)
            break;
        starts.append(*next);
        reference = *next + 1ms;
    }
    return starts;
}

} // namespace quillon
