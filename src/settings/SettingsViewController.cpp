#include "SettingsViewController.h"

#include "DataHelper.h"
#include "DataManager.h"
#include "LocalizedString.h"
#include "RunLoop.h"

#include <QHBoxLayout>
#include <QLabel>

namespace quillon {

using namespace Qt::StringLiterals;

SettingsViewController::SettingsViewController(RunLoop& runLoop, DataManager& dataManager, QWidget* parent)
    : QWidget(parent)
    , runLoop_(runLoop)
    , sharedDataManager_(dataManager)
    , nextBackupTitle_(new QLabel(u"%1:"_s.arg(localizedString("nextBackupTitle")), this))
    , nextBackupLabel_(new QLabel(this))
{
    auto* layout = new QHBoxLayout(this);
    layout->addWidget(nextBackupTitle_);
    layout->addWidget(nextBackupLabel_);
}

QString SettingsViewController::getNextScheduledBackup() const
{
    if (!sharedDataManager_.isScheduleEnabled())
        return localizedString("nextBackupDisabled");
    const auto next = sharedDataManager_.nextScheduledBackupDate();
    if (!next)
        return localizedString("nextBackupNotAvailable");
    return u"%1, %2"_s.arg(DataHelper::getDayFrom(*next, DateFormatterStyle::Full, runLoop_.now()),
                           DataHelper::getDateTimeFrom(*next, DateFormatterStyle::None, DateFormatterStyle::Short));
}

void SettingsViewController::showEvent(QShowEvent* event)
{
    nextBackupLabel_->setText(getNextScheduledBackup());
    QWidget::showEvent(event);
}

} // namespace quillon
