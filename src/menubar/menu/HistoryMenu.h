#pragma once

#include <QList>
#include <QMenu>
#include <QString>

namespace quillon {

/// Submenu of the status line: the latest backup of each disk, headed by a title with a help button. Main thread only.
///
/// A desktop that draws the menu itself shows the rows as plain text; there the title opens the help.
class HistoryMenu final : public QMenu {
    Q_OBJECT

public:
    struct Row {
        QString identifier; ///< of the destination
        QString heading;    ///< its name, shown as a heading
        QString value;

        QString title() const { return heading + QStringLiteral(": ") + value; }
        bool operator==(const Row&) const = default;
    };

    /// The parent is the menu that it opens from.
    explicit HistoryMenu(QWidget* parent);

    /// What it lists, once it has been closed: rows do not move under the pointer.
    void setRows(const QList<Row>& rows);

Q_SIGNALS:
    void helpButtonPressed();

private:
    void fill();
    void giveKeyboardTo(QAction* item);
    void addTitle();
    QWidget* createAllBackupInfoTitleMenuItemView();
    void addRow(const Row& row);

    QList<Row> wanted_;
    QList<Row> rows_;
};

} // namespace quillon
