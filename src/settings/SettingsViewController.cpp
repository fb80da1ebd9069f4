#include "SettingsViewController.h"

#include "Accessibility.h"
#include "ApplicationIdentity.h"
#include "CalendarIntervalTable.h"
#include "DataManager.h"
#include "LocalizedString.h"
#include "MoreSettingsPage.h"
#include "NotificationCenter.h"
#include "PopoverPlacement.h"
#include "SetupAdvice.h"
#include "StoredAndSent.h"
#include "ui_SettingsView.h"

#include <QHideEvent>
#include <QPointer>
#include <QShowEvent>
#include <QStyle>
#include <QVBoxLayout>

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

// How often the next-backup line is brought up to date: days end, clocks are set, backups start.
constexpr Seconds nextBackupRefresh{1};

} // namespace

SettingsViewController::SettingsViewController(const Services& services, QWidget* parent)
    : QWidget(parent)
    , runLoop_(services.runLoop)
    , defaults_(services.defaults)
    , notifications_(services.notifications)
    , sharedDataManager_(services.dataManager)
    , loginItem_(services.loginItem)
    , tmutil_(services.tmutil)
    , ui_(std::make_unique<Ui::SettingsView>())
    , firstArea_(new ScreenFittingArea(this))
    , moreArea_(new ScreenFittingArea(this))
    , morePage_(new MoreSettingsPage(defaults_, moreArea_))
{
    auto view = std::make_unique<QWidget>();
    ui_->setupUi(view.get());
    firstArea_->setContent(view.release());
    moreArea_->setContent(morePage_);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(firstArea_);
    layout->addWidget(moreArea_);

    titleControls();
    nameControls();
    arrangeForFont();
    connectScheduleControls();
    connectOptionControls();
    connectAlertControls();
    connectMorePage();
    notifications_.addObserver(notifications::rulesChanged, this,
                               [this](const QVariantMap&) { reloadCalendarIntervalTableView(); });
    showStoredSchedule();
    showStoredOptions();
    updateScheduleIntervalValueControls();
}

SettingsViewController::~SettingsViewController() = default;

void SettingsViewController::titleControls()
{
    const QString caption = u"%1:"_s;
    ui_->scheduleGroupLabel->setText(localizedString("settingsGroupSchedule"));
    ui_->retryGroupLabel->setText(localizedString("settingsGroupRetry"));
    ui_->menuBarGroupLabel->setText(localizedString("settingsGroupMenuBar"));
    ui_->diskGroupLabel->setText(localizedString("settingsGroupDisks"));

    ui_->enableScheduleCheckmark->setText(localizedString("settingsEnableScheduledBackupsVia"));
    ui_->schedulePopup->addItems(
        {localizedString("settingsOptionCalendarInterval"), localizedString("settingsOptionInterval")});
    ui_->scheduleLabel->setText(localizedString("scheduleTitle"));
    ui_->addCalendarIntervalButton->setText(localizedString("addRuleTitle"));
    ui_->intervalLabel->setText(localizedString("settingsIntervalEvery"));
    ui_->intervalNote->setText(localizedString("settingsIntervalNotYetUsed"));
    ui_->nextBackupTitle->setText(caption.arg(localizedString("nextBackupTitle")));

    ui_->enableRetryAtMissedScheduleCheckmark->setText(localizedString("settingsEnableAfterMissedBackup"));
    ui_->enableRetryAtFailureCheckmark->setText(localizedString("settingsEnableAfterFailedBackup"));
    ui_->showRemainingMinutesCheckmark->setText(localizedString("settingsShowDetailedTimeInMenuBar"));
    ui_->showRemainingMinutesDetails->setText(localizedString("settingsShowDetailedTimeInMenuBarDetails"));
    ui_->showMenuBarIconOnlyCheckmark->setText(localizedString("settingsShowMenuBarIconOnly"));
    ui_->enableMenuBarColorsCheckmark->setText(localizedString("settingsDisableIconColors"));
    ui_->rotateBackupDisksCheckmark->setText(localizedString("settingsRotateBackupDisks"));
    ui_->enableAppAtSystemStartCheckmark->setText(localizedString("settingsStartOnSystemStart"));
    ui_->backupLogButton->setText(u"%1..."_s.arg(localizedString("logWindowTitle")));
    ui_->moreButton->setText(u"%1..."_s.arg(localizedString("settingsMoreTitle")));
}

