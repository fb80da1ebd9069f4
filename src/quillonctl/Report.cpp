#include "Report.h"

#include "Calendar.h"
#include "NextBackup.h"
#include "ShownText.h"
#include "StoredAndSentNames.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace quillon {

using namespace std::chrono_literals;

QList<Date> comingStarts(const UserDefaults& defaults, Date from, int count)
{
    QList<Date> starts;
    if (defaults.integer(settingskeys::enableSchedule) != 1)
        return starts;
    const auto rules = CalendarIntervalRule::listFromArray(defaults.array(settingskeys::calendarIntervals));
    const auto changes = ChangedStart::listFromArray(defaults.array(settingskeys::changedStarts));
    const Calendar calendar;
    Date reference = nextbackup::referenceDate(from, defaults.date(settingskeys::pauseUntilDate), std::nullopt);
    while (starts.size() < count) {
        const auto next = nextbackup::nextStart(rules, changes, reference, calendar);
        if (!next)
            break;
        starts.append(*next);
        reference = *next + 1ms;
    }
    return starts;
}

} // namespace quillon

namespace quillon::report {

using namespace Qt::StringLiterals;

namespace {

QByteArray text(const QString& lines)
{
    return lines.toUtf8();
}

} // namespace

QByteArray status(const TMStatus& status, bool json)
{
    const auto state = static_cast<qint64>(status.state);
    if (json) {
        const QJsonObject object{{u"failed"_s, status.failed},
                                 {u"state"_s, state},
                                 {u"phase"_s, status.phase},
                                 {u"percent"_s, status.percent},
                                 {u"timeRemaining"_s, status.timeRemaining},
                                 {u"bytesCopied"_s, static_cast<qint64>(status.bytesCopied)},
                                 {u"destinationID"_s, status.destinationID}};
        return QJsonDocument(object).toJson();
    }
    const QString lines = u"failed:         %1\n"
                          "state:          %2\n"
                          "phase:          %3\n"
                          "percent:        %4\n"
                          "timeRemaining:  %5\n"
                          "bytesCopied:    %6\n"
                          "destinationID:  %7\n"_s;
    return text(lines.arg(status.failed ? u"yes"_s : u"no"_s, QString::number(state), status.phase,
                          QString::number(status.percent), QString::number(status.timeRemaining),
                          QString::number(status.bytesCopied), status.destinationID));
}

QByteArray destinations(const QList<BackupDestination>& destinations, bool json)
{
    QJsonArray array;
    QString lines;
    for (const auto& destination : destinations) {
        array.append(
            QJsonObject{{u"id"_s, destination.id}, {u"name"_s, destination.name}, {u"isLast"_s, destination.isLast}});
        lines += u"%1  %2%3\n"_s.arg(destination.id, displayedName(destination.name),
                                     destination.isLast ? u"  (last used)"_s : u""_s);
    }
    return json ? QJsonDocument(array).toJson() : text(lines);
}

QByteArray starts(const QList<Date>& starts, bool json)
{
    QJsonArray array;
    QString lines;
    for (const Date start : starts) {
        array.append(QJsonObject{{u"date"_s, isoDate(start)}});
        lines += isoDate(start) + u'\n';
    }
    return json ? QJsonDocument(array).toJson() : text(lines);
}

namespace {

/// What is not known is left out.
QJsonObject objectOf(const LedgerEntry& entry)
{
    QJsonObject object{
        {u"date"_s, isoDate(entry.date)}, {u"cause"_s, nameOf(entry.cause)}, {u"outcome"_s, nameOf(entry.outcome)}};
    const auto addText = [&object](const QString& key, const QString& value) {
        if (!value.isEmpty())
            object.insert(key, value);
    };
    const auto addDate = [&object](const QString& key, std::optional<Date> date) {
        if (date)
            object.insert(key, isoDate(*date));
    };
    addText(u"reason"_s, nameOf(entry.reason));
    addText(u"detail"_s, entry.detail);
    addDate(u"began"_s, entry.began);
    addDate(u"ended"_s, entry.ended);
    addText(u"destinationID"_s, entry.diskIdentifier);
    addText(u"destinationName"_s, entry.diskName);
    addDate(u"next"_s, entry.next);
    if (entry.next)
        object.insert(u"nextIsRetry"_s, entry.nextIsRetry);
    if (entry.exitStatus)
        object.insert(u"exitStatus"_s, *entry.exitStatus);
    if (entry.bytes)
        object.insert(u"bytesCopied"_s, static_cast<qint64>(*entry.bytes));
    return object;
}

} // namespace

QByteArray history(std::span<const LedgerEntry> entries, bool json)
{
    QJsonArray array;
    QString lines;
    for (const LedgerEntry& entry : entries) {
        array.append(objectOf(entry));
        QStringList words{isoDate(entry.date),
                          nameOf(entry.outcome),
                          nameOf(entry.cause),
                          displayedName(entry.diskName),
                          entry.bytes ? QString::number(*entry.bytes) : QString(),
                          nameOf(entry.reason),
                          entry.exitStatus ? QString::number(*entry.exitStatus) : QString(),
                          shownLongText(entry.detail)};
        words.removeAll(QString());
        lines += words.join(u"  "_s) + u'\n';
    }
    return json ? QJsonDocument(array).toJson() : text(lines);
}

} // namespace quillon::report
