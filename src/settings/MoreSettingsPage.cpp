#include "MoreSettingsPage.h"

#include "Accessibility.h"
#include "CalendarIntervalTable.h"
#include "Controls.h"
#include "LocalizedString.h"
#include "StoredAndSent.h"
#include "UserDefaults.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QStyle>

#include <algorithm>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

MoreSettingsPage::MoreSettingsPage(UserDefaults& defaults, QWidget* parent)
    : QWidget(parent)
    , defaults_(defaults)
    , rows_(new QGridLayout(this))
{
    // As the interface file has it for the first page.
    rows_->setContentsMargins(20, 18, 20, 18);
    rows_->setHorizontalSpacing(12);
    rows_->setVerticalSpacing(8);
    rows_->setColumnStretch(1, 1);

    using namespace settingskeys;
    addGroup("settingsGroupPower");
    const QCheckBox* mains = addSwitch("settingsOnlyOnMainsPower", onlyOnMainsPower);
    addNumber("settingsChargeThatSuffices", {.key = chargeThatSuffices,
                                             .most = mostChargeThatSuffices,
                                             .proposed = 50,
                                             .unit = "settingsPerCent",
                                             .unitOfOne = "settingsPerCent",
                                             .dependsOn = mains});
    addSwitch("settingsStayAwake", stayAwake);
    addGroup("settingsGroupRetry");
    addSwitch("settingsStartWhenDiskAppears", startWhenDiskAppears);
    addNumber("settingsMinutesAfterWake", {.key = minutesAfterWake,
                                           .most = mostMinutesAfterWake,
                                           .proposed = 10,
                                           .unit = "settingsMinutes",
                                           .unitOfOne = "settingsMinutes"});
    addGroup("settingsGroupNotifications");
    addNumber("settingsDaysWithoutBackup", {.key = daysWithoutBackup,
                                            .most = mostDaysWithoutBackup,
                                            .proposed = 10,
                                            .unit = "settingsDays",
                                            .unitOfOne = "settingsDay"});
    addSwitch("settingsTellBeforeStart", tellBeforeStart);
    addBackButton();
    assignMnemonics(findChildren<QAbstractButton*>());
    setFocusProxy(switches_.first().box);
}

void MoreSettingsPage::addGroup(const char* title)
{
    if (rows_->count() > 0)
        rows_->addWidget(new Divider, rows_->rowCount(), 0, 1, 2);
    group_ = localizedString(title);
    auto* heading = new QLabel(group_);
    heading->setObjectName(QLatin1StringView(title));
    heading->setTextFormat(Qt::PlainText);
    QFont bold;
    bold.setBold(true);
    heading->setFont(bold);
    rows_->addWidget(heading, rows_->rowCount(), 0, Qt::AlignRight | Qt::AlignVCenter);
}

QCheckBox* MoreSettingsPage::addBox(const char* title, QWidget* behind, int indent)
{
    // The first row of a group is that of its heading.
    const int last = rows_->rowCount() - 1;
    const int row = rows_->itemAtPosition(last, 1) ? last + 1 : last;
    auto* line = new QHBoxLayout;
    line->setContentsMargins(indent, 0, 0, 0);
    auto* box = new QCheckBox(localizedString(title));
    box->setAccessibleDescription(group_);
    line->addWidget(box);
    if (behind)
        line->addWidget(behind);
    line->addStretch();
    rows_->addLayout(line, row, 1);
    return box;
}

QCheckBox* MoreSettingsPage::addSwitch(const char* title, const QString& key)
{
    QCheckBox* box = addBox(title);
    box->setObjectName(key);
    connect(box, &QCheckBox::clicked, this, [this, key](bool on) {
        defaults_.setObject(key, on ? 1LL : 0LL);
        enableNumbers();
        Q_EMIT changed();
    });
    switches_.append({box, key});
    return box;
}

void MoreSettingsPage::addNumber(const char* title, Number number)
{
    number.field = new QSpinBox;
    number.field->setObjectName(number.key + "Field"_L1);
    number.field->setRange(1, static_cast<int>(number.most));
    number.field->setKeyboardTracking(false);
    number.field->setAccessibleName(localizedString(title));
    number.field->setAccessibleDescription(group_);
    new WheelGuard(number.field);
    const int indent = number.dependsOn ? style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, this) +
                                              style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing, nullptr, this)
                                        : 0;
    number.box = addBox(title, number.field, indent);
    number.box->setObjectName(number.key);
    const auto store = [this, number] { storeNumber(number); };
    connect(number.box, &QCheckBox::clicked, this, store);
    connect(number.field, &QSpinBox::valueChanged, this, store);
    numbers_.append(number);
}

void MoreSettingsPage::addBackButton()
{
    rows_->addWidget(new Divider, rows_->rowCount(), 0, 1, 2);
    auto* back = new QPushButton(localizedString("settingsBackTitle"));
    back->setObjectName(u"backButton"_s);
    connect(back, &QPushButton::clicked, this, &MoreSettingsPage::backPressed);
    rows_->addWidget(back, rows_->rowCount(), 1, Qt::AlignLeft);
}

void MoreSettingsPage::showStored()
{
    for (const Switch& each : std::as_const(switches_))
        each.box->setChecked(defaults_.integer(each.key) == 1);
    for (const Number& number : std::as_const(numbers_))
        showNumber(number);
    enableNumbers();
}

void MoreSettingsPage::showNumber(const Number& number) const
{
    const auto stored = static_cast<int>(std::clamp(defaults_.integer(number.key), 0LL, number.most));
    number.box->setChecked(stored > 0);
    const QSignalBlocker showsOnly(number.field);
    number.field->setValue(stored > 0 ? stored : number.proposed);
    showUnit(number);
}

void MoreSettingsPage::showUnit(const Number& number)
{
    const QString text = localizedString(number.field->value() == 1 ? number.unitOfOne : number.unit);
    number.field->setPrefix(text.section(u"%1"_s, 0, 0));
    number.field->setSuffix(text.section(u"%1"_s, 1));
}

void MoreSettingsPage::storeNumber(const Number& number)
{
    showUnit(number);
    enableNumbers();
    defaults_.setObject(number.key, number.box->isChecked() ? qlonglong{number.field->value()} : 0LL);
    Q_EMIT changed();
}

void MoreSettingsPage::enableNumbers()
{
    for (const Number& number : std::as_const(numbers_)) {
        number.box->setEnabled(!number.dependsOn || number.dependsOn->isChecked());
        number.field->setEnabled(number.box->isEnabled() && number.box->isChecked());
    }
}

void MoreSettingsPage::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Cancel))
        Q_EMIT backPressed();
    else
        QWidget::keyPressEvent(event);
}

} // namespace quillon
