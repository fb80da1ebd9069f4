#pragma once

#include "BackupSetup.h"

#include <QString>
#include <QStyledItemDelegate>
#include <QWidget>

#include <functional>
#include <vector>

class QHBoxLayout;
class QLabel;
class QListWidget;
class QPushButton;
class QVBoxLayout;

namespace quillon {

/// Draws an entry of a list: a symbol, a bold title, lines of details below it, long ones shortened in the middle, and
/// remarks, which are wrapped. Everything has at least 4.5:1 contrast to its ground (WCAG 2.1, 1.4.3).
class EntryDelegate final : public QStyledItemDelegate {
    Q_OBJECT

public:
    static constexpr int detailsRole = Qt::UserRole + 1; ///< QStringList
    static constexpr int symbolRole = Qt::UserRole + 2;  ///< QString, the symbol's name
    static constexpr int dimmedRole = Qt::UserRole + 3;  ///< bool: what it stands for is not there
    static constexpr int remarksRole = Qt::UserRole + 4; ///< QStringList

    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

/// The title of what opens a panel; it ends in an ellipsis, which string tables leave to the code.
QString panelTitle(const char* key);

/// A list with a sentence above it and buttons below that add, edit and remove entries. Emptiness has a sentence too.
class ListPage : public QWidget {
    Q_OBJECT

public:
    /// `name` is what the list is called by those who cannot see it.
    ListPage(const QString& name, const QString& explanation, QWidget* parent = nullptr);

    /// A button that adds something, to the right of those added before.
    QPushButton* addButton(const QString& title);

    /// The selected entry stays selected while it is there. `emptyText` is shown where there are no entries.
    void setEntries(const std::vector<ListEntry>& entries, const QString& emptyText);

    /// While something is changed, nothing else can be.
    void setChangeable(bool changeable);

Q_SIGNALS:
    void removeRequested(const QString& id, const QString& title);
    void editRequested(const QString& id);

protected:
    /// Puts it between the list and the buttons. While something is changed its buttons are disabled.
    void addBar(QWidget* bar);

    /// Lets the user choose a folder, or a file.
    void choose(const QString& title, bool files, const std::function<void(const QString& path)>& take);

    /// The keys that delete and move, pressed in the list, and the keyboard's coming to it.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool selectSomething();
    void editSelected();
    void removeSelected();
    void updateEntryButtons();

    QListWidget* list_;
    QLabel* emptyLabel_;
    QVBoxLayout* column_;
    QHBoxLayout* buttons_;
    QPushButton* editButton_; ///< there where an entry can be edited
    QPushButton* removeButton_;
    std::vector<QPushButton*> addButtons_;
    std::vector<QPushButton*> barButtons_;
    std::vector<ListEntry> entries_;
    bool changeable_ = true;
};

} // namespace quillon
