#include "ListPage.h"

#include "Accessibility.h"
#include "LocalizedString.h"
#include "Symbol_linux.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QTextLayout>
#include <QVBoxLayout>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int margin = 8;
constexpr int mostLinesOfRemark = 3;
constexpr qreal faded = 0.65; // of the text's colour, for what is less important
constexpr double leastContrast = 4.5;

QFont titleFont(const QStyleOptionViewItem& option)
{
    QFont font = option.font;
    font.setBold(true);
    return font;
}

int symbolSide(const QStyleOptionViewItem& option)
{
    return 2 * QFontMetrics(option.font).height();
}

QColor mixed(const QColor& text, const QColor& ground, qreal share)
{
    return QColor::fromRgbF(static_cast<float>(text.redF() * share + ground.redF() * (1 - share)),
                            static_cast<float>(text.greenF() * share + ground.greenF() * (1 - share)),
                            static_cast<float>(text.blueF() * share + ground.blueF() * (1 - share)));
}

/// A ground for that text, as near to the style's as can be. Some room is left for quieter text.
QColor groundFor(const QColor& text, QColor ground)
{
    constexpr double room = 1.1;
    const QColor away = contrast(text, Qt::black) > contrast(ground, Qt::black) ? Qt::black : Qt::white;
    for (int step = 0; step < 20 && contrast(text, ground) < leastContrast * room; ++step)
        ground = mixed(away, ground, 0.05);
    return ground;
}

QColor quietColor(const QColor& text, const QColor& ground)
{
    qreal share = faded;
    while (share < 1 && contrast(mixed(text, ground, share), ground) < leastContrast)
        share += 0.05;
    return mixed(text, ground, std::min(share, 1.0));
}

QStringList wrapped(const QString& text, const QFont& font, int width)
{
    QTextLayout layout(text, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    QStringList lines;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        if (lines.size() + 1 == mostLinesOfRemark) {
            lines.append(QFontMetrics(font).elidedText(text.mid(line.textStart()), Qt::ElideRight, width));
            break;
        }
        lines.append(text.mid(line.textStart(), line.textLength()).trimmed());
    }
    layout.endLayout();
    return lines;
}

QStringList remarkLines(const QModelIndex& index, const QFont& font, int width)
{
    QStringList lines;
    for (const QString& remark : index.data(EntryDelegate::remarksRole).toStringList())
        lines += wrapped(remark, font, width);
    return lines;
}

/// What the symbol and the margins leave of the width of an entry.
int textWidth(const QStyleOptionViewItem& option, int width)
{
    return std::max(width - 3 * margin - symbolSide(option), 1);
}

} // namespace

void EntryDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    const bool dimmed = index.data(dimmedRole).toBool();
    const auto group = option.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
    const QColor text = option.palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text);
    const QColor base = selected ? groundFor(text, option.palette.color(group, QPalette::Highlight))
                                 : option.palette.color(group, QPalette::Base);
    const QColor quiet = quietColor(text, base);
    const Qt::LayoutDirection direction = option.direction;

    const QStyle& style = option.widget ? *option.widget->style() : *QApplication::style();
    QStyleOptionViewItem ground = option;
    initStyleOption(&ground, index);
    ground.text.clear();
    if (selected)
        ground.palette.setColor(QPalette::Highlight, base);
    style.drawControl(QStyle::CE_ItemViewItem, &ground, painter, option.widget);

    const QRect inner = option.rect.adjusted(margin, margin / 2, -margin, -margin / 2);
    const int side = symbolSide(option);
    const QRect symbol = QStyle::alignedRect(direction, Qt::AlignLeft | Qt::AlignVCenter, {side, side}, inner);
    painter->drawPixmap(symbol, symbolPixmap(index.data(symbolRole).toString(), side,
                                             painter->device()->devicePixelRatioF(), dimmed ? quiet : text));

    const QRect place = QStyle::visualRect(direction, inner, inner.adjusted(side + margin, 0, 0, 0));
    int top = place.top();
    const auto drawLine = [&](const QString& line, const QFont& font, const QColor& color) {
        const QFontMetrics metrics(font);
        painter->setFont(font);
        painter->setPen(color);
        const QRect row(place.left(), top, place.width(), metrics.height());
        painter->drawText(row, static_cast<int>(QStyle::visualAlignment(direction, Qt::AlignLeft | Qt::AlignVCenter)),
                          metrics.elidedText(line, Qt::ElideMiddle, place.width()));
        top += metrics.height();
    };
    painter->save();
    drawLine(index.data().toString(), titleFont(option), dimmed ? quiet : text);
    for (const QString& line : index.data(detailsRole).toStringList())
        drawLine(line, option.font, quiet);
    for (const QString& line : remarkLines(index, option.font, textWidth(option, option.rect.width())))
        drawLine(line, option.font, text);
    painter->restore();
}

