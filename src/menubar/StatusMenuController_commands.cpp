#include "AboutViewController.h"
#include "Bundle.h"
#include "LocalizedString.h"
#include "MakerSite.h"
#include "RestoreGuide.h"
#include "SettingsKeys.h"
#include "SettingsViewController.h"
#include "StatusMenuController.h"

namespace quillon {

using namespace Qt::StringLiterals;

void StatusMenuController::connectCommands()
{
    connect(&statusMenu_, &QMenu::aboutToShow, this, &StatusMenuController::menuWillOpen);
    const auto onClick = [this](QAction* item, auto command) {
        connect(item, &QAction::triggered, this, [this, item, command] {
            if (!statusMenu_.hasJustChanged(item))
                QMetaObject::invokeMethod(this, command);
        });
    };
    onClick(statusMenu_.backupNowMenuItem, [this] {
        if (!statusMenu_.backupNowMenuItem->menu()) // with a submenu the item only opens it
            backupNowClicked();
    });
    connect(&backupDisksMenu_, &BackupDisksMenu::systemChoiceClicked, this, &StatusMenuController::backupNowClicked);
    connect(&backupDisksMenu_, &BackupDisksMenu::diskClicked, this, &StatusMenuController::backupNowSubMenuItemClicked);
    connect(&historyMenu_, &HistoryMenu::helpButtonPressed, this,
            &StatusMenuController::allBackupInfoHelpButtonPressed);
    onClick(statusMenu_.pauseScheduleMenuItem, [this] {
        // It only opens its submenu; a desktop that draws the menu may toggle the mark all the same.
        StatusMenu::setState(statusMenu_.pauseScheduleMenuItem, statusMenu_.resumeScheduleMenuItem->isVisible());
    });
    onClick(statusMenu_.resumeScheduleMenuItem, &StatusMenuController::resumeScheduleClicked);
    onClick(statusMenu_.skipRetryAttemptMenuItem, &StatusMenuController::skipRetryAttemptClicked);
    onClick(statusMenu_.enterTimeMachineMenuItem, &StatusMenuController::enterTimeMachineClicked);
    onClick(statusMenu_.updateAvailableMenuItem, &StatusMenuController::updateAvailableClicked);
    onClick(statusMenu_.openSystemPreferencesMenuItem, &StatusMenuController::openSystemPreferences);
    onClick(statusMenu_.preferencesMenuItem, &StatusMenuController::preferencesClicked);
    onClick(statusMenu_.aboutMenuItem, &StatusMenuController::aboutClicked);
    onClick(statusMenu_.quitMenuItem, &StatusMenuController::quitClicked);
    const auto durations = statusMenu_.pauseDurationItems();
    for (QAction* item : durations)
        onClick(item, [this, item] { pauseForClicked(item->data().toLongLong()); });
}

void StatusMenuController::skipRetryAttemptClicked()
{
    sharedDataManager_.setRetryBackupDate(std::nullopt);
    updateStatusBar();
}

void StatusMenuController::enterTimeMachineClicked()
{
    workspace_.openApplication(u"com.apple.backup.launcher"_s, [this](bool opened) {
        if (opened)
            return;
        QStringList latestBackups;
        if (!sharedDataManager_.latestBackupInfo().isEmpty()) {
            for (const auto& row : historyRows())
                latestBackups.append(row.title());
        }
        if (const auto guide = restoreGuide(latestBackups))
            alerts_.present(*guide, {});
    });
}

void StatusMenuController::openSystemPreferences()
{
    tmutil_.openTimeMachineSettings(u"Quillon"_s);
}

void StatusMenuController::preferencesClicked()
{
    if (!preferencesPopover_->contentView())
        preferencesPopover_->setContentView(
            std::make_unique<SettingsViewController>(
                SettingsViewController::Services{runLoop_, defaults_, notifications_, sharedDataManager_, loginItem_,
                                                 tmutilQueue_, launcher_, workspace_, alerts_})
                .release()); // which the popover takes
    showPopover(*preferencesPopover_);
}

void StatusMenuController::aboutClicked()
{
    if (!aboutPopover_->contentView())
        aboutPopover_->setContentView(std::make_unique<AboutViewController>(runLoop_, workspace_, alerts_).release());
    showPopover(*aboutPopover_);
}

void StatusMenuController::showPopover(Popover& popover)
{
    statusMenu_.close(); // which a second start of the program finds open; it would lie on top
    popover.showRelativeTo(statusItem_.anchor(), RectEdge::MinY);
}

void StatusMenuController::updateAvailableClicked()
{
    AlertRequest update;
    update.messageText = localizedString("appUpdateAvailableAlertTitle").arg(latestAppVersion_.value_or(QString()));
    update.informativeText = localizedString("appUpdateAvailableAlertMessage").arg(bundleShortVersion());
    update.buttons = {localizedString("AlertButtonGetUpdate"), localizedString("AlertButtonCancel")};
    alerts_.present(update, [this](int response) {
        if (response == alertFirstButtonReturn)
            openDownloadPage();
    });
}

void StatusMenuController::openDownloadPage()
{
    // The program makes way for the one that is about to replace it.
    workspace_.openURL(makersite::page(u"/quillon/download/"_s), [this](bool opened) {
        if (opened)
            runLoop_.enqueue([this] { quitClicked(); });
    });
}

void StatusMenuController::quitClicked()
{
    Q_EMIT terminate();
}

} // namespace quillon
