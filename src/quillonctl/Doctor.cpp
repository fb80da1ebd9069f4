#include "Doctor.h"

#include "ApplicationIdentity.h"
#include "Calendar.h"
#include "NextBackup.h"
#include "PropertyList.h"
#include "Report.h"
#include "StatusItemPlace.h"
#include "StoredAndSent.h"
#include "TMReports.h"
#include "Text.h"

#include <QDateTime>
#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QLocale>
#include <QMap>
#include <QSysInfo>

#include <algorithm>
#include <array>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

QString troubleOf(const TaskResult& result, const QString& tool)
{
    if (result.status == TaskResult::launchRefused)
        return QFileInfo::exists(tool) ? u"the tool cannot be run"_s : u"the tool is not there"_s;
    if (result.status != 0)
        return u"the tool ended with status %1"_s.arg(result.status);
    if (!result.output || !result.output->isValidUtf8())
        return u"the tool printed what is no text"_s;
    return {};
}

} // namespace

ToolAnswer askTool(RunLoop& runLoop, TaskLauncher& launcher, const QString& tool, const QStringList& words,
                   std::chrono::seconds limit)
{
    TaskRequest request;
    request.executable = tool;
    request.arguments = words;
    request.environment = {u"command="_s + words.first()}; // what the application gives it too
    request.captureErrors = true;

    ToolAnswer answer;
    QEventLoop waiting;
    const auto start = runLoop.uptime();
    const auto child = launcher.launch(request, [&](const TaskResult& result) {
        if (!answer.trouble.isEmpty()) // it was killed for taking too long
            return;
        answer.trouble = troubleOf(result, tool);
        answer.errors = result.errors;
        if (result.output && result.output->isValidUtf8())
            answer.output = *result.output;
        waiting.quit();
    });
    const Timer timeLimit = runLoop.scheduleAfter(limit, [&] {
        answer.trouble = u"the tool gave no answer within %1 s"_s.arg(limit.count());
        child->kill();
        waiting.quit(); // a process that waits for a dead disk outlives its end
    });
    waiting.exec();
    answer.time = runLoop.uptime() - start;
    return answer;
}

std::optional<QList<BackupDestination>> destinationsIn(const QByteArray& output)
{
    if (output.isEmpty())
        return std::nullopt;
    const auto destinations = BackupDestinations::fromOutput(output);
    if (destinations.success || propertylist::parse(output) == QVariant(QVariantMap()))
        return destinations.list;
    return std::nullopt;
}

namespace {

constexpr int startsShown = 5;
constexpr auto zoneLookedAhead = std::chrono::days(370);

const QString notUnderstood = u"what the tool printed cannot be understood"_s;

/// A path without the user's name in it.
QString anonymousPath(const QString& path)
{
    const QString home = QDir::homePath();
    return path.startsWith(home + u'/') ? u'~' + path.mid(home.size()) : path;
}

QString describe(const CalendarIntervalRule& rule)
{
    constexpr std::array days = {"every day", "Sunday", "Monday",   "Tuesday",         "Wednesday",
                                 "Thursday",  "Friday", "Saturday", "Monday to Friday"};
    const bool isKnown = rule.day >= 0 && rule.day < static_cast<qlonglong>(days.size());
    const QString day =
        isKnown ? QString::fromLatin1(days.at(static_cast<std::size_t>(rule.day))) : u"day code %1"_s.arg(rule.day);
    const auto time = nextbackup::timeComponents(static_cast<double>(rule.time));
    return day + QString::asprintf(", %02d:%02d", time.hour, time.minute);
}

QString describe(MenuBarIconState state)
{
    switch (state) {
    case MenuBarIconState::None:
        break;
    case MenuBarIconState::Idle:
        return u"idle"_s;
    case MenuBarIconState::Running:
        return u"running"_s;
    case MenuBarIconState::Completed:
        return u"completed"_s;
    case MenuBarIconState::UpdateAvailable:
        return u"update available"_s;
    case MenuBarIconState::Failed:
        return u"failed"_s;
    case MenuBarIconState::MissedSchedule:
        return u"missed schedule"_s;
    }
    return u"none"_s;
}

QString describe(const TMStatus& status)
{
    if (status.state == TMState::NotRunning)
        return u"no backup runs"_s;
    const QString phase =
        u"%1, %2 %"_s.arg(backupphase::phrase(status.phase), QString::number(status.percent * 100, 'f', 0));
    return status.state == TMState::Stopping ? u"a backup is being stopped, "_s + phase : u"a backup runs, "_s + phase;
}

/// What the tool remembers of a backup that went wrong; only our own does. Its sentence for people is left out: it
/// names files.
std::optional<Diagnosis::Failure> failureIn(const QByteArray& status)
{
    const auto start = status.indexOf('{');
    const auto list = propertylist::parse(start < 0 ? QByteArray() : status.sliced(start));
    const auto entry = list ? propertylist::dictionary(list->toMap(), u"LastFailure"_s) : std::nullopt;
    if (!entry)
        return std::nullopt;
    using propertylist::scalar;
    return Diagnosis::Failure{scalar(*entry, u"Date"_s).toString(), scalar(*entry, u"DestinationID"_s).toString(),
                              scalar(*entry, u"Cause"_s).toString(),
                              propertylist::toInteger(scalar(*entry, u"UnreadFiles"_s))};
}

/// What the tool tells of each disk beside what a list of disks needs, by identifier.
QMap<QString, QVariantMap> detailsIn(const QByteArray& destinations)
{
    QMap<QString, QVariantMap> details;
    const auto list = propertylist::parse(destinations);
    const QVariantList entries = list ? list->toMap().value(u"Destinations"_s).toList() : QVariantList();
    for (const auto& entry : entries)
        details.insert(entry.toMap().value(u"ID"_s).toString(), entry.toMap());
    return details;
}

std::optional<Date> dateIn(const QVariantMap& dictionary, const QString& key)
{
    const QDateTime date = dictionary.value(key).toDateTime();
    return date.isValid() ? std::optional(Date(std::chrono::milliseconds(date.toMSecsSinceEpoch()))) : std::nullopt;
}

} // namespace

