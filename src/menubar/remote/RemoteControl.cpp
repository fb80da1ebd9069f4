#include "RemoteControl.h"

#include "Alert.h"
#include "ControlRequest.h"
#include "SettingsViewController.h"
#include "Text.h"
#include "Told.h"

#include <memory>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto longestPause = std::chrono::seconds(pausedurations::all.back().seconds);

const QString backupStarts = u"the backup starts"_s;
const QString runsAlready = u"a backup runs already"_s;
const QString noBackupRuns = u"no backup runs"_s;
const QString cannotBeTold = u"what Time Machine does cannot be told"_s;
const QString commandIsUnderWay = u"another command is under way"_s;
const QString tooManyChanges = u"%1 starts are skipped or postponed already; pause the schedule instead"_s;

/// Identifiers of the disks that are meant: one identifier, or all that bear the name.
QStringList disksCalled(const QString& disk, const QList<BackupDestination>& disks)
{
    QStringList ids;
    for (const auto& each : disks) {
        if (each.id == disk)
            return {disk};
        if (each.name == disk || displayedName(each.name) == disk)
            ids.append(each.id);
    }
    return ids;
}

/// Tells what became of a command.
CommandResultHandler tell(const RemoteControl::Listener& listener, const QString& accepted, const QString& nothingToDo)
{
    return [listener, accepted, nothingToDo](const CommandResult& result) {
        using enum CommandResult::Outcome;
        ControlAnswer answer{true, accepted};
        if (result.outcome == NothingToDo)
            answer = ControlAnswer::refused(nothingToDo);
        else if (result.outcome == Unreadable)
            answer = ControlAnswer::refused(cannotBeTold);
        else if (!result.hookWords.isEmpty())
            answer = ControlAnswer::refused(u"a program of yours stopped it: %1"_s.arg(result.hookWords));
        else if (result.outcome == Refused && result.exitStatus == 0)
            answer = ControlAnswer::refused(u"Time Machine has refused"_s);
        else if (result.outcome == Refused)
            answer = {false,
                      u"Time Machine has refused with error code %1"_s.arg(result.exitStatus),
                      {{u"exitStatus"_s, result.exitStatus}}};
        listener(answer.toLine());
    };
}

} // namespace

RemoteControl::RemoteControl(const Services& services)
    : services_(services)
{
    for (const auto signal : {&StatusMenuController::statusBarUpdated, &StatusMenuController::menuBarIconStateChanged})
        connect(&services_.controller, signal, this, &RemoteControl::tellWatchers);
}

void RemoteControl::take(const QByteArray& line, const Listener& listener)
{
    QString error;
    const auto request = ControlRequest::fromLine(line, &error);
    if (!request) {
        listener(ControlAnswer::refused(error).toLine());
        return;
    }
    switch (request->command) {
    case ControlRequest::Command::Backup:
        if (request->disk.isEmpty())
            backUp(listener);
        else
            askForDisk(request->disk, listener);
        return;
    case ControlRequest::Command::Stop:
        stop(listener);
        return;
    case ControlRequest::Command::Retry:
        if (services_.dataManager.retryBackupDate())
            backUp(listener);
        else
            listener(ControlAnswer::refused(u"no retry is pending"_s).toLine());
        return;
    case ControlRequest::Command::Watch:
        watch(listener);
        return;
    default:
        listener(atOnce(*request).toLine());
    }
}

ControlAnswer RemoteControl::atOnce(const ControlRequest& request)
{
    using enum ControlRequest::Command;
    switch (request.command) {
    case Pause:
        return pause(request);
    case Resume:
        return resume();
    case Skip:
        return skip();
    case Postpone:
        return postpone(request.duration);
    case SkipRetry:
        return skipRetry();
    case AddRule:
        return addRule(*request.rule);
    case RemoveRule:
        return removeRule(request.number);
    case Settings:
        return showSettings();
    default:
        return rules();
    }
}

