#include "ScreenFittingArea.h"

#include "PopoverPlacement.h"
#include "WindowSystem.h"

#include <QEvent>
#include <QLayout>
#include <QScreen>
#include <QScrollBar>

namespace quillon {

namespace {

// Where a program cannot place windows it is not told either how much of the screen the desktop's panels take.
constexpr int roomForPanels = 80; // logical pixels, for two of them

} // namespace

ScreenFittingArea::ScreenFittingArea(QWidget* parent)
    : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    viewport()->setAutoFillBackground(false);
}

void ScreenFittingArea::setContent(QWidget* content)
{
    setWidget(content);
    content->setAutoFillBackground(false);
}

QSize ScreenFittingArea::sizeHint() const
{
    if (!widget())
        return {};
    const QSize content = widget()->layout()->totalSizeHint();
    QSize room = screen()->availableGeometry().size() - 2 * QSize(popoverShadowExtent, popoverShadowExtent);
    if (!windowsCanBePlaced())
        room.rheight() -= roomForPanels;
    QSize size = content.boundedTo(room);
    if (size.height() < content.height())
        size.rwidth() = qMin(room.width(), content.width() + verticalScrollBar()->sizeHint().width());
    return size;
}

QSize ScreenFittingArea::minimumSizeHint() const
{
    return sizeHint();
}

bool ScreenFittingArea::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == widget() && event->type() == QEvent::LayoutRequest)
        updateGeometry();
    return QScrollArea::eventFilter(watched, event);
}

void ScreenFittingArea::showEvent(QShowEvent* event)
{
    updateGeometry(); // the screen may be another one
    QScrollArea::showEvent(event);
}

} // namespace quillon
