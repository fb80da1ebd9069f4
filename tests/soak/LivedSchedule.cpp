#include "LivedSchedule.h"

#include "Calendar.h"
#include "DateFormatter.h"
#include "RemoteControl.h"

#include <algorithm>
#include <array>
#include <ctime>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto reactionTime = 2s;

/// What the ledger has to say of a start by what happens around it, in the order of events.
constexpr std::array ledgerLines{
    "schedule completed",                              // Nothing
    "schedule failed incomplete, retry completed",     // RunFails
    "schedule missed asleep, retry completed",         // Asleep
    "schedule completed",                              // SmallJump
    "schedule missed clockSet, retry completed",       // LargeJump
    "schedule completed",                              // SetBack
    "schedule skipped paused",                         // Paused
    "elsewhere completed, schedule skipped backupRan", // OtherRun
    "schedule refused toolRefused",                    // ToolFails
    "user completed, schedule skipped backupRan",      // ByHand
    "schedule skipped asked",                          // Skipped
    "schedule completed",                              // Postponed
    "schedule skipped onBattery, schedule completed",  // OnBattery
    "schedule refused toolRefused, retry completed",   // DiskAway
    "schedule skipped onBattery",                      // StillOnBattery
};

} // namespace

LivedSchedule::LivedSchedule(Date begin, unsigned seed, Tally& tally)
    : PlayedProgram(begin)
    , random_(seed)
    , tally_(tally)
{
    defaults.stored[settingskeys::lastBackupDate] =
        QDateTime::fromMSecsSinceEpoch(begin.time_since_epoch().count() - 1);
    setRules({{CalendarIntervalRule::everyDay, between(1, 5) * 3600 + between(0, 59) * 60},
              {CalendarIntervalRule::mondayToFriday, between(12, 17) * 3600 + between(0, 59) * 60}});
    retryWait_ = std::chrono::minutes(between(0, 1) * 20);
    defaults.stored[settingskeys::minutesAfterWake] = qlonglong(retryWait_ / 1min);
    defaults.stored[settingskeys::onlyOnMainsPower] = 1LL;
    defaults.stored[settingskeys::chargeThatSuffices] = 50LL;
    launch();
}

int LivedSchedule::between(int least, int most)
{
    return std::uniform_int_distribution(least, most)(random_);
}

void LivedSchedule::liveThrough(int days)
{
    LocalTime day = Calendar().localTime(runLoop.now());
    for (int lived = 0; lived < days; ++lived) {
        const QList<Date> starts = dueOn(day);
        for (const Date due : starts) {
            isLastOfDay_ = due == starts.last();
            meet(due);
        }
        if (between(1, 20) == 1)
            travel();
        else
            sleepUntil(Calendar().date({day.year, day.month, day.day + 1, 0}));
        day = Calendar().localTime(runLoop.now());
    }
}

QList<Date> LivedSchedule::dueOn(const LocalTime& day) const
{
    QList<Date> due;
    for (const auto& rule : manager->calendarIntervalSettings()) {
        if (rule.allowsWeekday(day.weekday))
            due.append(
                Calendar().date({day.year, day.month, day.day, int(rule.time / 3600), int(rule.time % 3600 / 60)}));
    }
    std::ranges::sort(due);
    return due;
}

/// The night ends somewhere else; a start that it has passed over there is made up for.
void LivedSchedule::travel()
{
    constexpr std::array zones = {"Europe/Berlin", "America/New_York", "Asia/Kolkata", "Pacific/Auckland"};
    qputenv("TZ", zones[std::size_t(between(0, 3))]);
    tzset();
    const LocalTime here = Calendar().localTime(runLoop.now());
    sleepUntil(Calendar().date({here.year, here.month, here.day + 1, 0}));
    runLoop.advance(20s);
    if (manager->retryBackupDate())
        expectRetry();
    newInLedger(); // what was missed depends on where the night was
}

void LivedSchedule::meet(Date due)
{
    if (runLoop.now() > due - 10min)
        return; // what came before has taken that long
    const QString onTheWall = DateFormatter::string(due, u"yyyy-MM-dd HH:mm"_s);
    if (changed_.contains(onTheWall))
        return; // the day is lived once more, farther west, and that start was meant wherever it is
    ++tally_.due;
    sleepUntil(due - 5min);
    runLoop.advance(20s);
    expectStart(runLoop.now(), false, {});
    const bool isOnBattery = event_ == Event::StillOnBattery;
    event_ = isOnBattery ? Event::OnBattery // most days nothing happens
                         : Event(std::max(between(-10, int(Event::DiskAway)), 0));
    if (event_ == Event::Skipped || event_ == Event::Postponed)
        changed_.insert(onTheWall);
    play(event_, due);
    look(due);
}

