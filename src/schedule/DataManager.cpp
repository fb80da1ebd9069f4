#include "DataManager.h"

#include "DataHelper.h"
#include "StoredAndSent.h"

#include <algorithm>
#include <memory>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

std::unique_ptr<DataManager>& sharedSlot()
{
    static std::unique_ptr<DataManager> instance;
    return instance;
}

} // namespace

DataManager& DataManager::createSharedInstance(const Services& services)
{
    sharedSlot() = std::make_unique<DataManager>(services);
    return *sharedSlot();
}

DataManager& DataManager::sharedInstance()
{
    return *sharedSlot();
}

DataManager::DataManager(const Services& services)
    : runLoop_(services.runLoop)
    , defaults_(services.defaults)
    , notifications_(services.notifications)
    , loginItem_(services.loginItem)
{
    registerUserDefaults();
    isScheduleEnabled_ = defaults_.integer(settingskeys::enableSchedule) == 1;
    const QVariantList storedRules = defaults_.array(settingskeys::calendarIntervals);
    calendarIntervalSettings_ = CalendarIntervalRule::listFromArray(storedRules);
    foreignEntries_ = CalendarIntervalRule::foreignInArray(storedRules);
    latestBackupInfo_ = loadLatestBackupInfo();
    scheduleNextBackup();

    openSystemPreferencesTitleLocaleKey_ =
        systemIsAtLeast(u"13.0") ? "openSystemPreferencesTitleVentura" : "openSystemPreferencesTitle";
}

void DataManager::registerUserDefaults()
{
    using namespace settingskeys;
    defaults_.registerDefaults(registeredDefaults());
    if (!defaults_.boolean(firstLaunch))
        return;
    if (defaults_.integer(launchAtSystemStart) == 1)
        loginItem_.setEnabled(true);
    defaults_.setObject(firstLaunch, false);
}

void DataManager::setIsScheduleEnabled(bool enabled)
{
    if (enabled == isScheduleEnabled_)
        return;
    isScheduleEnabled_ = enabled;
    scheduleNextBackup();
}

void DataManager::addNewSchedule(const CalendarIntervalRule& rule)
{
    calendarIntervalSettings_.append(rule);
    saveAndBackupCalendarIntervalSettings();
}

void DataManager::updateBackupScheduleAtIndex(std::size_t index, qlonglong value, const QString& key)
{
    auto& rule = calendarIntervalSettings_[static_cast<qsizetype>(index)];
    if (key == "day"_L1)
        rule.day = value;
    else
        rule.time = value;
    saveAndBackupCalendarIntervalSettings();
}

void DataManager::deleteBackupScheduleAtIndex(std::size_t index)
{
    const auto position = static_cast<qsizetype>(index);
    calendarIntervalSettings_.removeAt(position);
    for (auto& foreign : foreignEntries_) {
        if (foreign.rulesAhead > position)
            --foreign.rulesAhead;
    }
    saveAndBackupCalendarIntervalSettings();
}

void DataManager::saveAndBackupCalendarIntervalSettings()
{
    defaults_.setObject(settingskeys::calendarIntervals,
                        CalendarIntervalRule::listToArray(calendarIntervalSettings_, foreignEntries_));
    const auto next = getNextBackupDate();
    // Without rules the retry is the next start.
    if (retryBackupDate_ && (!next || *retryBackupDate_ <= *next)) {
        setNextScheduledBackupDate(retryBackupDate_);
        return;
    }
    retryBackupDate_.reset();
    setNextScheduledBackupDate(next);
}

void DataManager::recordLatestBackup(const QString& diskIdentifier, const QString& diskName, std::int64_t totalBytes,
                                     Date date)
{
    const auto found = std::find_if(latestBackupInfo_.begin(), latestBackupInfo_.end(),
                                    [&](const BackupInfo& info) { return info.diskIdentifier() == diskIdentifier; });
    const bool isNew = found == latestBackupInfo_.end();
    BackupInfo& info =
        isNew ? *latestBackupInfo_.insert(latestBackupInfo_.begin(), BackupInfo(diskIdentifier, date)) : *found;
    info.setDiskName(diskName);
    info.setTotalBytes(totalBytes);
    info.setDate(date);
    if (!isNew) {
        // An empty optional compares as less than any date, so a record without one comes last.
        std::stable_sort(latestBackupInfo_.begin(), latestBackupInfo_.end(),
                         [](const BackupInfo& a, const BackupInfo& b) { return a.date() > b.date(); });
    }
    saveLatestBackupInfo();
}

void DataManager::saveLatestBackupInfo()
{
    defaults_.setObject(settingskeys::latestBackupInfo, archiveLatestBackInfo(latestBackupInfo_));
}

QList<BackupInfo> DataManager::loadLatestBackupInfo() const
{
    return unArchiveLatestBackupInfo(defaults_.array(settingskeys::latestBackupInfo));
}

