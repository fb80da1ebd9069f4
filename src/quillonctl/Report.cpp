#include "Report.h"

#include "Calendar.h"
#include "Doctor.h"
#include "NextBackup.h"
#include "StoredAndSent.h"
#include "Text.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

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
        reference = instantAfter(*next);
    }
    return starts;
}

} // namespace quillon

namespace quillon::report {

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

namespace quillon {

QStringList problems(const Diagnosis& diagnosis)
{
    QStringList found;
    const auto note = [&found](bool isWrong, const QString& sentence) {
        if (isWrong)
            found.append(sentence);
    };
    const QString& status = diagnosis.status.trouble;
    const QString& destinations = diagnosis.destinations.trouble;
    note(!status.isEmpty(), u"What Time Machine does cannot be told: %1."_s.arg(status));
    note(!destinations.isEmpty(), u"The backup disks cannot be told: %1."_s.arg(destinations));
    const bool hasDisk = std::any_of(diagnosis.disks.begin(), diagnosis.disks.end(),
                                     [](const auto& disk) { return disk.isSetUp == true; });
    note(destinations.isEmpty() && !hasDisk, u"No backup disk is set up."_s);
    note(diagnosis.scheduleIsOn && diagnosis.rules.isEmpty(), u"The schedule is on but has no rules."_s);
    note(diagnosis.lastRunFailed, u"The last backup failed."_s);
    note(diagnosis.lastFailure.has_value(), u"Time Machine remembers a backup that went wrong."_s);
    return found;
}

namespace {

/// Aligned lines of a label and a value.
class Page {
public:
    void line(const QString& text) { text_ += text + u'\n'; }
    void heading(const QString& text) { text_ += u'\n' + text + u'\n'; }

    void row(const QString& label, const QString& value)
    {
        constexpr int labelWidth = 16;
        text_ += u"  %1  %2\n"_s.arg(label.leftJustified(labelWidth), value);
    }

    /// The label stands beside the first value alone.
    void rows(const QString& label, const QStringList& values)
    {
        row(label, values.value(0, u"none"_s));
        for (const QString& value : values.mid(1))
            row({}, value);
    }

