#include "LogWindow.h"

#include "Accessibility.h"
#include "DataHelper.h"
#include "DayStrip.h"
#include "LocalizedString.h"
#include "LogWords.h"
#include "Shown.h"

#include <QClipboard>
#include <QComboBox>
#include <QFileDialog>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSaveFile>
#include <QScreen>
#include <QShortcut>
#include <QStandardPaths>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

void LogModel::show(std::vector<LedgerEntry> entries, Date now)
{
    beginResetModel();
    entries_ = std::move(entries);
    now_ = now;
    endResetModel();
}

int LogModel::rowOf(std::int64_t id) const
{
    const auto found = std::ranges::find(entries_, id, &LedgerEntry::id);
    return found == entries_.end() ? -1 : static_cast<int>(found - entries_.begin());
}

int LogModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(entries_.size());
}

int LogModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : Duration + 1;
}

QVariant LogModel::data(const QModelIndex& index, int role) const
{
    const LedgerEntry& entry = entries_.at(static_cast<std::size_t>(index.row()));
    switch (role) {
    case Qt::DisplayRole:
        return text(entry, index.column());
    case Qt::AccessibleTextRole: { // an empty cell would be passed over
        const QString shown = text(entry, index.column());
        return shown.isEmpty() ? u"–"_s : shown;
    }
    case Qt::DecorationRole:
        return index.column() == When ? QVariant(markIcon(logwords::markOf(entry.outcome))) : QVariant();
    case Qt::TextAlignmentRole:
        return index.column() >= Size ? QVariant(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    default:
        return {};
    }
}

QString LogModel::text(const LedgerEntry& entry, int column) const
{
    switch (column) {
    case When:
        return DataHelper::dayAndTime(entry.date, DateFormatterStyle::Medium, now_);
    case Outcome:
        return logwords::outcome(entry.outcome);
    case Cause:
        return logwords::cause(entry.cause);
    case Disk:
        return logwords::disk(entry);
    case Size:
        return logwords::size(entry);
    default:
        return logwords::duration(entry);
    }
}

QVariant LogModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::TextAlignmentRole && section >= Size)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    static constexpr std::array keys{"logDateTitle", "logOutcomeTitle", "logCauseTitle",
                                     "logDiskTitle", "logSizeTitle",    "logDurationTitle"};
    return localizedString(keys.at(static_cast<std::size_t>(section)));
}