/// For assistive technology, which tells neither what a picture shows nor what a control stands beside.
void SettingsViewController::nameControls()
{
    const QString help = localizedString("helpButtonTitle");
    const auto explain = [](QWidget* control, const QString& name, const QString& description) {
        if (!name.isEmpty())
            control->setAccessibleName(name);
        control->setAccessibleDescription(description);
    };
    const QString schedule = ui_->scheduleGroupLabel->text();
    explain(ui_->enableScheduleCheckmark, {}, schedule);
    explain(ui_->schedulePopup, ui_->enableScheduleCheckmark->text(), schedule);
    // On Linux Qt calls a combo box by what is chosen in it; its name is that of the label whose buddy it is.
    ui_->scheduleGroupLabel->setBuddy(ui_->schedulePopup);
    const SetupAdvice advice = setupAdvice(std::nullopt);
    explain(ui_->warningButton, advice.subject, advice.text);
    ui_->warningButton->setAlertStyle(advice.style);
    explain(ui_->calendarIntervalTable, ui_->scheduleLabel->text(), schedule);
    explain(ui_->addCalendarIntervalButton, {}, ui_->scheduleLabel->text());
    const QString interval = u"%1 %2"_s.arg(ui_->intervalLabel->text(), localizedString("settingsIntervalHours"));
    explain(ui_->scheduleIntervalValueTextField, interval, ui_->intervalNote->text());
    explain(ui_->scheduleIntervalValueStepper, interval, ui_->intervalNote->text());
    explain(ui_->nextBackupLabel, {}, ui_->nextBackupTitle->text());

    const QString missed = ui_->enableRetryAtMissedScheduleCheckmark->text();
    const QString failed = ui_->enableRetryAtFailureCheckmark->text();
    explain(ui_->enableRetryAtMissedScheduleCheckmark, {}, localizedString("retryAfterMissedBackupMessage"));
    explain(ui_->enableRetryAtFailureCheckmark, {}, localizedString("retryAfterFailedBackupMessage"));
    explain(ui_->retryAtMissedScheduleHelpButton, help, missed);
    explain(ui_->retryAtFailureHelpButton, help, failed);
    explain(ui_->showRemainingMinutesCheckmark, {}, ui_->showRemainingMinutesDetails->text());
    explain(ui_->showMenuBarIconOnlyCheckmark, {}, ui_->menuBarGroupLabel->text());
    explain(ui_->enableMenuBarColorsCheckmark, {}, ui_->menuBarGroupLabel->text());
    explain(ui_->rotateBackupDisksCheckmark, {}, ui_->diskGroupLabel->text());
    explain(ui_->enableAppAtSystemStartCheckmark, {}, ui_->diskGroupLabel->text());
    ui_->warningButton->setToolTip(ui_->warningButton->accessibleName());

    assignMnemonics({ui_->enableScheduleCheckmark, ui_->addCalendarIntervalButton,
                     ui_->enableRetryAtMissedScheduleCheckmark, ui_->enableRetryAtFailureCheckmark,
                     ui_->showRemainingMinutesCheckmark, ui_->showMenuBarIconOnlyCheckmark,
                     ui_->enableMenuBarColorsCheckmark, ui_->rotateBackupDisksCheckmark,
                     ui_->enableAppAtSystemStartCheckmark, ui_->backupLogButton, ui_->moreButton});
}

/// What depends on the sizes of the style and the font.
void SettingsViewController::arrangeForFont()
{
    QFont heading = font();
    heading.setBold(true);
    for (QLabel* title : {ui_->scheduleGroupLabel, ui_->retryGroupLabel, ui_->menuBarGroupLabel, ui_->diskGroupLabel})
        title->setFont(heading);
    const int indicator = style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, this) +
                          style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing, nullptr, this);
    ui_->showRemainingMinutesDetails->setContentsMargins(indicator, 0, 0, 0);
    for (QLabel* caption : {ui_->scheduleLabel, ui_->intervalLabel}) // on one line with either page's first row
        caption->setMinimumHeight(ui_->calendarIntervalTable->heightOfFirstRow());
    ui_->menuBarGroupLabel->setMinimumHeight(ui_->showRemainingMinutesCheckmark->sizeHint().height());
    constexpr int digits = 3;
    ui_->scheduleIntervalValueTextField->setFixedWidth(ui_->scheduleIntervalValueTextField->minimumSizeHint().width() +
                                                       digits * fontMetrics().horizontalAdvance(u'0'));
}

void SettingsViewController::connectMorePage()
{
    moreArea_->hide();
    connect(ui_->moreButton, &QPushButton::clicked, this, &SettingsViewController::turnToMore);
    connect(morePage_, &MoreSettingsPage::backPressed, this, &SettingsViewController::turnBack);
    connect(morePage_, &MoreSettingsPage::changed, this, &SettingsViewController::postShouldUpdateStatusBar);
}

// Only the page that is shown has a say in the panel's size.

void SettingsViewController::turnToMore()
{
    morePage_->showStored();
    moreArea_->setMinimumWidth(firstArea_->width()); // so that of the panel only the lower edge moves
    firstArea_->hide();
    moreArea_->show();
    morePage_->setFocus();
}

void SettingsViewController::turnBack()
{
    moreArea_->hide();
    firstArea_->show();
    ui_->moreButton->setFocus();
}

void SettingsViewController::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        arrangeForFont();
}

void SettingsViewController::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (event->spontaneous())
        return;
    showStoredSchedule();
    showStoredOptions();
    nextBackupTimer_ = runLoop_.scheduleRepeating(nextBackupRefresh, [this] { refreshNextBackupLabel(); });
}

void SettingsViewController::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    if (event->spontaneous())
        return;
    nextBackupTimer_.invalidate();
    if (!moreArea_->isHidden())
        turnBack();
    postShouldUpdateStatusBar();
    reloadCalendarIntervalTableView();
}

void SettingsViewController::postShouldUpdateStatusBar()
{
    notifications_.post(notifications::shouldUpdateStatusBar);
}

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
    giveSetupAdvice(tmutil_, runLoop_, [self = QPointer(this)](const SetupAdvice& advice) {
        // The user may have turned to something else meanwhile, also by another click on the button.
        if (self && self->ui_->warningButton->isVisible() && !self->shouldDisableUserControls_)
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
            tmutil_.openTimeMachineSettings(identity::name);
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
    const int row = sender.row();
    const CalendarIntervalRule rule = sharedDataManager_.calendarIntervalSettings().at(row);
    runAlert(question, sender.deleteButton(), RectEdge::MinY, [this, row, rule](int response) {
        // Meanwhile another rule may have taken its place.
        const auto& rules = sharedDataManager_.calendarIntervalSettings();
        if (response == alertSecondButtonReturn && row < rules.size() && rules[row] == rule)
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