ControlAnswer RemoteControl::pause(const ControlRequest& request)
{
    const auto shown = services_.controller.snapshot();
    if (!shown.isScheduleEnabled)
        return ControlAnswer::refused(u"the schedule is off"_s);
    if (!shown::menu(shown).pauseIsEnabled)
        return ControlAnswer::refused(shown.run.isActive() ? u"a schedule is not paused while a backup runs"_s
                                                           : cannotBeTold);
    const Date end = request.pauseEnd(shown.now);
    const auto length = std::chrono::ceil<std::chrono::seconds>(end - shown.now);
    if (length <= 0s)
        return ControlAnswer::refused(u"that time has passed"_s);
    if (length > longestPause)
        return ControlAnswer::refused(u"a pause lasts four weeks at most"_s);
    services_.controller.pauseUntil(end, length.count());
    return scheduled(u"the schedule is paused until %1"_s.arg(report::readableDate(end)));
}

ControlAnswer RemoteControl::resume()
{
    const auto shown = services_.controller.snapshot();
    if (!shown.pauseUntil || *shown.pauseUntil <= shown.now)
        return ControlAnswer::refused(u"the schedule is not paused"_s);
    services_.controller.resumeScheduleClicked();
    return scheduled(u"the schedule goes on"_s);
}

ControlAnswer RemoteControl::skipRetry()
{
    if (!services_.dataManager.retryBackupDate())
        return ControlAnswer::refused(u"no retry is pending"_s);
    services_.controller.skipRetryAttemptClicked();
    return scheduled(u"the retry is skipped"_s);
}

QString RemoteControl::whyNoChange() const
{
    const DataManager& model = services_.dataManager;
    if (!model.isScheduleEnabled())
        return u"the schedule is off"_s;
    if (model.retryBackupDate())
        return u"the next start is a retry, which skip-retry skips"_s;
    return model.nextScheduledBackupDate() ? QString() : u"no backup is planned"_s;
}

ControlAnswer RemoteControl::skip()
{
    if (const QString why = whyNoChange(); !why.isEmpty())
        return ControlAnswer::refused(why);
    const Date skipped = *services_.dataManager.nextScheduledBackupDate();
    if (!services_.controller.skipNextStart())
        return ControlAnswer::refused(tooManyChanges.arg(nextbackup::mostChanges));
    return scheduled(u"the backup of %1 is skipped"_s.arg(report::readableDate(skipped)));
}

ControlAnswer RemoteControl::postpone(std::chrono::seconds by)
{
    if (const QString why = whyNoChange(); !why.isEmpty())
        return ControlAnswer::refused(why);
    const Date postponed = *services_.dataManager.nextScheduledBackupDate();
    const auto following = services_.dataManager.startAfterNext();
    if (following && postponed + by >= *following)
        return ControlAnswer::refused(u"another backup starts on %1, before that; skip the next one instead"_s.arg(
            report::readableDate(*following)));
    if (!services_.controller.postponeNextStart(by))
        return ControlAnswer::refused(tooManyChanges.arg(nextbackup::mostChanges));
    return scheduled(u"the backup of %1 is postponed"_s.arg(report::readableDate(postponed)));
}

ControlAnswer RemoteControl::rules() const
{
    const auto& rules = services_.dataManager.calendarIntervalSettings();
    const auto shown = services_.controller.snapshot();
    return {true, told::ruleLines(rules, shown), told::ruleFacts(rules, shown)};
}

ControlAnswer RemoteControl::addRule(const CalendarIntervalRule& rule)
{
    if (services_.dataManager.calendarIntervalSettings().size() >= SettingsViewController::mostRules)
        return ControlAnswer::refused(
            u"there are %1 rules, and there cannot be more"_s.arg(SettingsViewController::mostRules));
    services_.dataManager.addNewSchedule(rule);
    return rulesEdited();
}

ControlAnswer RemoteControl::removeRule(int number)
{
    if (number > services_.dataManager.calendarIntervalSettings().size())
        return ControlAnswer::refused(u"there is no rule %1"_s.arg(number));
    services_.dataManager.deleteBackupScheduleAtIndex(static_cast<std::size_t>(number) - 1);
    return rulesEdited();
}

ControlAnswer RemoteControl::rulesEdited()
{
    services_.notifications.post(notifications::rulesChanged);
    services_.controller.updateStatusBar();
    return rules();
}

