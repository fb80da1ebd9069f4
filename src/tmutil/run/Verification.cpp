#include "Verification.h"

#include "Failure.h"
#include "History.h"
#include "Paths.h"
#include "Restic.h"
#include "ResticOutput.h"
#include "Retention.h"
#include "RunState.h"

#include <QDeadlineTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QThread>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <set>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

// restic answers an interrupt at once and is killed after half a minute.
constexpr auto stopPatience = 45s;

void collect(const QString& text, const QRegularExpression& words, QStringList& identifiers)
{
    for (auto match = words.globalMatch(text); match.hasNext();) {
        if (const QString identifier = match.next().captured(1); !identifiers.contains(identifier))
            identifiers.append(identifier);
    }
}

} // namespace

void CheckFindings::readLine(const QString& line)
{
    // "not referenced in any index" is said of files that an interrupted backup has left, and harms nothing.
    if (line.contains("not referenced"_L1))
        return;
    static const QRegularExpression pack(u"[Pp]ack(?: ID does not match, want|:)? ([0-9a-f]{64})"_s);
    static const QRegularExpression tree(u"tree ([0-9a-f]{8,64})\\b"_s);
    collect(line, pack, packs);
    collect(line, tree, trees);
}

bool CheckFindings::cover(const CheckFindings& others) const
{
    const auto holdsAll = [](const QStringList& mine, const QStringList& theirs) {
        return std::ranges::all_of(theirs, [&mine](const QString& one) { return mine.contains(one); });
    };
    if (others == CheckFindings())
        return *this == others;
    return holdsAll(packs, others.packs) && holdsAll(trees, others.trees);
}

QString Slice::subset() const
{
    // restic takes the files of data whose first byte leaves that remainder, so the parts make up their tenth.
    return u"%1/%2"_s.arg(tenth + part * tenths).arg(tenths * parts);
}

Slice Slice::next(int leastParts) const
{
    if (part + 1 < parts)
        return {tenth, part + 1, parts};
    return {tenth % tenths + 1, 0, std::max(parts / 2, leastParts)};
}

Slice Slice::smaller() const
{
    return {tenth, 0, std::min(parts * 2, mostParts)};
}

Slice Slice::ofParts(int leastParts) const
{
    return parts < leastParts ? Slice{tenth, 0, leastParts} : *this;
}

QVariantMap Slice::toDictionary() const
{
    return {{u"Tenth"_s, qlonglong{tenth}}, {u"Part"_s, qlonglong{part}}, {u"Parts"_s, qlonglong{parts}}};
}

Slice Slice::fromDictionary(const QVariantMap& entry)
{
    const auto number = [&entry](const QString& key, int least, int most) {
        return std::clamp(entry.value(key).toInt(), least, most);
    };
    return {number(u"Tenth"_s, 1, tenths), number(u"Part"_s, 0, mostParts - 1), number(u"Parts"_s, 1, mostParts)};
}

QVariantMap Damage::toDictionary() const
{
    return {{u"Date"_s, date},
            {u"Packs"_s, QVariantList(findings.packs.begin(), findings.packs.end())},
            {u"Trees"_s, QVariantList(findings.trees.begin(), findings.trees.end())},
            {u"Backups"_s, QVariantList(backups.begin(), backups.end())},
            {u"Subset"_s, subset},
            {u"Repaired"_s, qlonglong{repaired ? 1 : 0}},
            {u"Lasting"_s, qlonglong{lasting ? 1 : 0}}};
}

std::optional<Damage> Damage::fromDictionary(const QVariantMap& entry)
{
    if (entry.isEmpty())
        return std::nullopt;
    return Damage{.date = entry.value(u"Date"_s).toString(),
                  .findings = {entry.value(u"Packs"_s).toStringList(), entry.value(u"Trees"_s).toStringList()},
                  .backups = entry.value(u"Backups"_s).toStringList(),
                  .repaired = entry.value(u"Repaired"_s).toBool(),
                  .subset = entry.value(u"Subset"_s).toString(),
                  .lasting = entry.value(u"Lasting"_s).toBool()};
}

QString Damage::description() const
{
    QString next = repaired ? u"A backup has mended what it could."_s : u"The next backup mends what it can."_s;
    if (lasting)
        next =
            u"That cannot be mended. What is sound can be restored; \"tmutil deletebackup\" removes backups that lack "
            "something."_s;
    if (lasting && !findings.packs.isEmpty())
        next += u" restic 0.16 or later can mend more: once it is installed, let \"tmutil verify --all\" look again."_s;
    return backups.isEmpty()
               ? u"The backups are damaged, and any of them may lack something. "_s + next
               : u"The backups are damaged; those that lack something: %1. "_s.arg(backups.join(u", "_s)) + next;
}

bool Damage::outlasts(const QString& soundSubset) const
{
    const bool mayBeMended = repaired && !lasting;
    return findings == CheckFindings() && !mayBeMended && !soundSubset.isEmpty() && soundSubset != subset;
}

Damage Damage::after(const std::optional<Damage>& known) const
{
    Damage now = *this;
    if (known && known->repaired && known->findings.cover(findings)) {
        now.date = known->date; // it is no news
        now.repaired = true;
        now.lasting = true;
    }
    return now;
}

Verification::Verification(const Repository& repository, const Folders& folders, const StopRequest& stop)
    : repository_(repository)
    , folders_(folders)
    , stop_(stop)
{
}

