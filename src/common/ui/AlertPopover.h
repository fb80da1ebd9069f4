#pragma once

#include "Popover.h"
#include "Services.h"

#include <functional>
#include <memory>
#include <utility>

class QAbstractButton;

namespace quillon {

/// An alert inside a popover that points at the control it is about. One of them is visible at a time in the whole
/// process: a newer one pushes it aside, and it comes back when the newer one has been answered, the one pushed aside
/// last first. It closes by its buttons only, and a popover that it points into stays open until then. It lives as long
/// as it is shown or waits.
class AlertPopover final : public std::enable_shared_from_this<AlertPopover> {
public:
    using CompletionBlock = std::function<void(int response)>;

    static std::shared_ptr<AlertPopover> create(const AlertRequest& request);
    AlertPopover(const AlertPopover&) = delete;
    AlertPopover& operator=(const AlertPopover&) = delete;
    ~AlertPopover();

    /// Above the view, see below.
    void runAsPopoverForView(const PopoverAnchor& view, CompletionBlock completionBlock = {});
    /// Shows the alert and returns at once. The block gets the response code once, when a button is chosen; it may
    /// outlive the view, since the alert does: without its view it points at where that was last.
    void runAsPopoverForView(const PopoverAnchor& view, RectEdge preferredEdge, CompletionBlock completionBlock = {});
    /// Answers the alert with one of its buttons; every button of the alert does this when it is clicked.
    void stopSynchronousPopoverAlert(const QAbstractButton* sender);

    const CompletionBlock& completionBlock() const { return completionBlock_; }
    void setCompletionBlock(CompletionBlock completionBlock) { completionBlock_ = std::move(completionBlock); }
    /// Nothing while the alert is not on the screen.
    Popover* parentPopover() const { return parentPopover_.get(); }
    const PopoverAnchor& targetView() const { return targetView_; }

private:
    struct CloseAndDelete {
        void operator()(Popover* popover) const;
    };
    using PopoverPointer = std::unique_ptr<Popover, CloseAndDelete>;
    struct Stack;

    explicit AlertPopover(const AlertRequest& request);
    static Stack& stack();
    PopoverPointer makePopover();
    void stepAside(Stack& stack);

    const AlertRequest request_;
    CompletionBlock completionBlock_;
    PopoverAnchor targetView_;
    PopoverPointer parentPopover_;
    std::shared_ptr<void> panelStaysOpen_; ///< the popover that the view lies in, until the answer
    bool isAnswered_ = false;
};

} // namespace quillon
