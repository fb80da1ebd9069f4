#include "DataManager.h"

#include "DefaultSettings.h"
#include "SettingsKeys.h"
#include "SystemVersion.h"

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

void DataManager::addNewSchedule()
{
    calendarIntervalSettings_.append(CalendarIntervalRule());
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
    // Without rules there is nothing that could come before the retry, so it is kept.
    if (retryBackupDate_ && (!next || *retryBackupDate_ <= *next)) {
        setNextScheduledBackupDate(retryBackupDate_);
        return;
    }
    retryBackupDate_.reset();
    setNextScheduledBackupDate(next);
}

} // namespace quillon