    QByteArray text() const { return text_.toUtf8(); }

private:
    QString text_;
};

QString onOff(bool on)
{
    return on ? u"on"_s : u"off"_s;
}

QString join(QStringList parts)
{
    parts.removeAll(QString());
    return parts.isEmpty() ? u"not known"_s : parts.join(u", "_s);
}

QString describe(const Diagnosis::Answer& answer, const QString& content)
{
    const QString time = u"%1 ms"_s.arg(answer.time.count());
    if (!answer.trouble.isEmpty())
        return u"%1 (%2)"_s.arg(answer.trouble, time);
    return content.isEmpty() ? u"answered in %1"_s.arg(time) : u"answered in %1: %2"_s.arg(time, content);
}

QString describe(const Diagnosis::Disk& disk)
{
    QStringList facts;
    if (disk.isSetUp == false)
        facts.append(u"no longer set up"_s);
    if (disk.isConnected)
        facts.append(*disk.isConnected ? u"connected"_s : u"not connected"_s);
    if (disk.isLast)
        facts.append(u"used last"_s);
    facts.append(disk.latestBackup ? u"latest backup "_s + report::readableDate(*disk.latestBackup)
                                   : u"no backup known"_s);
    return facts.join(u", "_s);
}

QString describe(const Diagnosis::Failure& failure)
{
    QString text = join({failure.date, failure.disk, failure.cause});
    if (failure.unreadFiles > 0)
        text += failure.unreadFiles == 1 ? u", one file could not be read"_s
                                         : u", %1 files could not be read"_s.arg(failure.unreadFiles);
    return text;
}

QString describe(const std::optional<OffsetChange>& change)
{
    if (!change)
        return u"none within a year"_s;
    return u"%1, from %2 to %3"_s.arg(report::readableDate(change->at), report::offsetText(change->before),
                                      report::offsetText(change->after));
}

void writeSystem(Page& page, const Diagnosis& found)
{
    page.heading(u"System"_s);
    page.row(u"Name"_s, join({found.system, found.kernel, found.architecture}));
    page.row(u"Desktop"_s, join({found.desktop, found.sessionType}));
    page.row(u"Language"_s, join({found.language}));
    page.row(u"Item shown in"_s, u"%1: %2"_s.arg(found.itemPlace, found.itemReason));
    page.row(u"Last icon"_s, found.iconState);
}

void writeTimeMachine(Page& page, const Diagnosis& found)
{
    page.heading(u"Time Machine"_s);
    page.row(u"Tool"_s, found.toolPath);
    page.row(found.status.command, describe(found.status, found.activity));
    page.row(found.destinations.command, describe(found.destinations, {}));
    page.row(u"Last failure"_s, found.lastFailure ? describe(*found.lastFailure) : u"none"_s);

    page.heading(u"Backup disks"_s);
    for (const auto& disk : found.disks)
        page.row(disk.name, describe(disk));
    if (found.disks.isEmpty())
        page.line(u"  none"_s);
}

void writeSchedule(Page& page, const Diagnosis& found)
{
    QStringList starts;
    for (const Date start : found.comingStarts)
        starts.append(report::readableDate(start));

    page.heading(u"Schedule"_s);
    page.row(u"State"_s, onOff(found.scheduleIsOn));
    page.rows(u"Rules"_s, found.rules);
    page.rows(u"Coming starts"_s, starts);
    page.row(u"Paused until"_s, found.pausedUntil ? report::readableDate(*found.pausedUntil) : u"not paused"_s);
    page.row(u"Retry if missed"_s, onOff(found.retriesMissed));
    page.row(u"Retry if failed"_s, onOff(found.retriesFailed));
    page.row(u"Rotate disks"_s, onOff(found.rotatesDisks));

    page.heading(u"Time zone"_s);
    page.row(u"Name"_s, u"%1, now %2"_s.arg(found.timeZone, report::offsetText(found.offset)));
    page.row(u"Next change"_s, describe(found.zoneChange));
}

} // namespace

QByteArray report::doctorText(const Diagnosis& found)
{
    Page page;
    page.line(u"Quillon %1 (build %2) with Qt %3, on %4"_s.arg(found.version, found.build, found.qtVersion,
                                                               report::readableDate(found.now)));
    const QStringList troubles = problems(found);
    page.heading(troubles.isEmpty() ? u"No problem was found."_s : u"Problems"_s);
    for (const auto& trouble : troubles)
        page.line(u"  "_s + trouble);
    writeSystem(page, found);
    writeTimeMachine(page, found);
    writeSchedule(page, found);
    return page.text();
}

namespace {

QJsonValue orNull(std::optional<bool> fact)
{
    return fact ? QJsonValue(*fact) : QJsonValue();
}

QJsonValue dateOrNull(std::optional<Date> date)
{
    return date ? QJsonValue(report::isoDate(*date)) : QJsonValue();
}

QJsonObject object(const Diagnosis::Answer& answer)
{
    return {{u"milliseconds"_s, static_cast<qint64>(answer.time.count())},
            {u"trouble"_s, answer.trouble.isEmpty() ? QJsonValue() : answer.trouble}};
}

QJsonArray array(const QList<Diagnosis::Disk>& disks)
{
    QJsonArray array;
    for (const auto& disk : disks)
        array.append(QJsonObject{{u"name"_s, disk.name},
                                 {u"isSetUp"_s, orNull(disk.isSetUp)},
                                 {u"isConnected"_s, orNull(disk.isConnected)},
                                 {u"isLast"_s, disk.isLast},
                                 {u"latestBackup"_s, dateOrNull(disk.latestBackup)}});
    return array;
}

QJsonObject scheduleObject(const Diagnosis& found)
{
    QJsonArray starts;
    for (const Date start : found.comingStarts)
        starts.append(report::isoDate(start));
    return {{u"isOn"_s, found.scheduleIsOn},
            {u"rules"_s, QJsonArray::fromStringList(found.rules)},
            {u"comingStarts"_s, starts},
            {u"pausedUntil"_s, dateOrNull(found.pausedUntil)},
            {u"retriesMissed"_s, found.retriesMissed},
            {u"retriesFailed"_s, found.retriesFailed},
            {u"rotatesDisks"_s, found.rotatesDisks}};
}

QJsonObject zoneObject(const Diagnosis& found)
{
    QJsonValue change;
    if (found.zoneChange)
        change = QJsonObject{{u"at"_s, report::isoDate(found.zoneChange->at)},
                             {u"offsetBefore"_s, found.zoneChange->before},
                             {u"offsetAfter"_s, found.zoneChange->after}};
    return {{u"name"_s, found.timeZone}, {u"offset"_s, found.offset}, {u"nextChange"_s, change}};
}

} // namespace

QByteArray report::doctorJson(const Diagnosis& found)
{
    QJsonValue failure;
    if (const auto& last = found.lastFailure)
        failure = QJsonObject{{u"date"_s, last->date},
                              {u"disk"_s, last->disk},
                              {u"cause"_s, last->cause},
                              {u"unreadFiles"_s, last->unreadFiles}};
    return QJsonDocument(QJsonObject{{u"date"_s, report::isoDate(found.now)},
                                     {u"problems"_s, QJsonArray::fromStringList(problems(found))},
                                     {u"quillon"_s, QJsonObject{{u"version"_s, found.version},
                                                                {u"build"_s, found.build},
                                                                {u"qt"_s, found.qtVersion}}},
                                     {u"system"_s, QJsonObject{{u"name"_s, found.system},
                                                               {u"kernel"_s, found.kernel},
                                                               {u"architecture"_s, found.architecture},
                                                               {u"desktop"_s, found.desktop},
                                                               {u"sessionType"_s, found.sessionType},
                                                               {u"language"_s, found.language}}},
                                     {u"item"_s, QJsonObject{{u"place"_s, found.itemPlace},
                                                             {u"reason"_s, found.itemReason},
                                                             {u"lastIcon"_s, found.iconState}}},
                                     {u"tool"_s, QJsonObject{{u"path"_s, found.toolPath},
                                                             {u"activity"_s, found.activity},
                                                             {found.status.command, object(found.status)},
                                                             {found.destinations.command, object(found.destinations)},
                                                             {u"lastFailure"_s, failure}}},
                                     {u"disks"_s, array(found.disks)},
                                     {u"schedule"_s, scheduleObject(found)},
                                     {u"timeZone"_s, zoneObject(found)}})
        .toJson();
}

} // namespace quillon
