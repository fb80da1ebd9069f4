#include "AlertPopover.h"

#include "Accessibility.h"
#include "Alert.h"

#include <QCoreApplication>
#include <QPushButton>

#include <utility>
#include <vector>

namespace quillon {

/// The alert on the screen and those that it and its predecessors pushed aside, the latest of them last.
struct AlertPopover::Stack {
    std::shared_ptr<AlertPopover> current;
    std::vector<std::shared_ptr<AlertPopover>> waiting;

    Stack()
    {
        qAddPostRoutine([] { // windows don't outlive the application object
            if (stack().current)
                delete stack().current->parentPopover_.release();
        });
    }
};

AlertPopover::Stack& AlertPopover::stack()
{
    static Stack theStack;
    return theStack;
}

std::shared_ptr<AlertPopover> AlertPopover::create(const AlertRequest& request)
{
    return std::shared_ptr<AlertPopover>(new AlertPopover(request)); // NOLINT: the constructor is private
}

AlertPopover::AlertPopover(const AlertRequest& request)
    : request_(request)
{
}

AlertPopover::~AlertPopover() = default;

void AlertPopover::runAsPopoverForView(const PopoverAnchor& view, CompletionBlock completionBlock)
{
    runAsPopoverForView(view, RectEdge::MaxY, std::move(completionBlock));
}

void AlertPopover::runAsPopoverForView(const PopoverAnchor& view, RectEdge preferredEdge,
                                       CompletionBlock completionBlock)
{
    const auto self = shared_from_this();
    completionBlock_ = std::move(completionBlock);
    targetView_ = view;
    if (view.view && view.view->isVisible())
        targetView_.screenRect = QRect(view.view->mapToGlobal(QPoint()), view.view->size());
    if (view.view) { // once it has gone, the panel that it lay in stays held as it is
        auto* panel = qobject_cast<Popover*>(view.view->window());
        panelStaysOpen_ = panel ? panel->keepOpen() : nullptr;
    }
    isAnswered_ = false;

    Stack& alerts = stack();
    std::erase(alerts.waiting, self);
    if (alerts.current && alerts.current != self)
        alerts.current->stepAside(alerts);
    parentPopover_ = makePopover();
    alerts.current = self;
    parentPopover_->showRelativeTo(targetView_, preferredEdge);
}

/// Makes room for another alert. It may be this one's own block that shows that.
void AlertPopover::stepAside(Stack& stack)
{
    if (!isAnswered_)
        stack.waiting.push_back(shared_from_this());
    parentPopover_.reset();
}

AlertPopover::PopoverPointer AlertPopover::makePopover()
{
    auto alert = std::make_unique<Alert>(request_);
    for (const QPushButton* button : alert->buttons())
        QObject::connect(button, &QPushButton::clicked, alert.get(), [alertPopover = weak_from_this(), button] {
            if (const auto self = alertPopover.lock())
                self->stopSynchronousPopoverAlert(button);
        });
    PopoverPointer popover(new Popover);
    popover->setContentView(alert.release());
    setAccessibleRole(*popover, QAccessible::AlertMessage);
    return popover;
}

void AlertPopover::stopSynchronousPopoverAlert(const QAbstractButton* sender)
{
    if (!parentPopover_ || isAnswered_)
        return;
    const auto self = shared_from_this();
    const Popover* answered = parentPopover_.get();
    const int response = qobject_cast<const Alert*>(answered->contentView())->responseOf(sender);
    isAnswered_ = true;
    panelStaysOpen_.reset();
    if (const auto block = std::exchange(completionBlock_, {}))
        block(response);
    if (parentPopover_.get() != answered) // the block has shown another alert, which goes on from here
        return;
    parentPopover_.reset();
    Stack& alerts = stack();
    alerts.current.reset();
    if (alerts.waiting.empty())
        return;
    const auto next = std::move(alerts.waiting.back());
    alerts.waiting.pop_back();
    next->runAsPopoverForView(next->targetView_, next->completionBlock_);
}

void AlertPopover::CloseAndDelete::operator()(Popover* popover) const
{
    // A click on one of its own buttons closes it, and it fades: nothing of it may go before both are over.
    QObject::connect(popover, &Popover::didClose, popover, &QObject::deleteLater);
    popover->close();
    if (!popover->isVisible())
        popover->deleteLater();
}

} // namespace quillon