void LivedSchedule::play(Event event, Date due)
{
    const auto completed = machine.phases;
    switch (event) {
    case Event::Nothing:
    case Event::SetBack:
        pass(due, true);
        letRunEnd();
        if (event == Event::SetBack) {
            runLoop.stepWallClock(-std::chrono::seconds(between(10, 600)));
            runLoop.advanceTo(std::max(runLoop.now(), due) + 2min);
            expectStart(due, false, {});
        }
        return;
    case Event::RunFails:
        machine.phases = {{u"Copying"_s, 20, true}};
        pass(due, true);
        letRunEnd(); // as a completed one would have ended too
        machine.phases = completed;
        if (retryWait_ > 0s || between(0, 1) == 0) {
            expectRetry();
            return;
        }
        setMounted(false);
        expectStartForDisk(); // in place of the retry
        letRunEnd();
        runLoop.advance(6min);
        expectStart(due, false, {});
        return;
    case Event::Asleep:
        sleepUntil(due + std::chrono::seconds(between(1, 3600)));
        pass(runLoop.now(), false, u"asleep"_s);
        if (manager->retryBackupDate() < runLoop.now() + retryWait_ - reactionTime)
            tally_.untrue.append(lineAt(due) + u", a retry too soon after the wake-up"_s);
        expectRetry();
        return;
    case Event::SmallJump:
    case Event::LargeJump: {
        const bool isMade = event == Event::SmallJump;
        runLoop.advanceTo(due - 20s);
        runLoop.stepWallClock(std::chrono::seconds(isMade ? between(21, 60) : between(100, 3600)));
        pass(runLoop.now() + 14s, isMade, isMade ? QString() : u"the clock was set past it"_s);
        if (!isMade)
            expectRetry();
        break;
    }
    case Event::Paused:
        controller->pauseForClicked(3600);
        pass(due, false, u"paused"_s);
        controller->resumeScheduleClicked();
        return;
    case Event::OtherRun:
        runLoop.advanceTo(due - 30s);
        machine.start(u"A"_s);
        ++seen_;
        pass(due, false, u"another backup ran"_s);
        break;
    case Event::ToolFails:
        runLoop.advanceTo(due - 1s);
        machine.injection = {int(std::ranges::count(machine.launched(), u"startbackup"_s,
                                                    [](const auto& call) { return call.arguments.value(0); })) +
                                 1,
                             TmutilScript::Fault::Refused, 0, u"startbackup"_s};
        pass(due, false, u"refused"_s);
        machine.injection = {};
        return;
    case Event::ByHand:
        runLoop.advanceTo(due - 1s);
        controller->backupNowClicked();
        ++seen_;
        pass(due, false, u"started by hand"_s);
        break;
    case Event::OnBattery:
        beOnBattery(due);
        if (event_ == Event::StillOnBattery)
            return;
        break;
    case Event::DiskAway:
        beWithoutDisk(due);
        break;
    case Event::StillOnBattery: // never by itself
        return;
    case Event::Skipped:
        ask(u"skip"_s);
        if (between(0, 1) == 1)
            controller->pauseForClicked(3600);
        pass(due, false, u"asked to be"_s);
        controller->resumeScheduleClicked();
        return;
    case Event::Postponed: {
        const auto by = std::chrono::minutes(between(5, 90));
        ask(u"postpone %1m"_s.arg(by.count()));
        if (between(0, 1) == 1)
            sleepUntil(due - 1min);
        pass(due, false);
        if (between(0, 3) == 0) {
            sleepUntil(due + by + 1min);
            pass(runLoop.now(), false, u"asleep"_s);
            expectRetry();
            event_ = Event::Asleep;
            return;
        }
        sleepUntil(due + by / 2);
        pass(due + by, true);
        break;
    }
    }
    letRunEnd();
}

/// A start that is held back is made once power suffices, unless the next one comes first.
void LivedSchedule::beOnBattery(Date due)
{
    runLoop.advanceTo(due - 1min);
    powerSupply.become({.onMains = false, .charge = 50});
    pass(due, false, u"on battery"_s);
    if (!isLastOfDay_ && between(0, 2) == 0) {
        event_ = Event::StillOnBattery;
        return;
    }
    if (between(0, 2) == 0)
        sleepUntil(due + std::chrono::minutes(between(1, 90)));
    runLoop.advance(std::chrono::seconds(between(1, 3600)));
    expectStart(due, false, {});
    powerSupply.become({.onMains = between(0, 1) == 1, .charge = 51});
    pass(runLoop.now(), true);
    powerSupply.become({});
}