ControlAnswer RemoteControl::showSettings()
{
    if (bringModalWindowToFront())
        return ControlAnswer::refused(u"an alert of Quillon waits for an answer"_s);
    services_.controller.preferencesClicked();
    return {true, u"the settings are open"_s};
}

QString RemoteControl::whyNoStart() const
{
    const auto shown = services_.controller.snapshot();
    const auto menu = shown::menu(shown);
    if (menu.offersToStop)
        return runsAlready;
    if (shown.commandIsUnderWay)
        return commandIsUnderWay;
    return menu.backupNowIsEnabled ? QString() : u"a backup is being stopped"_s;
}

void RemoteControl::backUp(const Listener& listener)
{
    if (const QString why = whyNoStart(); !why.isEmpty())
        listener(ControlAnswer::refused(why).toLine());
    else
        services_.controller.backupNowRequested(tell(listener, backupStarts, runsAlready));
}

void RemoteControl::askForDisk(const QString& disk, const Listener& listener)
{
    struct Answer {
        Listener listener; // let go with the answer: the queue keeps its handler until the next question
        std::optional<QList<BackupDestination>> disks{};
        bool reported = false;
    };
    const auto answer = std::make_shared<Answer>(Answer{listener});
    services_.tmutil.getBackupDestinationsWithCompletionHandler(
        [this, answer, disk](bool success, const QList<BackupDestination>& disks) {
            // A call that failed is reported twice.
            answer->disks = success && !answer->reported ? std::optional(disks) : std::nullopt;
            if (!std::exchange(answer->reported, true))
                services_.runLoop.enqueue(
                    [this, answer, disk] { backUpTo(disk, answer->disks, std::exchange(answer->listener, {})); });
        });
}

void RemoteControl::backUpTo(const QString& disk, const std::optional<QList<BackupDestination>>& disks,
                             const Listener& listener)
{
    const QStringList meant = disksCalled(disk, disks.value_or(QList<BackupDestination>()));
    QString why = whyNoStart();
    if (!disks)
        why = u"the backup disks cannot be told"_s;
    else if (meant.isEmpty())
        why = u"no backup disk is called \"%1\""_s.arg(disk);
    else if (meant.size() > 1)
        why = u"%1 backup disks are called \"%2\"; give the identifier"_s.arg(QString::number(meant.size()), disk);
    if (!why.isEmpty())
        listener(ControlAnswer::refused(why).toLine());
    else
        services_.controller.backupNowSubMenuItemClicked(meant.first(), tell(listener, backupStarts, runsAlready));
}

void RemoteControl::stop(const Listener& listener)
{
    const auto shown = services_.controller.snapshot();
    if (!shown::menu(shown).offersToStop)
        listener(ControlAnswer::refused(shown.run.isActive() ? u"the backup is being stopped already"_s : noBackupRuns)
                     .toLine());
    else if (shown.commandIsUnderWay)
        listener(ControlAnswer::refused(commandIsUnderWay).toLine());
    else
        services_.controller.backupNowClicked(tell(listener, u"the backup is being stopped"_s, noBackupRuns));
}

void RemoteControl::watch(const Listener& listener)
{
    tellWatchers();
    const auto shown = services_.controller.snapshot();
    lastTold_ = told::statusFacts(shown);
    if (listener(ControlAnswer{true, told::statusLine(shown), lastTold_}.toLine()))
        watchers_.append(listener);
}

void RemoteControl::tellWatchers()
{
    if (watchers_.isEmpty())
        return;
    const auto shown = services_.controller.snapshot();
    const QJsonObject facts = told::statusFacts(shown);
    if (facts == std::exchange(lastTold_, facts))
        return;
    const QByteArray line = ControlAnswer{true, told::statusLine(shown), facts}.toLine();
    watchers_.removeIf([&line](const Listener& listener) { return !listener(line); });
}

ControlAnswer RemoteControl::scheduled(const QString& text) const
{
    const auto shown = services_.controller.snapshot();
    return {true, text + u"; "_s + told::nextStart(shown), told::scheduleFacts(shown)};
}

} // namespace quillon