namespace {

constexpr int shownDays = 30;

QLabel* makeSentence()
{
    auto* label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

/// A box with a caption ahead of it, which is also its name.
QComboBox* addFilter(QHBoxLayout& row, const char* name, const char* titleKey)
{
    auto* box = new QComboBox;
    box->setObjectName(QLatin1StringView(name));
    auto* caption = new QLabel(u"%1:"_s.arg(localizedString(titleKey)));
    caption->setBuddy(box);
    row.addWidget(caption);
    row.addWidget(box);
    return box;
}

} // namespace

LogWindow::LogWindow(const Services& services)
    : services_(services)
    , strip_(new DayStrip)
    , stripLabel_(makeSentence())
    , list_(new QTreeView)
    , empty_(makeSentence())
    , details_(makeSentence())
    , copyButton_(new QPushButton(localizedString("logCopyTitle")))
    , saveButton_(new QPushButton(u"%1..."_s.arg(localizedString("logSaveTitle"))))
{
    setAccessibleRole(*this, QAccessible::Window);
    setWindowTitle(localizedString("logWindowTitle"));
    auto* column = new QVBoxLayout(this);
    column->addWidget(stripLabel_);
    column->addWidget(strip_);
    column->addWidget(makeFilterRow());
    column->addWidget(list_, 1);
    column->addWidget(empty_, 1);
    column->addWidget(details_);
    column->addWidget(makeButtonRow());
    prepareList();
    addKeys();
    fitToScreen();
    connect(&services_.ledger, &Ledger::changed, this, [this] {
        if (isVisible())
            reload();
    });
}

QWidget* LogWindow::makeFilterRow()
{
    auto* bar = new QWidget;
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins({});
    outcomes_ = addFilter(*row, "outcomes", "logOutcomeTitle");
    outcomes_->addItem(localizedString("logAllTitle"));
    for (int kind = 0; kind <= static_cast<int>(LedgerEntry::Outcome::Refused); ++kind)
        outcomes_->addItem(markIcon(logwords::markOf(LedgerEntry::Outcome(kind))),
                           logwords::outcome(LedgerEntry::Outcome(kind)));
    disks_ = addFilter(*row, "disks", "logDiskTitle");
    row->addStretch(1);
    connect(outcomes_, &QComboBox::activated, this, &LogWindow::showEntries);
    connect(disks_, &QComboBox::activated, this, &LogWindow::showEntries);
    return bar;
}

QWidget* LogWindow::makeButtonRow()
{
    auto* bar = new QWidget;
    copyButton_->setObjectName(u"copyLog"_s);
    saveButton_->setObjectName(u"saveLog"_s);
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins({});
    row->addStretch(1);
    row->addWidget(copyButton_);
    row->addWidget(saveButton_);
    assignMnemonics({copyButton_, saveButton_});
    connect(copyButton_, &QPushButton::clicked, this, [this] { copy(model_.entries()); });
    connect(saveButton_, &QPushButton::clicked, this, &LogWindow::chooseFile);
    return bar;
}

void LogWindow::prepareList()
{
    list_->setObjectName(u"log"_s);
    list_->setAccessibleName(windowTitle());
    list_->setModel(&model_);
    list_->setRootIsDecorated(false);
    list_->setUniformRowHeights(true);
    list_->setAlternatingRowColors(true);
    list_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    list_->header()->setStretchLastSection(false);
    list_->header()->setSectionsMovable(false);
    list_->header()->setSectionResizeMode(LogModel::Disk, QHeaderView::Stretch);
    empty_->setObjectName(u"emptyLog"_s);
    empty_->setAlignment(Qt::AlignCenter);
    details_->setObjectName(u"logDetails"_s);
    details_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    details_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    constexpr int lines = 3; // so that the list does not move with what is chosen
    details_->setMinimumHeight(lines * fontMetrics().lineSpacing());
    QSizePolicy policy = details_->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    details_->setSizePolicy(policy);
    connect(list_->selectionModel(), &QItemSelectionModel::selectionChanged, this, &LogWindow::showChosen);
}

void LogWindow::addKeys()
{
    connect(new QShortcut(QKeySequence::Close, this), &QShortcut::activated, this, &QWidget::close);
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
    auto* copying = new QShortcut(QKeySequence::Copy, list_);
    copying->setContext(Qt::WidgetShortcut); // the details have one of their own
    connect(copying, &QShortcut::activated, this, [this] { copy(chosenEntries()); });
}

void LogWindow::fitToScreen()
{
    constexpr int columns = 112;
    constexpr int lines = 30;
    const QFontMetrics metrics = fontMetrics();
    const QSize frame(metrics.height(), 3 * metrics.height()); // of the window manager's, which is not there yet
    resize(QSize(metrics.averageCharWidth() * columns, metrics.height() * lines)
               .boundedTo(screen()->availableSize() - frame));
}

void LogWindow::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (event->spontaneous())
        return;
    reload();
    list_->setFocus();
}

void LogWindow::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    if (event->spontaneous())
        return;
    entries_ = {};
    model_.show({}, services_.runLoop.now());
}

void LogWindow::reload()
{
    auto entries = services_.ledger.read();
    empty_->setText(localizedString(entries ? "logEmptyMessage" : "logUnreadableMessage"));
    entries_ = std::move(entries).value_or(std::vector<LedgerEntry>());
    showDays(entries_);
    showDisks(entries_);
    showEntries();
    fitColumns();
}

/// To what is in sight; the column of the disks takes what is left.
void LogWindow::fitColumns()
{
    const int space = 2 * fontMetrics().averageCharWidth();
    for (const int column : {LogModel::When, LogModel::Outcome, LogModel::Cause, LogModel::Size, LogModel::Duration}) {
        list_->resizeColumnToContents(column);
        list_->setColumnWidth(column, list_->columnWidth(column) + space);
    }
}

void LogWindow::showDays(const std::vector<LedgerEntry>& entries)
{
    auto days = logwords::days(entries, services_.runLoop.now(), shownDays);
    const auto daysOf = [&](logwords::Mark mark) {
        return QString::number(std::ranges::count(days, mark, &logwords::Day::mark));
    };
    stripLabel_->setText(
        localizedString("logDaysMessage")
            .arg(QString::number(shownDays), daysOf(logwords::Mark::Good), daysOf(logwords::Mark::Trouble)));
    strip_->setAccessibleName(stripLabel_->text());
    strip_->setDays(std::move(days));
}

