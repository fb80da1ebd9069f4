#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>

#include <vector>

class QHBoxLayout;
class QLabel;
class QListWidget;
class QPushButton;

namespace quillon {

/// One thing in a list that can be removed.
struct ListEntry {
    QString id;
    QString title;
    QStringList details;
    QString symbol; ///< name of a symbol of ours
    bool dimmed = false;

    bool operator==(const ListEntry&) const = default;
};

/// A list with a sentence above it and buttons below that add and remove entries. Emptiness has a sentence too.
class ListPage final : public QWidget {
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

protected:
    /// The key that deletes, pressed in the list.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void removeSelected();
    void updateRemoveButton();

    QListWidget* list_;
    QLabel* emptyLabel_;
    QHBoxLayout* buttons_;
    QPushButton* removeButton_;
    std::vector<QPushButton*> addButtons_;
    std::vector<ListEntry> entries_;
    bool changeable_ = true;
};

} // namespace quillon