std::optional<Damage> Verification::run(const std::optional<Slice>& slice, const std::optional<Damage>& known) const
{
    const QString subset = slice ? slice->subset() : QString();
    const QString data = slice ? u"--read-data-subset="_s + subset : u"--read-data"_s;
    const Restic restic(repository_, folders_, &stop_);
    CheckFindings findings;
    const auto check = [&](const QStringList& options) {
        findings = {};
        return restic.runUnlocking(QStringList{u"check"_s, data} + options, {},
                                   [&findings](const QByteArray& line) { findings.readLine(QString::fromUtf8(line)); });
    };
    const QStringList withoutLock{u"--no-lock"_s};
    auto outcome = check(repository_.isWritable() ? QStringList() : withoutLock);
    if (outcome.exitStatus != 0 && outcome.diagnosis().problem == ResticProblem::NoSpace)
        outcome = check(withoutLock); // not even a lock fits on a full disk
    if (stop_.isMade())
        throw Failure(ExitStatus::Stopped, u"The verification was stopped."_s);
    const ResticDiagnosis diagnosis = outcome.diagnosis();
    if (outcome.exitStatus != 0 && !tellsOfDamage(outcome, findings))
        throw Failure(ExitStatus::Failed, u"The backups could not be verified: %1"_s.arg(diagnosis.description));
    if (known)
        findings.packs += damagedPacks(repository_, restic, known->findings.packs);
    findings.packs.removeDuplicates();
    if (outcome.exitStatus == 0 && findings == CheckFindings())
        return known && known->outlasts(subset) ? known : std::nullopt;
    return Damage{.date = statusDate(QDateTime::currentDateTimeUtc()),
                  .findings = findings,
                  .backups = affectedBackups(findings),
                  .subset = subset}
        .after(known);
}

/// restic tells for each part of a repository which snapshots need it.
QStringList Verification::affectedBackups(const CheckFindings& findings) const
{
    const Restic restic(repository_, folders_, &stop_);
    std::set<QString> identifiers;
    for (const auto& [kind, parts] : {std::pair{u"--pack"_s, findings.packs}, std::pair{u"--tree"_s, findings.trees}}) {
        if (parts.isEmpty())
            continue;
        const auto outcome = restic.run(QStringList{u"find"_s, u"--json"_s, u"--no-lock"_s, kind} + parts);
        for (const QJsonValue entry : QJsonDocument::fromJson(outcome.output).array())
            identifiers.insert(entry["snapshot"_L1].toString());
    }
    QStringList names;
    try {
        for (const Snapshot& snapshot : snapshotsIn(repository_, restic)) {
            if (identifiers.contains(snapshot.id))
                names.append(snapshot.name());
        }
    } catch (const Failure&) {
        return {}; // not even their list can be read
    }
    return names;
}

bool Verification::tellsOfDamage(const ResticOutcome& outcome, const CheckFindings& findings)
{
    // It has come to this verdict itself, and was not killed or kept from running (restic, "Scripting: Exit codes").
    constexpr int commandFailed = 1;
    const ResticProblem problem = outcome.diagnosis().problem;
    if (outcome.diskGone || outcome.exitStatus <= 0)
        return false;
    // What could not be fetched restic names as if it were damaged.
    if (outcome.onNetwork && problem != ResticProblem::Unknown && problem != ResticProblem::NoRepository)
        return false;
    return findings != CheckFindings() || problem == ResticProblem::NoRepository ||
           (problem == ResticProblem::Unknown && outcome.exitStatus == commandFailed);
}

bool Verification::isDue(const History& history, const QString& destinationId)
{
    const auto damage = history.damage(destinationId);
    return (damage && damage->repaired && !damage->lasting) ||
           isWeekOver(history.lastVerification(destinationId), QDateTime::currentDateTimeUtc());
}

std::optional<Damage> Verification::runAndRemember(const Repository& repository, const Folders& folders,
                                                   const StopRequest& stop, bool all)
{
    ProcessLock lock(lockPath(folders.state));
    if (!lock.tryLock())
        throw Failure(ExitStatus::AlreadyRunning, u"A verification is already running."_s);
    const QString id = repository.destination().id;
    const History before(folders.state);
    const bool onNetwork = repository.access() != nullptr;
    const int leastParts = onNetwork ? Slice::networkParts : 1;
    auto slice = before.nextSlice(id).ofParts(leastParts);
    if (!all && before.isVerificationUnfinished(id))
        slice = slice.smaller();
    auto known = before.damage(id);
    if (known && all)
        known->repaired = false;
    History::change(folders.state, [&](History& history) {
        history.setNextSlice(id, slice);
        history.setVerificationUnfinished(id, !all);
    });
    auto damage = Verification(repository, folders, stop).run(all ? std::nullopt : std::optional(slice), known);
    History::change(folders.state, [&](History& history) {
        history.setDamage(id, damage);
        history.setVerificationUnfinished(id, false);
        // What was damaged is looked at again once it has been repaired.
        const bool again = damage && !damage->lasting;
        if (!all && !again)
            history.setNextSlice(id, slice.next(leastParts));
        if (all || again || onNetwork || slice.next().part == 0)
            history.setLastVerification(id, QDateTime::currentDateTimeUtc());
    });
    return damage;
}

QString Verification::lockPath(const QString& stateFolder)
{
    return stateFolder + "/verification.lock"_L1;
}

bool Verification::stopRunning(const QString& stateFolder)
{
    const auto holder = ProcessLock::holder(lockPath(stateFolder));
    if (!holder)
        return false;
    // The kernel gives no process of another name space a number, and to a signal 0 and -1 stand for many.
    if (*holder <= 0)
        throw Failure(ExitStatus::AlreadyRunning, u"The backups are verified from elsewhere, such as a container."_s);
    kill(*holder, SIGTERM);
    for (const QDeadlineTimer limit(stopPatience); !limit.hasExpired(); QThread::msleep(20)) {
        if (ProcessLock::holder(lockPath(stateFolder)) != holder)
            break;
    }
    return true;
}

} // namespace quillon
