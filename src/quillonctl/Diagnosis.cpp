#include "Diagnosis.h"

#include "Report.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

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
        text += u", %1 files could not be read"_s.arg(failure.unreadFiles);
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
