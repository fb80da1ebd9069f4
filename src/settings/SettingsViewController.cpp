#include "SettingsViewController.h"

#include "DataManager.h"
#include "LocalizedString.h"
#include "Mnemonics.h"
#include "NotificationCenter.h"
#include "Notifications.h"
#include "ScreenFittingArea.h"
#include "SetupAdvice.h"
#include "ui_SettingsView.h"

#include <QHideEvent>
#include <QShowEvent>
#include <QStyle>
#include <QVBoxLayout>

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
    , tmutil_(services.tmutilQueue, services.launcher, services.runLoop, services.workspace, services.alerts)
    , ui_(std::make_unique<Ui::SettingsView>())
{
    auto view = std::make_unique<QWidget>();
    ui_->setupUi(view.get());
    auto* area = new ScreenFittingArea(this);
    area->setContent(view.release());
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(area);

    titleControls();
    nameControls();
    arrangeForStyle();
    connectScheduleControls();
    connectOptionControls();
    connectAlertControls();
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

    assignMnemonics(
        {ui_->enableScheduleCheckmark, ui_->addCalendarIntervalButton, ui_->enableRetryAtMissedScheduleCheckmark,
         ui_->enableRetryAtFailureCheckmark, ui_->showRemainingMinutesCheckmark, ui_->showMenuBarIconOnlyCheckmark,
         ui_->enableMenuBarColorsCheckmark, ui_->rotateBackupDisksCheckmark, ui_->enableAppAtSystemStartCheckmark});
}

/// What depends on the sizes of the style and the font.
void SettingsViewController::arrangeForStyle()
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

void SettingsViewController::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        arrangeForStyle();
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
    postShouldUpdateStatusBar();
    reloadCalendarIntervalTableView();
}

void SettingsViewController::postShouldUpdateStatusBar()
{
    notifications_.post(notifications::shouldUpdateStatusBar);
}

} // namespace quillon
