#include "MenuBarWindow_linux.h"

#include "AccessibleRole.h"
#include "MenuBarButton_linux.h"
#include "ModalWindow.h"
#include "ScreenStrip_linux.h"
#include "WindowSystem.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QPainter>
#include <QScreen>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

// What the frame of a small window needs for its title and its buttons, in logical pixels.
constexpr int roomForFrame = 120;

} // namespace

MenuBarWindow::MenuBarWindow()
    : isBar_(windowsCanBePlaced())
    , button_(new MenuBarButton(this))
{
    setObjectName(u"MenuBarWindow"_s);
    setWindowTitle(QGuiApplication::applicationDisplayName());
    setAccessibleRole(*this, QAccessible::Window);
    setAttribute(Qt::WA_ShowWithoutActivating);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    if (isBar_) {
        setWindowFlags(Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
        makeDock(winId());
        layout->addStretch();
        connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, &MenuBarWindow::followPrimaryScreen);
        followPrimaryScreen();
    } else {
        setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowMinimizeButtonHint |
                       Qt::WindowCloseButtonHint);
        button_->setMinimumWidth(roomForFrame);
        layout->setSizeConstraint(QLayout::SetFixedSize);
    }
    layout->addWidget(button_);
    show();
    if (!isBar_) // every new window is in front, and one that waits for an answer would lie beneath
        QMetaObject::invokeMethod(this, &bringModalWindowToFront, Qt::QueuedConnection);
}

void MenuBarWindow::setContent(const StatusItemContent& content)
{
    button_->setContent(content);
    if (isBar_ && strip_.height() < button_->sizeHint().height())
        place();
}

void MenuBarWindow::setMenu(QMenu* menu)
{
    button_->setPopupMenu(menu);
}

PopoverAnchor MenuBarWindow::anchor() const
{
    return {button_, {}};
}

bool MenuBarWindow::event(QEvent* event)
{
    if (event->type() == QEvent::WindowBlocked)
        letClicksThrough(*this);
    return QWidget::event(event);
}

void MenuBarWindow::closeEvent(QCloseEvent* event)
{
    // The window is the program's only face: the user may put it away, but closing it would lock everybody out. The
    // program's own end closes it too, and that is no spontaneous event.
    if (!event->spontaneous())
        return;
    event->ignore();
    if (!isBar_)
        showMinimized();
}

void MenuBarWindow::paintEvent(QPaintEvent* /*event*/)
{
    if (!isBar_)
        return;
    QPainter painter(this);
    QColor edge = palette().color(QPalette::WindowText);
    edge.setAlphaF(0.2F);
    painter.fillRect(0, height() - 1, width(), 1, edge);
}

void MenuBarWindow::followPrimaryScreen()
{
    QScreen* primary = QGuiApplication::primaryScreen();
    if (screen_)
        disconnect(screen_, nullptr, this, nullptr);
    if (primary) {
        connect(primary, &QScreen::geometryChanged, this, &MenuBarWindow::place);
        connect(primary, &QScreen::availableGeometryChanged, this, &MenuBarWindow::place);
    }
    place();
}

void MenuBarWindow::place()
{
    QScreen* primary = QGuiApplication::primaryScreen();
    if (!primary) // for a moment, while monitors are exchanged
        return;
    const int available = primary->availableGeometry().top();
    // What is kept free up to the strip's lower edge is kept free for it; more than that belongs to a panel of the
    // desktop. The window's own geometry tells nothing: a window manager may still report an earlier one.
    if (screen_ != primary || available < strip_.top() || available > strip_.bottom() + 1)
        strip_ = {primary->geometry().x(), available, 0, 0};
    strip_.setWidth(primary->geometry().width());
    strip_.setHeight(std::max(strip_.height(), button_->sizeHint().height()));
    screen_ = primary;
    setGeometry(strip_);
    reserveTopStrip(winId(), *primary, strip_);
}

} // namespace quillon
