#include "DisksInMenu.h"

#include "Accessibility.h"
#include "Controls.h"
#include "LocalizedString.h"
#include "Shown.h"
#include "StatusMenu.h"
#include "StoredAndSent.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QWidgetAction>

#include <algorithm>
#include <memory>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

BackupDisksMenu::BackupDisksMenu(QWidget* parent)
    : QMenu(parent)
{
    connect(this, &QMenu::aboutToShow, this, &BackupDisksMenu::fill);
}

void BackupDisksMenu::setEntries(const QList<Entry>& entries)
{
    wanted_ = entries;
    if (!isVisible())
        fill();
}

void BackupDisksMenu::fill()
{
    if (entries_ == wanted_)
        return;
    entries_ = wanted_;
    clear();
    QAction* choice = addAction(QString());
    StatusMenu::setTitle(choice, localizedString("letMacOsDecideBackupDiskTitle"));
    connect(choice, &QAction::triggered, this, &BackupDisksMenu::systemChoiceClicked);
    addSeparator();
    for (const auto& entry : std::as_const(entries_)) {
        QAction* item = addAction(QString());
        StatusMenu::setTitle(item, entry.title);
        item->setData(entry.identifier);
        connect(item, &QAction::triggered, this, [this, item] { Q_EMIT diskClicked(item->data().toString()); });
    }
    const auto items = actions();
    for (QAction* item : items)
        item->setMenuRole(QAction::NoRole);
}

namespace {

// Logical pixels.
constexpr int sideMargin = 15;
constexpr int smallestGap = 12;
constexpr int titleMargin = 1;
constexpr int rowMargin = 4;

/// A disk's name as a heading and, behind it, what is known of its latest backup.
class RowView final : public QWidget {
public:
    explicit RowView(const HistoryMenu::Row& row)
        : row_(row)
        , label_(new QLabel(this))
    {
        setAccessibleName(row.title());
        label_->setTextFormat(Qt::RichText);
        auto* layout = new QHBoxLayout(this);
        layout->setContentsMargins(sideMargin, rowMargin, sideMargin, rowMargin);
        layout->addWidget(label_);
        showRow();
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        const auto* menu = qobject_cast<const QMenu*>(parentWidget());
        const auto* chosen = menu ? qobject_cast<const QWidgetAction*>(menu->activeAction()) : nullptr;
        if (!chosen || chosen->defaultWidget() != this)
            return;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        QColor ground = palette().color(QPalette::WindowText);
        ground.setAlphaF(0.08F); // fainter than on an item that does something
        painter.setBrush(ground);
        painter.setPen(systemBlueColor(palette()));
        constexpr qreal cornerRadius = 4;
        painter.drawRoundedRect(QRectF(rect()).adjusted(1.5, 0.5, -1.5, -0.5), cornerRadius, cornerRadius);
    }
    void changeEvent(QEvent* event) override
    {
        QWidget::changeEvent(event);
        if (event->type() == QEvent::PaletteChange)
            showRow();
    }

private:
    /// In one text: of two labels the second would begin a little late.
    void showRow()
    {
        const QString shown = u"<p style=\"white-space:pre\"><b style=\"color:%1\">%2</b>: %3</p>"_s;
        label_->setText(
            shown.arg(systemBlueColor(palette()).name(), row_.heading.toHtmlEscaped(), row_.value.toHtmlEscaped()));
    }

    const HistoryMenu::Row row_;
    QLabel* label_;
};

} // namespace

HistoryMenu::HistoryMenu(QWidget* parent)
    : QMenu(parent)
{
    connect(this, &QMenu::aboutToShow, this, &HistoryMenu::fill);
    connect(this, &QMenu::hovered, this, &HistoryMenu::giveKeyboardTo);
}

void HistoryMenu::setRows(const QList<Row>& rows)
{
    wanted_ = rows;
    if (!isVisible())
        fill();
}

