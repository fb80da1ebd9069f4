#include "LastFailure.h"

namespace quillon {

using namespace Qt::StringLiterals;

QString statusDate(const QDateTime& date)
{
    return date.toUTC().toString(u"yyyy-MM-dd HH:mm:ss '+0000'"_s);
}

QVariantMap LastFailure::toDictionary() const
{
    QVariantMap entry{
        {u"Date"_s, date}, {u"DestinationID"_s, destinationId}, {u"Cause"_s, cause}, {u"Description"_s, description}};
    if (unreadFiles > 0)
        entry.insert(u"UnreadFiles"_s, unreadFiles);
    return entry;
}

} // namespace quillon