/// The latest name of each disk.
void LogWindow::showDisks(const std::vector<LedgerEntry>& entries)
{
    const QVariant chosen = disks_->currentData();
    disks_->clear();
    disks_->addItem(localizedString("logAllTitle"));
    for (const LedgerEntry& entry : entries) {
        if (!entry.diskIdentifier.isEmpty() && disks_->findData(entry.diskIdentifier) < 0)
            disks_->addItem(logwords::disk(entry), entry.diskIdentifier);
    }
    disks_->setCurrentIndex(std::max(disks_->findData(chosen), 0));
}

LedgerFilter LogWindow::filter() const
{
    LedgerFilter filter;
    if (const int kind = outcomes_->currentIndex() - 1; kind >= 0)
        filter.outcome = LedgerEntry::Outcome(kind);
    if (disks_->currentIndex() > 0)
        filter.disk = disks_->currentData().toString();
    return filter;
}

void LogWindow::showEntries()
{
    const int row = list_->currentIndex().row();
    const std::int64_t chosen = row < 0 ? 0 : model_.entries().at(static_cast<std::size_t>(row)).id;
    std::vector<LedgerEntry> taken;
    std::ranges::copy_if(entries_, std::back_inserter(taken),
                         [filter = filter()](const LedgerEntry& entry) { return filter.takes(entry); });
    if (taken.empty() && !entries_.empty())
        empty_->setText(localizedString("logNothingFoundMessage"));
    const bool isEmpty = taken.empty();
    model_.show(std::move(taken), services_.runLoop.now());
    list_->setVisible(!isEmpty);
    empty_->setVisible(isEmpty);
    copyButton_->setEnabled(!isEmpty);
    saveButton_->setEnabled(!isEmpty);
    if (!isEmpty)
        list_->setCurrentIndex(model_.index(std::max(model_.rowOf(chosen), 0), 0));
    showChosen();
}

void LogWindow::showChosen()
{
    const auto chosen = list_->selectionModel()->selectedRows();
    QStringList lines;
    if (chosen.size() == 1) {
        const LedgerEntry& entry = model_.entries().at(static_cast<std::size_t>(chosen.first().row()));
        lines.append(logwords::reason(entry));
        if (const QString next = logwords::next(entry, services_.runLoop.now()); !next.isEmpty())
            lines.append(localizedString("logNextMessage").arg(next));
        lines.removeAll(QString());
    }
    details_->setText(lines.join(u'\n'));
    details_->setVisible(!lines.isEmpty()); // nothing is no place for the keyboard
}

std::vector<LedgerEntry> LogWindow::chosenEntries() const
{
    auto rows = list_->selectionModel()->selectedRows();
    std::ranges::sort(rows, {}, &QModelIndex::row);
    std::vector<LedgerEntry> chosen;
    for (const QModelIndex& index : rows)
        chosen.push_back(model_.entries().at(static_cast<std::size_t>(index.row())));
    return chosen;
}

void LogWindow::copy(const std::vector<LedgerEntry>& entries)
{
    QGuiApplication::clipboard()->setText(logwords::text(entries));
}

void LogWindow::chooseFile()
{
    auto* dialog =
        new QFileDialog(this, windowTitle(), QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setNameFilter(u"CSV (*.csv)"_s);
    dialog->setDefaultSuffix(u"csv"_s);
    dialog->selectFile(windowTitle());
    connect(dialog, &QFileDialog::fileSelected, this, &LogWindow::save);
    dialog->open();
}

void LogWindow::save(const QString& file)
{
    const QByteArray bytes = logwords::csv(model_.entries());
    QSaveFile target(file);
    if (target.open(QIODevice::WriteOnly) && target.write(bytes) == bytes.size() && target.commit())
        return;
    AlertRequest failure;
    failure.style = AlertStyle::Warning;
    failure.messageText = localizedString("logSaveFailedTitle");
    failure.informativeText = target.errorString();
    failure.buttons = {localizedString("AlertButtonClose")};
    services_.alerts.present(failure, {});
}

} // namespace quillon