void HistoryMenu::fill()
{
    if (rows_ == wanted_)
        return;
    rows_ = wanted_;
    clear();
    addTitle();
    addSeparator();
    for (const auto& row : std::as_const(rows_))
        addRow(row);
    const auto items = actions();
    for (QAction* item : items)
        item->setMenuRole(QAction::NoRole);
}

/// Qt leaves it where it was: with nobody when the menu opens, with the help button on the rows below it.
void HistoryMenu::giveKeyboardTo(QAction* item)
{
    auto* row = qobject_cast<QWidgetAction*>(item);
    QWidget* view = row ? row->defaultWidget() : nullptr;
    (view && view->focusPolicy() != Qt::NoFocus ? view : this)->setFocus(Qt::TabFocusReason);
}

void HistoryMenu::addTitle()
{
    auto* item = new QWidgetAction(this);
    StatusMenu::setTitle(item, localizedString("latestBackupOfEachDestinationTitle"));
    item->setDefaultWidget(createAllBackupInfoTitleMenuItemView());
    connect(item, &QAction::triggered, this, &HistoryMenu::helpButtonPressed);
    addAction(item);
}

QWidget* HistoryMenu::createAllBackupInfoTitleMenuItemView()
{
    auto view = std::make_unique<QWidget>();
    auto* layout = new QHBoxLayout(view.get());
    layout->setContentsMargins(sideMargin, titleMargin, sideMargin, titleMargin);
    layout->setSpacing(smallestGap);
    auto* help = new HelpButton(view.get());
    help->setAccessibleName(localizedString("helpButtonTitle"));
    layout->addWidget(new QLabel(localizedString("latestBackupOfEachDestinationTitle"), view.get()));
    layout->addStretch();
    layout->addWidget(help, 0, Qt::AlignVCenter);
    view->setFocusProxy(help); // the arrow keys reach the row, and with it the button
    view->setFocusPolicy(Qt::StrongFocus);
    connect(help, &HelpButton::clicked, this, &HistoryMenu::helpButtonPressed);
    return view.release(); // owned by the item that it becomes the widget of
}

void HistoryMenu::addRow(const Row& row)
{
    auto* item = new QWidgetAction(this);
    StatusMenu::setTitle(item, row.title());
    item->setData(row.identifier);
    item->setDefaultWidget(std::make_unique<RowView>(row).release());
    addAction(item);
}

DisksInMenu::DisksInMenu(const Services& services, StatusMenu& menu)
    : services_(services)
    , menu_(menu)
    , backupDisksMenu_(&menu)
    , historyMenu_(&menu)
{
    connect(&backupDisksMenu_, &BackupDisksMenu::systemChoiceClicked, this, &DisksInMenu::systemChoiceClicked);
    connect(&backupDisksMenu_, &BackupDisksMenu::diskClicked, this, &DisksInMenu::diskClicked);
    connect(&historyMenu_, &HistoryMenu::helpButtonPressed, this, &DisksInMenu::helpButtonPressed);
}

void DisksInMenu::take(const QList<BackupDestination>& disks)
{
    backupDisks_ = disks;
    Q_EMIT listed();
}

bool DisksInMenu::request(Unreadable answer)
{
    if (std::exchange(namesAreAwaited_, true))
        return false; // one list tells all who ask before it is there, and holds up no second poll
    const auto reports = std::make_shared<int>(0);
    services_.tmutil.getBackupDestinationsWithCompletionHandler(
        [this, reports, answer](bool success, const QList<BackupDestination>& disks) {
            namesAreAwaited_ = false;
            if (answer == Unreadable::ForgetsThem)
                take(disks);
            if (++*reports > 1 || !success)
                return;
            services_.runLoop.enqueue([this, reports, answer, disks] {
                if (*reports > 1)
                    return;                               // a call that failed is reported twice
                const bool isReadable = !disks.isEmpty(); // what is no text reads as a list without disks
                if (answer == Unreadable::KeepsThem && isReadable)
                    take(disks);
                refreshMenu();
                if (isReadable)
                    Q_EMIT told(disks);
            });
        });
    return true;
}

