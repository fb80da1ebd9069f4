#include "CalendarIntervalCellView.h"
#include "DataManager.h"
#include "LocalizedString.h"
#include "SettingsViewController.h"
#include "SetupAdvice.h"
#include "ui_SettingsView.h"

#include <QPointer>

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

void SettingsViewController::connectAlertControls()
{
    connect(ui_->warningButton, &SignButton::clicked, this, &SettingsViewController::warningButtonPressed);
    connect(ui_->retryAtMissedScheduleHelpButton, &HelpButton::clicked, this,
            &SettingsViewController::retryAtMissedScheduleHelpButtonPressed);
    connect(ui_->retryAtFailureHelpButton, &HelpButton::clicked, this,
            &SettingsViewController::retryAtFailureHelpButtonPressed);
}

void SettingsViewController::warningButtonPressed()
{
    if (std::exchange(setupAdviceIsAwaited_, true))
        return;
    giveSetupAdvice(tmutil_, runLoop_, [self = QPointer(this)](const SetupAdvice& advice) {
        if (!self)
            return;
        self->setupAdviceIsAwaited_ = false;
        // The user may have turned to something else meanwhile.
        if (self->ui_->warningButton->isVisible() && !self->shouldDisableUserControls_)
            self->showSetupAdvice(advice);
    });
}

void SettingsViewController::showSetupAdvice(const SetupAdvice& advice)
{
    AlertRequest warning;
    warning.style = advice.style;
    warning.messageText = advice.title;
    warning.informativeText = advice.text;
    warning.buttons = {u"%1..."_s.arg(localizedString(sharedDataManager_.openSystemPreferencesTitleLocaleKey())),
                       localizedString("AlertButtonClose")};
    runAlert(warning, ui_->warningButton, RectEdge::MaxX, [this](int response) {
        if (response == alertFirstButtonReturn)
            tmutil_.openTimeMachineSettings(u"Quillon"_s);
    });
}

void SettingsViewController::showRuleLimit()
{
    AlertRequest limit;
    limit.style = AlertStyle::Warning;
    limit.messageText = localizedString("maximumRulesReachedTitle");
    limit.informativeText = localizedString("maximumRulesReachedMessage").arg(mostRules);
    limit.buttons = {localizedString("AlertButtonOk")};
    runAlert(limit, ui_->addCalendarIntervalButton, RectEdge::MaxX);
}

void SettingsViewController::showRefusedLoginItem()
{
    AlertRequest refusal;
    refusal.style = AlertStyle::Warning;
    refusal.messageText = localizedString("AlertTitleWarning");
    refusal.informativeText = localizedString("loginItemRefusedMessage");
    refusal.buttons = {localizedString("AlertButtonClose")};
    runAlert(refusal, ui_->enableAppAtSystemStartCheckmark, RectEdge::MinY);
}

void SettingsViewController::deleteButtonPressed(const CalendarIntervalCellView& sender)
{
    AlertRequest question;
    question.style = AlertStyle::Critical;
    question.messageText = localizedString("confirmDeleteRuleTitle");
    question.informativeText = localizedString("confirmDeleteRuleMessage");
    question.buttons = {localizedString("AlertButtonCancel"), localizedString("AlertButtonDelete")};
    question.destructiveButton = 1;
    runAlert(question, sender.deleteButton(), RectEdge::MinY, [this, row = sender.row()](int response) {
        if (response == alertSecondButtonReturn)
            deleteRule(row);
    });
}

void SettingsViewController::deleteRule(int row)
{
    sharedDataManager_.deleteBackupScheduleAtIndex(static_cast<std::size_t>(row));
    reloadCalendarIntervalTableView();
    if (row == ui_->calendarIntervalTable->numberOfRows()) // the button that had the keyboard is gone
        focusBeforeAlert_ = ui_->addCalendarIntervalButton;
}

void SettingsViewController::retryAtMissedScheduleHelpButtonPressed()
{
    showHelp(ui_->retryAtMissedScheduleHelpButton, localizedString("retryAfterMissedBackupTitle"),
             localizedString("retryAfterMissedBackupMessage"));
}

void SettingsViewController::retryAtFailureHelpButtonPressed()
{
    showHelp(ui_->retryAtFailureHelpButton, localizedString("retryAfterFailedBackupTitle"),
             localizedString("retryAfterFailedBackupMessage"));
}

void SettingsViewController::showHelp(QAbstractButton* sender, const QString& title, const QString& message)
{
    AlertRequest help;
    help.messageText = title;
    help.informativeText = message;
    help.buttons = {localizedString("AlertButtonClose")};
    runAlert(help, sender, RectEdge::MaxX);
}

void SettingsViewController::runAlert(const AlertRequest& request, QWidget* target, RectEdge edge,
                                      AlertPopover::CompletionBlock completionBlock)
{
    showBlockingTransparentOverlay(true);
    // The alert may outlive the panel.
    const QPointer<SettingsViewController> self(this);
    AlertPopover::create(request)->runAsPopoverForView({.view = target, .screenRect = {}}, edge,
                                                       [self, block = std::move(completionBlock)](int response) {
                                                           if (!self)
                                                               return;
                                                           if (block)
                                                               block(response);
                                                           self->showBlockingTransparentOverlay(false);
                                                       });
}

/// Blocks the panel while an alert is up. What a control would be without the alert it is again after it.
void SettingsViewController::showBlockingTransparentOverlay(bool show)
{
    shouldDisableUserControls_ = show;
    if (show)
        focusBeforeAlert_ = ui_->panelContent->isAncestorOf(focusWidget()) ? focusWidget() : nullptr;
    ui_->disabledOverlayBox->setVisible(show);
    ui_->panelContent->setEnabled(!show);
    if (!show && focusBeforeAlert_)
        focusBeforeAlert_->setFocus();
}

} // namespace quillon
