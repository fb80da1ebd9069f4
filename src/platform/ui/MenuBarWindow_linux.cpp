#include "MenuBarWindow_linux.h"

#include "MenuBarButton_linux.h"
#include "ModalWindow.h"
#include "ScreenStrip_linux.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QPainter>
#include <QScreen>

namespace quillon {

using namespace Qt::StringLiterals;

MenuBarWindow::MenuBarWindow()
    : isBar_(QGuiApplication::platformName() != "wayland"_L1)
    , button_(new MenuBarButton(this))
{
    setObjectName(u"MenuBarWindow"_s);
    setWindowTitle(QGuiApplication::applicationDisplayName());
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
        layout->setSizeConstraint(QLayout::SetFixedSize);
    }
    layout->addWidget(button_);
    show();
}

void MenuBarWindow::setContent(const StatusItemContent& content)
{
    button_->setContent(content);
    if (isBar_ && height() < button_->sizeHint().height())
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
    // What is kept free up to our own lower edge is kept free for us; more than that belongs to a panel of the desktop.
    const bool stay = screen_ == primary && available <= geometry().bottom() + 1;
    const int top = stay ? y() : available;
    const int height = screen_ ? std::max(this->height(), button_->sizeHint().height()) : button_->sizeHint().height();
    screen_ = primary;
    setGeometry(primary->geometry().x(), top, primary->geometry().width(), height);
    reserveTopStrip(winId(), *primary, geometry());
}

} // namespace quillon