void DisksInMenu::menuWillOpen()
{
    if (services_.run.isReported()) {
        withdrawSubmenus();
        return;
    }
    if (std::exchange(menuIsAwaited_, true))
        return; // a tool that is slow to answer must not pile questions up
    struct Answer {
        QList<BackupDestination> disks;
        bool reported = false;
    };
    const auto answer = std::make_shared<Answer>();
    services_.tmutil.getBackupDestinationsWithCompletionHandler(
        [this, answer](bool, const QList<BackupDestination>& disks) {
            answer->disks = disks;
            if (std::exchange(answer->reported, true))
                return;
            // One answer may bring two reports: act once, on the last one.
            services_.runLoop.enqueue([this, answer] {
                menuIsAwaited_ = false;
                take(answer->disks);
                refreshMenu();
            });
        });
}

void DisksInMenu::refreshMenu()
{
    if (services_.run.isActive()) { // a backup began meanwhile
        withdrawSubmenus();
        return;
    }
    offerBackupDisks();
    carryLegacyRecordOver();
    showHistory();
}

void DisksInMenu::withdrawSubmenus()
{
    StatusMenu::setSubmenu(menu_.phaseMenuItem, nullptr);
    menu_.phaseMenuItem->setEnabled(false);
    StatusMenu::setSubmenu(menu_.backupNowMenuItem, nullptr);
}

void DisksInMenu::setChoiceEnabled(bool enabled)
{
    const auto disks = backupDisksMenu_.actions();
    for (QAction* disk : disks)
        disk->setEnabled(enabled);
}

void DisksInMenu::offerBackupDisks()
{
    if (backupDisks_.size() < 2) {
        StatusMenu::setSubmenu(menu_.backupNowMenuItem, nullptr);
        return;
    }
    QList<BackupDisksMenu::Entry> entries;
    for (const auto& disk : std::as_const(backupDisks_)) {
        const QString name = words::diskName(disk.name);
        entries.append({disk.id, disk.isLast ? u"%1 (%2)"_s.arg(name, localizedString("mostRecentTitle")) : name});
    }
    backupDisksMenu_.setEntries(entries);
    StatusMenu::setSubmenu(menu_.backupNowMenuItem, &backupDisksMenu_);
}

void DisksInMenu::carryLegacyRecordOver()
{
    const auto date = services_.defaults.date(settingskeys::lastBackupDate);
    if (!date || !services_.dataManager.latestBackupInfo().isEmpty())
        return;
    const QString identifier = services_.defaults.string(settingskeys::lastBackupDiskIdentifier);
    services_.dataManager.recordLatestBackup(identifier, words::diskNameFor(identifier, backupDisks_),
                                             services_.defaults.integer(settingskeys::lastBackupBytesCopied), *date);
}

QList<HistoryMenu::Row> DisksInMenu::historyRows() const
{
    const Date now = services_.runLoop.now();
    QList<HistoryMenu::Row> rows;
    const auto& records = services_.dataManager.latestBackupInfo();
    for (const auto& record : records)
        rows.append({record.diskIdentifier(), words::diskName(record.diskName()),
                     shown::backupText(record.date(), record.totalBytes(), now)});
    for (const auto& disk : backupDisks_) {
        const bool recorded =
            std::ranges::any_of(records, [&](const BackupInfo& record) { return record.diskIdentifier() == disk.id; });
        if (!recorded)
            rows.append({disk.id, words::diskName(disk.name), shown::backupText(std::nullopt, 0, now)});
    }
    return rows;
}

void DisksInMenu::showHistory()
{
    const auto rows = historyRows();
    const bool isOverview = rows.size() >= 2; // a single disk needs none
    if (isOverview)
        historyMenu_.setRows(rows);
    StatusMenu::setSubmenu(menu_.phaseMenuItem, isOverview ? &historyMenu_ : nullptr);
    menu_.phaseMenuItem->setEnabled(isOverview);
}

} // namespace quillon
