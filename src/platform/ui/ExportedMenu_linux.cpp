#include "ExportedMenu_linux.h"

#include "ModalWindow.h"

#include <QActionEvent>

namespace quillon {

using namespace Qt::StringLiterals;

ExportedMenu::ExportedMenu(QMenu& source, QWidget* parent)
    : QMenu(parent)
    , source_(&source)
{
    connect(this, &QMenu::aboutToShow, &source, &QMenu::aboutToShow);
    connect(this, &QMenu::aboutToHide, &source, &QMenu::aboutToHide);
    source.installEventFilter(this);
    rebuild();
}

QString ExportedMenu::label(const QString& actionText)
{
    QString label;
    bool marked = false;
    for (const QChar c : actionText) {
        // One ampersand marks the key of the character behind it, two stand for one.
        marked = c == u'&' && !marked;
        if (!marked)
            label += c;
        if (c == u'_')
            label += c;
    }
    // Qt takes the first ampersand for a mark: better one of ours than one of the text.
    return label.contains(u'&') ? u'&' + label : label;
}

bool ExportedMenu::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == source_) {
        if (event->type() == QEvent::ActionAdded || event->type() == QEvent::ActionRemoved)
            rebuild();
        else if (event->type() == QEvent::ActionChanged)
            refresh(static_cast<QActionEvent*>(event)->action());
    }
    return QMenu::eventFilter(watched, event);
}

void ExportedMenu::rebuild()
{
    copies_.clear();
    // One of them may be the reason why this is called.
    const auto previous = this->actions();
    for (QAction* copy : previous) {
        removeAction(copy);
        if (copy->menu())
            copy->menu()->deleteLater();
        copy->deleteLater();
    }
    const auto actions = source_->actions();
    for (QAction* action : actions)
        addCopy(action);
}

void ExportedMenu::addCopy(QAction* action)
{
    QAction* copy = addAction(QString());
    copy->setSeparator(action->isSeparator());
    if (action->menu())
        copy->setMenu(new ExportedMenu(*action->menu(), this));
    connect(copy, &QAction::triggered, action, [this, action] {
        // The host knows nothing of windows that block everything else; and it may have toggled the copy's mark.
        if (bringModalWindowToFront())
            refresh(action);
        else
            action->trigger();
    });
    copies_.insert(action, copy);
    refresh(action);
}

void ExportedMenu::refresh(QAction* action)
{
    QAction* copy = copies_.value(action);
    if (!copy)
        return;
    const auto* submenu = qobject_cast<ExportedMenu*>(copy->menu());
    if ((submenu ? submenu->source_.data() : nullptr) != action->menu()) {
        rebuild();
        return;
    }
    copy->setText(label(action->text()));
    copy->setIcon(action->icon());
    copy->setVisible(action->isVisible());
    copy->setEnabled(action->isEnabled());
    copy->setCheckable(action->isCheckable());
    copy->setChecked(action->isChecked());
}

} // namespace quillon
