#include "Retention.h"

namespace quillon {

using namespace Qt::StringLiterals;

QStringList forgetArguments(const QString& tag)
{
    // One group for all: neither a new set of sources nor a renamed machine may start the count anew.
    return {u"forget"_s, u"--tag"_s,        tag,     u"--group-by"_s,    QString(), u"--keep-hourly"_s,
            u"24"_s,     u"--keep-daily"_s, u"30"_s, u"--keep-weekly"_s, u"520"_s};
}

bool isPruneDue(const QDateTime& lastPrune, const QDateTime& now)
{
    // A date ahead of now was written by a clock that has been set back since.
    return !lastPrune.isValid() || lastPrune > now || lastPrune.addDays(7) <= now;
}

} // namespace quillon