QSize EntryDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const auto* view = qobject_cast<const QAbstractItemView*>(option.widget);
    const int width = view ? view->viewport()->width() : option.rect.width();
    const auto rows = index.data(detailsRole).toStringList().size() +
                      remarkLines(index, option.font, textWidth(option, width)).size();
    const int lines =
        QFontMetrics(titleFont(option)).height() + static_cast<int>(rows) * QFontMetrics(option.font).height();
    // Any width will do: lines are shortened or wrapped.
    return {0, std::max(lines, symbolSide(option)) + margin};
}

namespace {

constexpr int idRole = Qt::UserRole;
constexpr int editableRole = Qt::UserRole + 5; // behind those of EntryDelegate

QLabel* makeSentence(const QString& text)
{
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

/// Rich text, so that long paths are wrapped.
QString toolTipOf(const ListEntry& entry)
{
    QString text;
    for (const QString& line : QStringList(entry.title) + entry.details + entry.remarks)
        text += "<p>"_L1 + line.toHtmlEscaped() + "</p>"_L1;
    return text;
}

/// Whether a key is one that moves through a list.
bool moves(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return true;
    default:
        return false;
    }
}

/// Whether the keyboard has come by a key, and not by a click, which selects what it hits.
bool comesByKey(const QFocusEvent& event)
{
    return event.reason() == Qt::TabFocusReason || event.reason() == Qt::BacktabFocusReason ||
           event.reason() == Qt::ShortcutFocusReason;
}

} // namespace

QString panelTitle(const char* key)
{
    return localizedString(key) + u'…';
}

ListPage::ListPage(const QString& name, const QString& explanation, QWidget* parent)
    : QWidget(parent)
    , list_(new QListWidget)
    , emptyLabel_(makeSentence(localizedString("disksReading")))
    , column_(new QVBoxLayout(this))
    , buttons_(new QHBoxLayout)
    , editButton_(new QPushButton(panelTitle("disksEditTitle")))
    , removeButton_(new QPushButton(localizedString("disksRemoveTitle")))
{
    list_->setAccessibleName(name);
    list_->setItemDelegate(new EntryDelegate(list_));
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list_->setWordWrap(true); // remarks are wrapped: any change of the width is one of the rows' heights
    list_->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    emptyLabel_->setAlignment(Qt::AlignCenter);
    auto* overlay = new QVBoxLayout(list_->viewport());
    overlay->setContentsMargins(32, 16, 32, 16);
    overlay->addWidget(emptyLabel_);

    editButton_->setObjectName(u"edit"_s);
    removeButton_->setObjectName(u"remove"_s);
    buttons_->addStretch();
    buttons_->addWidget(editButton_);
    buttons_->addWidget(removeButton_);

    column_->addWidget(makeSentence(explanation));
    column_->addWidget(list_, 1);
    column_->addLayout(buttons_);

    connect(editButton_, &QPushButton::clicked, this, &ListPage::editSelected);
    connect(removeButton_, &QPushButton::clicked, this, &ListPage::removeSelected);
    connect(list_, &QListWidget::itemDoubleClicked, this, &ListPage::editSelected);
    connect(list_, &QListWidget::itemSelectionChanged, this, &ListPage::updateEntryButtons);
    list_->installEventFilter(this);
    updateEntryButtons();
}

QPushButton* ListPage::addButton(const QString& title)
{
    auto* button = new QPushButton(title);
    buttons_->insertWidget(static_cast<int>(addButtons_.size()), button);
    // The order of the keyboard is that of the eye.
    setTabOrder(addButtons_.empty() ? static_cast<QWidget*>(list_) : addButtons_.back(), button);
    setTabOrder(button, editButton_);
    setTabOrder(editButton_, removeButton_);
    addButtons_.push_back(button);
    return button;
}