QVariantList DataManager::archiveLatestBackInfo(const QList<BackupInfo>& records)
{
    QVariantList archived;
    for (const auto& record : records) {
        if (const auto data = record.archivedData())
            archived.append(*data);
    }
    return archived;
}

QList<BackupInfo> DataManager::unArchiveLatestBackupInfo(const QVariantList& archived)
{
    QList<BackupInfo> records;
    for (const auto& element : archived) {
        if (element.typeId() != QMetaType::QByteArray)
            continue;
        if (auto record = BackupInfo::unarchiveFromData(element.toByteArray()))
            records.append(std::move(*record));
    }
    return records;
}

using namespace std::chrono_literals;

namespace {

// Somebody who sets the clock by more wants another day, not a correction.
constexpr auto largestStepBackWithoutRepeat = 3h;

} // namespace

std::optional<Date> DataManager::getNextBackupDate()
{
    const Date now = runLoop_.now();
    const auto pauseUntil = defaults_.date(settingskeys::pauseUntilDate);
    if (pauseUntil && *pauseUntil < now) {
        defaults_.setDate(settingskeys::pauseUntilDate, std::nullopt);
        defaults_.setObject(settingskeys::pauseUntilTag, 0LL);
    }
    return startFrom(nextbackup::referenceDate(now, pauseUntil, lastFiredDate_));
}

QList<ChangedStart> DataManager::changedStarts() const
{
    return ChangedStart::listFromArray(defaults_.array(settingskeys::changedStarts));
}

std::optional<Date> DataManager::startFrom(Date date) const
{
    return nextbackup::nextStart(calendarIntervalSettings_, changedStarts(), date, Calendar());
}

std::optional<Date> DataManager::startAfterNext() const
{
    return nextScheduledBackupDate_ ? startAfter(*nextScheduledBackupDate_) : std::nullopt;
}

QList<Date> DataManager::startsBetween(Date from, Date until) const
{
    QList<Date> starts;
    for (auto start = startFrom(from); start && *start < until; start = startAfter(*start))
        starts.append(*start);
    return starts;
}

bool DataManager::changeNextStart(std::optional<Date> instead)
{
    if (!nextScheduledBackupDate_)
        return false;
    const auto changes = nextbackup::changesWith(calendarIntervalSettings_, changedStarts(), *nextScheduledBackupDate_,
                                                 instead, runLoop_.now(), Calendar());
    if (!changes)
        return false;
    defaults_.setObject(settingskeys::changedStarts, ChangedStart::listToArray(*changes));
    scheduleNextBackup();
    return true;
}

void DataManager::scheduleNextBackup()
{
    if (!isScheduleEnabled_) {
        setNextScheduledBackupDate(std::nullopt);
        return;
    }
    setNextScheduledBackupDate(getNextBackupDate());
    retryBackupDate_.reset();
}

void DataManager::setNextScheduledBackupDate(std::optional<Date> date)
{
    nextScheduledBackupDate_ = date;
    startBackupTimer_.invalidate();
    if (date)
        startBackupTimer_ = runLoop_.scheduleOnce(*date, [this] { startTimerFired(); });
}

void DataManager::startTimerFired()
{
    using namespace startdecision;
    if (startDecision(Occasion::TimerRan, false) == Decision::Start)
        makeScheduledStart();
    else
        notifications_.post(notifications::scheduledBackupFoundLate);
}

startdecision::Decision DataManager::startDecision(startdecision::Occasion occasion, bool isMarkedAsMissed) const
{
    return startdecision::decide(occasion, {.now = runLoop_.now(),
                                            .next = nextScheduledBackupDate_,
                                            .retry = retryBackupDate_,
                                            .lastBackup = defaults_.date(settingskeys::lastBackupDate),
                                            .isMarkedAsMissed = isMarkedAsMissed});
}

void DataManager::makeScheduledStart()
{
    lastFiredDate_ = nextScheduledBackupDate_;
    notifications_.post(notifications::scheduledBackupShouldStart);
    scheduleNextBackup();
}

void DataManager::clockWasSet(std::chrono::milliseconds step)
{
    if (-step > largestStepBackWithoutRepeat)
        lastFiredDate_.reset();
}

void DataManager::setRetryBackupDate(std::optional<Date> date)
{
    if (date) {
        const auto next = getNextBackupDate();
        if (!next || *date <= *next) {
            retryBackupDate_ = date;
            setNextScheduledBackupDate(date);
            return;
        }
    }
    retryBackupDate_.reset();
    scheduleNextBackup();
}

void DataManager::pauseBackupSchedule()
{
    startBackupTimer_.invalidate();
}

nextbackup::TimeComponents DataManager::timeComponentsFromTimeInterval(double seconds)
{
    return nextbackup::timeComponents(seconds);
}

} // namespace quillon
