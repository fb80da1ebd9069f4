#include "ConcernWatch.h"

#include "DataHelper.h"
#include "LocalizedString.h"
#include "StoredAndSent.h"

#include <QDateTime>

#include <algorithm>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;
using concerns::Kind;

namespace {

const QString backUpNow = u"backUpNow"_s;
const QString openTimeMachineSettings = u"openTimeMachineSettings"_s;

const char* titleKey(Kind kind)
{
    switch (kind) {
    case Kind::BackupFailed:
        return "backupFailedTitle";
    case Kind::NoBackupForDays:
        return "noBackupForDaysTitle";
    case Kind::StartWithoutRun:
        return "startWithoutRunTitle";
    case Kind::NoProgress:
        return "noProgressTitle";
    case Kind::DamageFound:
        return "damageFoundTitle";
    }
    Q_UNREACHABLE();
}

/// How long something has lasted that goes on since `since`, or from now on.
std::optional<std::chrono::milliseconds> lasting(std::optional<std::chrono::milliseconds>& since, bool lasts,
                                                 std::chrono::milliseconds uptime)
{
    if (!lasts) {
        since.reset();
        return std::nullopt;
    }
    since = since.value_or(uptime);
    return uptime - *since;
}

} // namespace

ConcernWatch::ConcernWatch(const Services& services)
    : services_(services)
{
    const QVariant stored = services.defaults.object(settingskeys::toldConcerns);
    const QVariantMap told = stored.typeId() == QMetaType::QVariantMap ? stored.toMap() : QVariantMap();
    for (const Kind kind : concerns::kinds) {
        if (const QDateTime date = told.value(nameOf(kind)).toDateTime(); date.isValid())
            told_.insert(kind, Date(std::chrono::milliseconds(date.toMSecsSinceEpoch())));
    }
    connect(&services.notifications, &UserNotifications::chosen, this,
            [this](const QString& identifier, const QString& action) {
                if (std::ranges::any_of(concerns::kinds, [&](Kind kind) { return nameOf(kind) == identifier; }))
                    carryOut(action);
            });
}

void ConcernWatch::noteStep(const BackupRun::Step& step)
{
    noteSettings();
    const BackupRun& run = services_.follower.run();
    if (run.tmState() != TMState::Unknown) {
        if (!std::exchange(remembersEarlierLaunch_, true))
            rememberEarlierLaunch();
        noteRun(run);
    }
    if (step.end && step.end->completed)
        facts_.failedInARow = 0;
    else if (step.end && step.end->failed())
        ++facts_.failedInARow;
    tell(concerns::change(facts_, shown_, told_));
}

void ConcernWatch::rememberEarlierLaunch()
{
    shown_ = told_.keys();
    const auto failed = services_.ledger.read({.outcome = LedgerEntry::Outcome::Failed, .most = 2});
    for (const LedgerEntry& entry : failed.value_or(std::vector<LedgerEntry>())) {
        if (entry.ended && (!facts_.lastCompleted || *entry.ended > *facts_.lastCompleted))
            ++facts_.failedInARow;
    }
}

void ConcernWatch::noteRun(const BackupRun& run)
{
    const auto uptime = services_.runLoop.uptime();
    facts_.isActive = run.isActive() || services_.commands.isUnderWay();
    facts_.damageIsKnown = run.damageIsKnown();
    facts_.startAwaited = lasting(startingSince_, run.tmState() == TMState::Starting, uptime);
    const auto progress = std::tuple(run.tmPhase(), run.progress().percentage(), run.progress().bytesCopied());
    // What follows the copying tells of no progress, and takes as long as it takes.
    const bool stands = progress == std::exchange(progress_, progress) && run.isReported() && !run.backupCompleteDate();
    facts_.withoutProgress = lasting(withoutProgressSince_, stands, uptime);
}

void ConcernWatch::noteSettings()
{
    UserDefaults& defaults = services_.defaults;
    facts_.now = services_.runLoop.now();
    facts_.lastCompleted = defaults.date(settingskeys::lastBackupDate);
    facts_.daysWithoutBackup =
        int(std::clamp(defaults.integer(settingskeys::daysWithoutBackup), 0LL, settingskeys::mostDaysWithoutBackup));
    facts_.retryIsPlanned = services_.dataManager.retryBackupDate().has_value();
    const auto since = defaults.date(settingskeys::watchedSinceDate);
    facts_.watchedSince = std::min(since.value_or(facts_.now), facts_.now);
    if (facts_.watchedSince != since)
        defaults.setDate(settingskeys::watchedSinceDate, facts_.watchedSince);
}

void ConcernWatch::tell(const concerns::Change& change)
{
    for (const Kind kind : change.withdraw) {
        services_.notifications.withdraw(nameOf(kind));
        shown_.removeOne(kind);
    }
    for (const Kind kind : change.post) {
        post(kind);
        told_.insert(kind, facts_.now);
        if (!shown_.contains(kind))
            shown_.append(kind);
    }
    if (!change.post.isEmpty())
        storeTold();
}

void ConcernWatch::post(Kind kind)
{
    UserNotification word{.identifier = nameOf(kind),
                          .title = localizedString(titleKey(kind)),
                          .text = textOf(kind),
                          .isUrgent = kind == Kind::DamageFound || kind == Kind::NoBackupForDays};
    if (kind == Kind::BackupFailed || kind == Kind::NoBackupForDays)
        word.actions = {UserNotification::Action{backUpNow, localizedString("backupNowTitle")}};
    if (kind == Kind::StartWithoutRun || kind == Kind::DamageFound)
        word.actions = {UserNotification::Action{
            openTimeMachineSettings, localizedString(services_.dataManager.openSystemPreferencesTitleLocaleKey())}};
    services_.notifications.post(word);
}

QString ConcernWatch::textOf(Kind kind) const
{
    switch (kind) {
    case Kind::BackupFailed:
        return localizedString("backupFailedMessage");
    case Kind::NoBackupForDays:
        return facts_.lastCompleted
                   ? localizedString("noBackupForDaysMessage")
                         .arg(DataHelper::getDateTimeFrom(*facts_.lastCompleted, DateFormatterStyle::Long,
                                                          DateFormatterStyle::None))
                   : localizedString("noBackupYetMessage");
    case Kind::StartWithoutRun:
        return localizedString("startWithoutRunMessage");
    case Kind::NoProgress:
        return localizedString("noProgressMessage");
    case Kind::DamageFound:
        return localizedString("damageFoundMessage");
    }
    Q_UNREACHABLE();
}

void ConcernWatch::storeTold()
{
    QVariantMap told;
    for (auto at = told_.cbegin(); at != told_.cend(); ++at)
        told.insert(nameOf(at.key()), QDateTime::fromMSecsSinceEpoch(at->time_since_epoch().count(), Qt::UTC));
    services_.defaults.setObject(settingskeys::toldConcerns, told);
}

void ConcernWatch::carryOut(const QString& action)
{
    if (action == backUpNow)
        Q_EMIT backupNowChosen();
    else if (action == openTimeMachineSettings)
        Q_EMIT timeMachineSettingsChosen();
    else
        Q_EMIT settingsChosen();
}

} // namespace quillon
