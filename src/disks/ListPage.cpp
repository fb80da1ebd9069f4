#include "ListPage.h"

#include "EntryDelegate.h"
#include "LocalizedString.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int idRole = Qt::UserRole;

QLabel* makeSentence(const QString& text)
{
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

} // namespace

ListPage::ListPage(const QString& name, const QString& explanation, QWidget* parent)
    : QWidget(parent)
    , list_(new QListWidget)
    , emptyLabel_(makeSentence(localizedString("disksReading")))
    , buttons_(new QHBoxLayout)
    , removeButton_(new QPushButton(localizedString("disksRemoveTitle")))
{
    list_->setAccessibleName(name);
    list_->setItemDelegate(new EntryDelegate(list_));
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list_->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    emptyLabel_->setAlignment(Qt::AlignCenter);
    auto* overlay = new QVBoxLayout(list_->viewport());
    overlay->setContentsMargins(32, 16, 32, 16);
    overlay->addWidget(emptyLabel_);

    removeButton_->setObjectName(u"remove"_s);
    buttons_->addStretch();
    buttons_->addWidget(removeButton_);

    auto* column = new QVBoxLayout(this);
    column->addWidget(makeSentence(explanation));
    column->addWidget(list_, 1);
    column->addLayout(buttons_);

    connect(removeButton_, &QPushButton::clicked, this, &ListPage::removeSelected);
    connect(list_, &QListWidget::itemSelectionChanged, this, &ListPage::updateRemoveButton);
    list_->installEventFilter(this);
    updateRemoveButton();
}

QPushButton* ListPage::addButton(const QString& title)
{
    auto* button = new QPushButton(title);
    buttons_->insertWidget(static_cast<int>(addButtons_.size()), button);
    // The order of the keyboard is that of the eye.
    setTabOrder(addButtons_.empty() ? static_cast<QWidget*>(list_) : addButtons_.back(), button);
    setTabOrder(button, removeButton_);
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
        item->setData(EntryDelegate::symbolRole, entry.symbol);
        item->setData(EntryDelegate::detailsRole, entry.details);
        item->setData(EntryDelegate::dimmedRole, entry.dimmed);
        item->setData(Qt::AccessibleTextRole, (QStringList(entry.title) + entry.details).join(u", "_s));
        item->setToolTip(entry.details.value(0).toHtmlEscaped());
        if (entry.id == selected)
            list_->setCurrentItem(item);
    }
    updateRemoveButton();
}

void ListPage::setChangeable(bool changeable)
{
    changeable_ = changeable;
    QWidget* const focus = QApplication::focusWidget();
    if (!changeable && isAncestorOf(focus) && focus != list_)
        list_->setFocus(); // a button that is disabled would give it to just any other
    for (QPushButton* button : addButtons_)
        button->setEnabled(changeable);
    updateRemoveButton();
}

bool ListPage::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == list_ && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->matches(QKeySequence::Delete)) {
        removeSelected();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void ListPage::removeSelected()
{
    const auto selected = list_->selectedItems();
    if (changeable_ && !selected.isEmpty())
        Q_EMIT removeRequested(selected.first()->data(idRole).toString(), selected.first()->text());
}

void ListPage::updateRemoveButton()
{
    removeButton_->setEnabled(changeable_ && !list_->selectedItems().isEmpty());
}

} // namespace quillon
