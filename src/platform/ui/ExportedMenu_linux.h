#pragma once

#include <QHash>
#include <QMenu>
#include <QPointer>

namespace quillon {

/// A copy of a menu for a host that draws menus itself, labelled for the protocol com.canonical.dbusmenu.
///
/// An underscore marks the access key there, and two stand for one; Qt turns the first ampersand of a label into the
/// mark and hands everything else over as it is, so that "A_B && C && D" would arrive as "AB & C && D". The copy
/// follows its source, submenus included, and triggers the source's actions, except while a modal window has to be
/// answered first: then it brings that to the front. Main thread only.
class ExportedMenu final : public QMenu {
    Q_OBJECT

public:
    /// `source` may go first.
    explicit ExportedMenu(QMenu& source, QWidget* parent = nullptr);

    /// The text that Qt turns into the protocol's label for an action's text.
    static QString label(const QString& actionText);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void rebuild();
    void addCopy(QAction* action);
    void refresh(QAction* action);

    QPointer<QWidget> source_;         ///< a menu, until its end has begun
    QHash<QAction*, QAction*> copies_; ///< by the source's action, never followed from here
};

} // namespace quillon
