#include "MenuBarWindow_linux.h"

#include "Accessibility.h"
#include "MenuBarButton_linux.h"
#include "ModalAlertPresenter.h"
#include "TrayStatusItems_linux.h"
#include "WindowSystem.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QPainter>
#include <QScreen>

#include <algorithm>
#include <array>
#include <span>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

bool hasScreenAbove(const QScreen& screen)
{
    const QRect own = screen.geometry();
    const auto siblings = screen.virtualSiblings();
    return std::any_of(siblings.begin(), siblings.end(), [&own](const QScreen* other) {
        const QRect geometry = other->geometry();
        return geometry.top() < own.top() && geometry.left() <= own.right() && own.left() <= geometry.right();
    });
}

void replaceProperty(xcb_connection_t* connection, WId window, std::string_view name, xcb_atom_t type,
                     std::span<const std::uint32_t> values)
{
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, static_cast<xcb_window_t>(window),
                        internAtom(connection, name), type, 32, static_cast<std::uint32_t>(values.size()),
                        values.data());
}

} // namespace

void makeDock(WId window)
{
    xcb_connection_t* connection = x11Connection();
    if (!connection)
        return;
    // Extended Window Manager Hints 1.5. Qt's own attribute for this has no effect on a window that it makes
    // afterwards.
    const std::array type{internAtom(connection, "_NET_WM_WINDOW_TYPE_DOCK")};
    replaceProperty(connection, window, "_NET_WM_WINDOW_TYPE", XCB_ATOM_ATOM, type);
    constexpr std::array<std::uint32_t, 1> everyDesktop{0xFFFFFFFF};
    replaceProperty(connection, window, "_NET_WM_DESKTOP", XCB_ATOM_CARDINAL, everyDesktop);
}

void reserveTopStrip(WId window, const QScreen& screen, const QRect& bar)
{
    xcb_connection_t* connection = x11Connection();
    if (!connection || hasScreenAbove(screen))
        return;
    // Qt scales sizes and distances inside a screen, but not where a screen begins.
    const qreal ratio = screen.devicePixelRatio();
    const QPoint origin = screen.geometry().topLeft();
    const int depth = origin.y() + qRound((bar.bottom() + 1 - origin.y()) * ratio);
    const int lastColumn = origin.x() + qRound(screen.geometry().width() * ratio) - 1;
    // left, right, top, bottom, then where each of them begins and ends: Extended Window Manager Hints 1.5,
    // _NET_WM_STRUT_PARTIAL.
    std::array<std::uint32_t, 12> strut{};
    strut[2] = static_cast<std::uint32_t>(depth);
    strut[8] = static_cast<std::uint32_t>(origin.x());
    strut[9] = static_cast<std::uint32_t>(lastColumn);
    replaceProperty(connection, window, "_NET_WM_STRUT_PARTIAL", XCB_ATOM_CARDINAL, strut);
    xcb_flush(connection);
}

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
