#include "DataHelper.h"
#include "Format.h"
#include "LocalizedString.h"
#include "SettingsKeys.h"
#include "StatusMenuController.h"

namespace quillon {

using namespace Qt::StringLiterals;

void StatusMenuController::updateMenuItems()
{
    StatusMenu::setTitle(statusMenu_.phaseMenuItem, phaseItemTitle());
    updateBackupDiskMenuItem();
    StatusMenu::setTitle(statusMenu_.remainingTimeMenuItem, remainingTimeItemTitle());
    statusMenu_.pauseScheduleMenuItem->setEnabled(sharedDataManager_.isScheduleEnabled() &&
                                                  tmState_ == TMState::NotRunning);
    updateBackupNowItem();
    updatePauseItemTitle();
    statusMenu_.setShown(statusMenu_.updateAvailableMenuItem, latestAppVersion_.has_value());
}

QString StatusMenuController::backupText(std::optional<Date> date, std::int64_t bytes) const
{
    if (!date)
        return localizedString("notAvailableAbbreviation");
    const QString size = bytes > 0 ? u" (%1)"_s.arg(stringRepresentationOfBytes(bytes)) : QString();
    return DataHelper::dayAndTime(*date, DateFormatterStyle::Long, runLoop_.now()) + size;
}

QString StatusMenuController::lastBackupText() const
{
    return backupText(defaults_.date(settingskeys::lastBackupDate),
                      defaults_.integer(settingskeys::lastBackupBytesCopied));
}

QString StatusMenuController::phaseItemTitle() const
{
    if (!isActive())
        return u"%1: %2"_s.arg(localizedString("latestBackupTitle"), lastBackupText());
    QString phase = localisedStringForBackupPhase(tmPhase_);
    if (tmState_ == TMState::Running) {
        const auto bytes = progress_.bytesCopied();
        const QString copied =
            bytes > 0 ? u", %1 %2"_s.arg(stringRepresentationOfBytes(bytes), localizedString("copiedWord")) : QString();
        phase += u" (%1%2)"_s.arg(format("%.1f%%", progress_.percentage() * 100), copied);
    }
    return u"%1: %2"_s.arg(localizedString("phaseTitle"), phase);
}

QString StatusMenuController::remainingTimeItemTitle() const
{
    if (isActive()) {
        QString remaining = localizedString("notAvailableAbbreviation");
        if (tmState_ == TMState::Running) {
            remaining = progress_.timeRemaining() > 0
                            ? getTimeStringFromInterval(progress_.timeRemaining(), abbreviated, true, true)
                            : u"%1..."_s.arg(localizedString("calculatingTitle"));
        }
        return u"%1: %2"_s.arg(localizedString("remainingTimeTitle"), remaining);
    }
    QString next = localizedString("nextBackupDisabled");
    if (sharedDataManager_.isScheduleEnabled()) {
        const auto date = sharedDataManager_.nextScheduledBackupDate();
        next = date ? DataHelper::dayAndTime(*date, DateFormatterStyle::Full, runLoop_.now())
                    : localizedString("notAvailableAbbreviation");
    }
    const QString retry =
        sharedDataManager_.retryBackupDate() ? u"(%1)"_s.arg(localizedString("retryAttemptTitle")) : QString();
    return u"%1: %2 %3"_s.arg(localizedString("nextBackupTitle"), next, retry);
}

void StatusMenuController::updateBackupNowItem()
{
    QAction* item = statusMenu_.backupNowMenuItem;
    QString title = localizedString("backupNowTitle");
    if (stopBackupConfirmed_ || tmState_ == TMState::Stopping) {
        title = u"%1..."_s.arg(localizedString("statusStopping"));
    } else if (tmState_ == TMState::Running || tmState_ == TMState::Starting) {
        title = localizedString(skipThisBackupTitleLocaleKey_);
        withdrawSubmenus();
    }
    statusMenu_.setShown(statusMenu_.skipRetryAttemptMenuItem, sharedDataManager_.retryBackupDate().has_value());
    StatusMenu::setTitle(item, title);
    const auto disks = backupDisksMenu_.actions(); // which may be open at this moment
    for (QAction* disk : disks)
        disk->setEnabled(!commandIsUnderWay_);
    if (shouldEnableMenuButons_)
        item->setEnabled(!commandIsUnderWay_ && !stopBackupConfirmed_ && tmState_ != TMState::Stopping);
}

void StatusMenuController::updatePauseItemTitle()
{
    const auto pauseUntil = defaults_.date(settingskeys::pauseUntilDate);
    if (pauseUntil && *pauseUntil > runLoop_.now())
        titlePauseItem(*pauseUntil);
}

void StatusMenuController::titlePauseItem(Date end)
{
    StatusMenu::setTitle(statusMenu_.pauseScheduleMenuItem,
                         u"%1: %2"_s.arg(localizedString("pauseScheduleUntilTitle"),
                                         DataHelper::dayAndTime(end, DateFormatterStyle::Full, runLoop_.now())));
}

void StatusMenuController::updateBackupDiskMenuItem()
{
    QAction* item = statusMenu_.backupDiskMenuItem;
    if (backupDisks_.size() < 2) {
        statusMenu_.setShown(item, false);
        return;
    }
    QString identifier = defaults_.string(settingskeys::lastBackupDiskIdentifier);
    if (tmState_ == TMState::Running || tmState_ == TMState::Stopping)
        identifier = activeBackupDiskIdentifier_.value_or(QString());
    const QString name = nameForBackupDiskWithIdentifier(identifier);
    statusMenu_.setShown(item, !name.isEmpty());
    StatusMenu::setTitle(item, u"%1: %2"_s.arg(localizedString("backupDiskTitle"), name));
}

} // namespace quillon
