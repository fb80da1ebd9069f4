#include "RestorePlan.h"

#include "BackupSetup.h"
#include "LocalizedString.h"
#include "Setup.h"
#include "Text.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>

#include <algorithm>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

// So that the command line stays well below what the kernel takes.
constexpr qsizetype mostSources = 500;

std::optional<RestoreEvent::Kind> eventKindOf(const QString& event)
{
    if (event == "progress"_L1)
        return RestoreEvent::Kind::Progress;
    if (event == "restored"_L1)
        return RestoreEvent::Kind::Restored;
    if (event == "skipped"_L1)
        return RestoreEvent::Kind::Skipped;
    if (event == "failed"_L1)
        return RestoreEvent::Kind::Failed;
    return event == "done"_L1 ? std::optional(RestoreEvent::Kind::Done) : std::nullopt;
}

QString optionOf(ConflictRule rule)
{
    switch (rule) {
    case ConflictRule::KeepBoth:
        return u"--keep-both"_s;
    case ConflictRule::Replace:
        return u"--replace"_s;
    case ConflictRule::Skip:
        break;
    }
    return u"--skip"_s;
}

QString reasonIn(const QJsonObject& object, RestoreEvent::Kind kind)
{
    const auto line = object[kind == RestoreEvent::Kind::Restored ? "remark"_L1 : "reason"_L1].toString();
    return toolReason(object["cause"_L1].toString(), shownLongText(line));
}

} // namespace

std::optional<RestoreEvent> readRestoreEvent(const QByteArray& line)
{
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    const auto kind = eventKindOf(object["event"_L1].toString());
    if (!kind)
        return std::nullopt;
    return RestoreEvent{.kind = *kind,
                        .files = object["files"_L1].toInteger(),
                        .totalFiles = object["totalFiles"_L1].toInteger(),
                        .bytes = object["bytes"_L1].toInteger(),
                        .totalBytes = object["totalBytes"_L1].toInteger(),
                        .source = object["source"_L1].toString(),
                        .path = object["path"_L1].toString(),
                        .reason = reasonIn(object, *kind)};
}

RestorePlan::RestorePlan(const QStringList& sources, QString folder)
    : folder_(std::move(folder))
    , due_{{ConflictRule::Skip, sources}}
{
}

std::optional<QStringList> RestorePlan::nextCall()
{
    const auto due = std::ranges::find_if(due_, [](const auto& rule) { return !rule.second.isEmpty(); });
    if (stopped_ || due == due_.end() || question())
        return std::nullopt;
    running_ = due->first;
    untold_ = due->second.first(std::min(mostSources, due->second.size()));
    due->second.remove(0, untold_.size());
    progress_ = {};
    QStringList arguments{u"restore"_s, u"--json"_s, optionOf(running_)};
    if (folder_.isEmpty())
        arguments.append(u"--in-place"_s);
    arguments += untold_;
    if (!folder_.isEmpty())
        arguments.append(folder_);
    return arguments;
}

void RestorePlan::take(const RestoreEvent& event)
{
    switch (event.kind) {
    case RestoreEvent::Kind::Progress:
        progress_ = event;
        break;
    case RestoreEvent::Kind::Restored:
        settle(event.source);
        ++restored_;
        if (!event.reason.isEmpty())
            losses_.push_back({event.path, event.reason});
        break;
    case RestoreEvent::Kind::Skipped:
        settle(event.source);
        conflicts_.push_back({event.source, event.path});
        break;
    case RestoreEvent::Kind::Failed:
        settle(event.source);
        lose(event.path.isEmpty() ? event.source : event.path, event.reason);
        break;
    case RestoreEvent::Kind::Done:
        break;
    }
}

void RestorePlan::endCall(const QString& complaint)
{
    for (const QString& source : std::exchange(untold_, {})) {
        if (!stopped_)
            lose(source, complaint.isEmpty() ? localizedString("disksToolUnreadable") : complaint);
    }
}

void RestorePlan::stop()
{
    stopped_ = true;
    conflicts_.clear();
}

std::optional<RestorePlan::Conflict> RestorePlan::question() const
{
    const bool wanted = untold_.isEmpty() && isTried() && !conflicts_.empty();
    return wanted ? std::optional(conflicts_.front()) : std::nullopt;
}

void RestorePlan::answer(ConflictRule rule, bool forAll)
{
    do {
        if (rule == ConflictRule::Skip)
            ++skipped_;
        else
            due_[rule].append(conflicts_.front().source);
        conflicts_.pop_front();
    } while (forAll && !conflicts_.empty());
}

bool RestorePlan::isDone() const
{
    const bool nothingDue = std::ranges::all_of(due_, [](const auto& rule) { return rule.second.isEmpty(); });
    return untold_.isEmpty() && (stopped_ || (nothingDue && conflicts_.empty()));
}

/// Whether all that is in nobody's way is restored.
bool RestorePlan::isTried() const
{
    return due_.at(ConflictRule::Skip).isEmpty();
}

void RestorePlan::settle(const QString& source)
{
    untold_.removeOne(source);
}

void RestorePlan::lose(const QString& path, const QString& reason)
{
    ++lost_;
    losses_.push_back({path, reason});
}

QString progressText(const RestoreEvent& progress)
{
    if (progress.totalFiles == 0)
        return localizedString("browseRestoring");
    const QLocale locale;
    return localizedString("browseRestoreProgress")
        .arg(locale.toString(progress.files), locale.toString(progress.totalFiles), sizeText(progress.bytes),
             sizeText(progress.totalBytes));
}

QString summaryOf(const RestorePlan& plan)
{
    const QLocale locale;
    QStringList lines;
    if (plan.isStopped())
        lines.append(localizedString("browseRestoreStopped"));
    lines.append(localizedString("browseRestoredCount").arg(locale.toString(plan.restored())));
    if (plan.skipped() > 0)
        lines.append(localizedString("browseSkippedCount").arg(locale.toString(plan.skipped())));
    if (plan.lost() > 0)
        lines.append(localizedString("browseLostCount").arg(locale.toString(plan.lost())));
    return lines.join(u'\n');
}

QString conflictText(const RestorePlan::Conflict& conflict)
{
    return localizedString("browseConflictMessage").arg(shownName(conflict.path));
}

} // namespace quillon