void ListPage::setEntries(const std::vector<ListEntry>& entries, const QString& emptyText)
{
    emptyLabel_->setText(emptyText);
    emptyLabel_->setVisible(entries.empty());
    if (entries == entries_)
        return; // a list that is made anew scrolls back
    entries_ = entries;
    const QListWidgetItem* current = list_->currentItem();
    const QString selected = current ? current->data(idRole).toString() : QString();
    list_->clear();
    for (const ListEntry& entry : entries) {
        auto* item = new QListWidgetItem(entry.title, list_);
        item->setData(idRole, entry.id);
        item->setData(editableRole, entry.editable);
        item->setData(EntryDelegate::symbolRole, entry.symbol);
        item->setData(EntryDelegate::detailsRole, entry.details);
        item->setData(EntryDelegate::remarksRole, entry.remarks);
        item->setData(EntryDelegate::dimmedRole, entry.dimmed);
        item->setData(Qt::AccessibleTextRole, (QStringList(entry.title) + entry.details + entry.remarks).join(u", "_s));
        item->setToolTip(toolTipOf(entry));
        if (entry.id == selected)
            list_->setCurrentItem(item);
    }
    updateEntryButtons();
}

void ListPage::setChangeable(bool changeable)
{
    changeable_ = changeable;
    QWidget* const focus = QApplication::focusWidget();
    if (!changeable && isAncestorOf(focus) && focus != list_)
        list_->setFocus(); // a button that is disabled would give it to just any other
    for (const auto& buttons : {addButtons_, barButtons_}) {
        for (QPushButton* button : buttons)
            button->setEnabled(changeable);
    }
    updateEntryButtons();
}

void ListPage::addBar(QWidget* bar)
{
    column_->insertWidget(column_->indexOf(list_) + 1, bar);
    const auto buttons = bar->findChildren<QPushButton*>();
    QWidget* before = list_;
    for (QPushButton* button : buttons) {
        setTabOrder(before, button);
        before = button;
        barButtons_.push_back(button);
    }
}

void ListPage::choose(const QString& title, bool files, const std::function<void(const QString& path)>& take)
{
    auto* dialog = new QFileDialog(this, title);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(files ? QFileDialog::ExistingFile : QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly, !files);
    connect(dialog, &QFileDialog::fileSelected, this, take);
    dialog->open();
}

bool ListPage::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != list_)
        return QWidget::eventFilter(watched, event);
    if (event->type() == QEvent::FocusIn && comesByKey(*static_cast<QFocusEvent*>(event)))
        selectSomething();
    if (event->type() == QEvent::KeyPress) {
        const auto& key = *static_cast<QKeyEvent*>(event);
        if (key.matches(QKeySequence::Delete)) {
            removeSelected();
            return true;
        }
        if (moves(key) && selectSomething())
            return true;
    }
    return QWidget::eventFilter(watched, event);
}

/// A list where nothing is selected moves its frame only, and in one with a single row not even that. False where
/// something is selected already, or nothing can be.
bool ListPage::selectSomething()
{
    if (!list_->selectedItems().isEmpty() || list_->count() == 0)
        return false;
    list_->setCurrentRow(qMax(list_->currentRow(), 0), QItemSelectionModel::ClearAndSelect);
    return true;
}

void ListPage::editSelected()
{
    if (editButton_->isEnabled())
        Q_EMIT editRequested(list_->selectedItems().first()->data(idRole).toString());
}

void ListPage::removeSelected()
{
    const auto selected = list_->selectedItems();
    if (changeable_ && !selected.isEmpty())
        Q_EMIT removeRequested(selected.first()->data(idRole).toString(), selected.first()->text());
}

void ListPage::updateEntryButtons()
{
    const auto selected = list_->selectedItems();
    const bool canChange = changeable_ && !selected.isEmpty();
    const auto isEditable = [](const ListEntry& entry) { return entry.editable; };
    editButton_->setVisible(std::ranges::any_of(entries_, isEditable));
    editButton_->setEnabled(canChange && selected.first()->data(editableRole).toBool());
    removeButton_->setEnabled(canChange);
}

} // namespace quillon