/// It makes up for a start that was refused, or for a run that has failed, once it has been back for a while.
void LivedSchedule::beWithoutDisk(Date due)
{
    setMounted(false);
    pass(due, false, u"without a disk"_s);
    if (between(0, 1) == 1)
        sleepUntil(due + std::chrono::minutes(between(1, 60)));
    runLoop.advance(std::chrono::seconds(between(1500, 3600)));
    setMounted(true); // for too short a time
    runLoop.advance(std::chrono::seconds(between(2, 19)));
    setMounted(false);
    powerSupply.become({.onMains = false, .charge = 3});
    setMounted(true);
    runLoop.advance(1min);
    powerSupply.become({});
    setMounted(false);
    expectStart(due, false, {});
    expectStartForDisk();
}

void LivedSchedule::setMounted(bool isMounted)
{
    machine.destinations[0].isMounted = isMounted;
    mountWatch.change();
    runLoop.advance(2s);
}

void LivedSchedule::expectStartForDisk()
{
    const Date now = runLoop.now();
    setMounted(true);
    runLoop.advance(16s);
    expectStart(now, false, {});
    runLoop.advance(5s);
    expectStart(now, true, {});
}

/// A start that is due, or would be.
void LivedSchedule::pass(Date due, bool isExpected, const QString& reason)
{
    runLoop.advanceTo(due + reactionTime);
    expectStart(due, isExpected, reason);
}

void LivedSchedule::expectStart(Date due, bool isExpected, const QString& reason)
{
    const int made = machine.starts() - std::exchange(seen_, machine.starts());
    const QString line = lineAt(due);
    if (isExpected && made == 0)
        tally_.lost.append(line);
    if (made > (isExpected ? 1 : 0))
        tally_.doubled.append(line);
    tally_.made += isExpected && made == 1;
    if (!reason.isEmpty())
        tally_.skipped[reason] += 1;
}

/// Of a start that was missed, or of a run that failed.
void LivedSchedule::expectRetry()
{
    const auto retry = manager->retryBackupDate();
    if (!retry) {
        tally_.lost.append(lineAt(runLoop.now()) + u", no retry"_s);
        return;
    }
    runLoop.advanceTo(*retry + reactionTime);
    const int made = tally_.made;
    expectStart(*retry, true, {});
    tally_.retries += std::exchange(tally_.made, made) - made;
    letRunEnd();
}

void LivedSchedule::ask(const QString& words)
{
    RemoteControl remote({runLoop, notifications, tmutil, *manager, *controller});
    remote.take(ControlRequest::toLine(words.split(u' ')), [this](const QByteArray& answer) {
        if (!ControlAnswer::fromLine(answer)->done)
            tally_.untrue.append(lineAt(runLoop.now()) + QString::fromUtf8(answer));
        return true;
    });
}

void LivedSchedule::letRunEnd()
{
    runLoop.advance(2min);
}

/// Between two backups nothing is left over.
void LivedSchedule::look(Date due)
{
    const bool isTrue = controller->tmState() == TMState::NotRunning && controller->uiState() != TMState::Running &&
                        item.title.startsWith(u"Next:"_s) && machine.liveChildren() == 0 &&
                        manager->nextScheduledBackupDate() > runLoop.now();
    if (!isTrue)
        tally_.untrue.append(lineAt(due) + u", "_s + item.title.replace(u'\n', u' '));
    const QString told = newInLedger();
    if (told != QLatin1StringView(ledgerLines.at(std::size_t(event_))))
        tally_.untrue.append(lineAt(due) + u", ledger: "_s + told);
}

QString LivedSchedule::newInLedger()
{
    QStringList lines;
    const auto entries = ledger.read().value_or(std::vector<LedgerEntry>());
    for (const LedgerEntry& entry : entries) {
        if (!read_.contains(entry.id))
            lines.prepend(
                u"%1 %2 %3"_s.arg(nameOf(entry.cause), nameOf(entry.outcome), nameOf(entry.reason)).trimmed());
        read_.insert(entry.id);
    }
    return lines.join(u", "_s);
}

QString LivedSchedule::lineAt(Date date) const
{
    return DateFormatter::string(date, u"yyyy-MM-dd HH:mm:ss"_s) + u", event %1"_s.arg(int(event_));
}

} // namespace quillon