Doctor::Doctor(RunLoop& runLoop, TaskLauncher& launcher, const UserDefaults& defaults, QString tool)
    : runLoop_(runLoop)
    , launcher_(launcher)
    , defaults_(defaults)
    , tool_(std::move(tool))
{
}

Diagnosis Doctor::examine(std::chrono::seconds limit)
{
    Diagnosis found;
    found.now = runLoop_.now();
    examineProgram(found);
    examineSchedule(found);
    examineTimeZone(found);
    examineStatus(found, askTool(runLoop_, launcher_, tool_, {u"status"_s}, limit));
    examineDisks(found, askTool(runLoop_, launcher_, tool_, {u"destinationinfo"_s, u"-X"_s}, limit));
    return found;
}

void Doctor::examineProgram(Diagnosis& found) const
{
    found.version = bundleShortVersion();
    found.build = bundleVersion();
    found.qtVersion = QString::fromLatin1(qVersion());
    found.system = QSysInfo::prettyProductName();
    found.kernel = QSysInfo::kernelType() + u' ' + QSysInfo::kernelVersion();
    found.architecture = QSysInfo::currentCpuArchitecture();
    found.desktop = qEnvironmentVariable("XDG_CURRENT_DESKTOP");
    found.sessionType = qEnvironmentVariable("XDG_SESSION_TYPE");
    found.language = QLocale::system().uiLanguages().value(0);
    const StatusItemPlace item = findStatusItemPlace();
    found.itemPlace = item.place;
    found.itemReason = item.reason;
    const auto icon = static_cast<MenuBarIconState>(defaults_.integer(settingskeys::lastMenuBarIconState));
    found.iconState = describe(icon);
    found.lastRunFailed = icon == MenuBarIconState::Failed;
}

void Doctor::examineStatus(Diagnosis& found, const ToolAnswer& answer) const
{
    found.toolPath = anonymousPath(tool_);
    const auto status = TMStatus::fromOutput(answer.output);
    found.status = {u"status"_s, answer.time, answer.trouble};
    if (!status.failed)
        found.activity = describe(status);
    else if (answer.trouble.isEmpty())
        found.status.trouble = notUnderstood;
    found.lastFailure = failureIn(answer.output);
}

void Doctor::examineDisks(Diagnosis& found, const ToolAnswer& answer) const
{
    const auto disks = destinationsIn(answer.output);
    found.destinations = {u"destinationinfo"_s, answer.time, answer.trouble};
    if (!disks && answer.trouble.isEmpty())
        found.destinations.trouble = notUnderstood;

    QMap<QString, BackupInfo> records;
    for (const auto& archived : defaults_.array(settingskeys::latestBackupInfo)) {
        if (const auto record = BackupInfo::unarchiveFromData(archived.toByteArray()))
            records.insert(record->diskIdentifier(), *record);
    }
    const auto details = detailsIn(answer.output);
    for (const auto& disk : disks.value_or(QList<BackupDestination>())) {
        const QVariantMap detail = details.value(disk.id);
        // The disk may have backups that this program has not seen. An empty optional compares as less than any date.
        std::optional<Date> latest = dateIn(detail, u"LastBackup"_s);
        if (const auto record = records.find(disk.id); record != records.end()) {
            latest = std::max(latest, record->date());
            records.erase(record);
        }
        found.disks.append({displayedName(disk.name), true, detail.contains(u"MountPoint"_s), disk.isLast, latest});
        if (found.lastFailure && found.lastFailure->disk == disk.id)
            found.lastFailure->disk = found.disks.last().name;
    }
    const auto isSetUp = disks ? std::optional(false) : std::nullopt;
    for (const auto& record : std::as_const(records))
        found.disks.append({displayedName(record.diskName()), isSetUp, std::nullopt, false, record.date()});
}

void Doctor::examineSchedule(Diagnosis& found) const
{
    using namespace settingskeys;
    const auto isOn = [this](const QString& key) { return defaults_.integer(key) == 1; };
    found.scheduleIsOn = isOn(enableSchedule);
    for (const auto& rule : CalendarIntervalRule::listFromArray(defaults_.array(calendarIntervals)))
        found.rules.append(describe(rule));
    found.comingStarts = comingStarts(defaults_, found.now, startsShown);
    if (const auto end = defaults_.date(pauseUntilDate); end && *end >= found.now)
        found.pausedUntil = end;
    found.retriesMissed = isOn(enableRetryAtMissedSchedule);
    found.retriesFailed = isOn(enableRetryAtFailure);
    found.rotatesDisks = isOn(rotateBackupDisks);
}

void Doctor::examineTimeZone(Diagnosis& found) const
{
    const Calendar calendar;
    found.timeZone = Calendar::hostTimeZone(found.now);
    found.offset = calendar.offsetFromUtc(found.now);
    if (const auto changes = calendar.offsetChanges(found.now, found.now + zoneLookedAhead); !changes.isEmpty())
        found.zoneChange = changes.first();
}

} // namespace quillon
