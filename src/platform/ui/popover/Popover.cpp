#include "Popover.h"

#include "Accessibility.h"
#include "PopoverPlacement.h"
#include "WindowSystem.h"

#include <QApplication>
#include <QCloseEvent>
#include <QCursor>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>
#include <QWindow>

#include <variant>

namespace quillon {

namespace {

constexpr int fadeMilliseconds = 130;

QRect pointerOrCorner()
{
    const QPoint pointer = QCursor::pos();
    if (QGuiApplication::screenAt(pointer))
        return {pointer, QSize(1, 1)};
    const QScreen* primary = QGuiApplication::primaryScreen();
    return primary ? QRect(primary->availableGeometry().topRight(), QSize(1, 1)) : QRect();
}

/// Brings back a window that the user has put away: a popover is hidden with the window that it belongs to.
void takeOut(QWidget& window)
{
    if (window.isMinimized())
        window.showNormal();
    openAnew(window);
}

bool isInput(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::KeyPress:
    case QEvent::Shortcut:
        return true;
    default:
        return false;
    }
}

/// Makes a window active whose keys come to another one of the program.
void activateInProgram(QWidget& window)
{
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED // Qt has nothing in its place for windows that no window system gives the keyboard
        QApplication::setActiveWindow(&window);
    QT_WARNING_POP
}

} // namespace

Popover::Popover(QWidget* parent)
    : QWidget(parent, Qt::Tool | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint | Qt::WindowStaysOnTopHint)
{
    setAttribute(Qt::WA_MacAlwaysShowToolWindow);
    setAttribute(Qt::WA_TranslucentBackground);
    setAccessibleRole(*this, QAccessible::Dialog);
    auto* layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    fade_.setDuration(fadeMilliseconds);
    fade_.setStartValue(0.0);
    fade_.setEndValue(1.0);
    connect(&fade_, &QVariantAnimation::valueChanged, this,
            [this](const QVariant& opacity) { setWindowOpacity(opacity.toReal()); });
    connect(&fade_, &QVariantAnimation::finished, this, [this] { setVisible(shown_); });
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        // On a slow machine the menu that it was chosen from loses the keyboard long before the popover gets it.
        if (state != Qt::ApplicationActive && hasBeenActive_)
            closeIfLeft();
    });
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &Popover::place);
}

void Popover::setContentView(QWidget* content)
{
    delete content_;
    content_ = content;
    setAccessibleName(content ? content->accessibleName() : QString());
    if (content)
        layout()->addWidget(content);
}

void Popover::showRelativeTo(const PopoverAnchor& anchor, RectEdge preferredEdge)
{
    if (!shown_ && isVisible()) // still fading out
        hide();
    anchor_ = anchor;
    if (anchor_.view && !qobject_cast<Popover*>(anchor_.view->window()))
        takeOut(*anchor_.view->window());
    if (currentAnchor().isEmpty())
        anchor_.screenRect = pointerOrCorner();
    preferredEdge_ = preferredEdge;
    const bool appears = !shown_;
    shown_ = true;
    if (appears)
        adaptToDisplay();
    layout()->activate();
    place();
    if (appears)
        appear();
    takeKeyboard();
    if (appears)
        Q_EMIT didShow();
}

void Popover::close()
{
    if (!shown_)
        return;
    shown_ = false;
    auto* parent = anchor_.view ? qobject_cast<Popover*>(anchor_.view->window()) : nullptr;
    if (parent && parent->isShown() && QApplication::activeWindow() == this) {
        if (isPlacedByCompositor_)
            activateInProgram(*parent);
        else
            parent->activateWindow();
    }
    if (!animates_ || !windowsFade()) {
        hide();
        return;
    }
    fade_.setDirection(QAbstractAnimation::Backward); // from where it is, while it runs
    if (fade_.state() != QAbstractAnimation::Running)
        fade_.start();
}

/// A compositor may have come or gone since the popover was shown last, and windows don't change their kind.
void Popover::adaptToDisplay()
{
    // Compositors place popups at their parents. Those of Qt's popup type also take the pointer, which needs a click
    // that is not long ago, and end with the next one anywhere; tool tips do neither.
    isPlacedByCompositor_ = !windowsCanBePlaced() && anchor_.view && qobject_cast<Popover*>(anchor_.view->window());
    setWindowFlags((windowFlags() & ~Qt::WindowType_Mask) | (isPlacedByCompositor_ ? Qt::ToolTip : Qt::Tool));
    const bool translucent = windowsAreTranslucent();
    if (translucent != translucent_) {
        destroy();
        translucent_ = translucent;
        setAttribute(Qt::WA_TranslucentBackground, translucent);
        setAttribute(Qt::WA_NoSystemBackground, translucent); // comes with the other one, and doesn't go with it
        clearMask();
    }
    margin_ = translucent ? popoverShadowExtent : popoverArrowLength;
    constexpr int line = 1;
    const int inset = margin_ + line;
    layout()->setContentsMargins(inset, inset, inset, inset);
}

void Popover::appear()
{
    hasBeenActive_ = false;
    winId(); // makes the window
    const QWidget* owner = anchor_.view ? anchor_.view->window() : parentWidget();
    windowHandle()->setTransientParent(owner ? owner->window()->windowHandle() : nullptr);
    keepOutOfWindowLists(*this);
    const bool fades = animates_ && windowsFade();
    if (windowsFade())
        setWindowOpacity(fades ? 0 : 1);
    qApp->installEventFilter(this);
    show();
    if (fades) {
        fade_.setDirection(QAbstractAnimation::Forward);
        fade_.start();
    }
    if (!focusWidget())
        focusNextChild();
}

void Popover::comeBack()
{
    if (!shown_ || isVisible() || !anchor_.view || !anchor_.view->isVisible())
        return;
    appear();
    takeKeyboard();
}

void Popover::takeKeyboard()
{
    if (isPlacedByCompositor_)
        activateInProgram(*this);
    else
        bringToFront(*this);
}

void Popover::place()
{
    if (!shown_ || !(windowsCanBePlaced() || isPlacedByCompositor_))
        return;
    const QRect anchor = currentAnchor();
    const QRect available = roomAround(anchor);
    if (available.isEmpty()) // for a moment, while monitors are exchanged
        return;
    const QRect own = body();
    const auto [target, arrow] = popoverPlacement(anchor, own.size(), available, preferredEdge_);
    arrow_ = arrow;
    move(target.topLeft() - own.topLeft());
    if (body() != own) // moving has let a larger content in, and so has placed the popover anew
        return;
    if (!translucent_)
        setMask(QRegion(popoverOutline(own, arrow_).toFillPolygon().toPolygon()));
    update();
}

/// Where the popover may lie.
QRect Popover::roomAround(const QRect& anchor)
{
    if (isPlacedByCompositor_ && anchor_.view) { // which knows of the screen, but may part arrow and anchor
        const QWidget* parent = anchor_.view->window();
        return {parent->mapToGlobal(QPoint()), parent->size()};
    }
    const QScreen* screen = screenOfAnchor(anchor);
    if (!screen)
        return {};
    connect(screen, &QScreen::availableGeometryChanged, this, &Popover::place, Qt::UniqueConnection);
    return screen->availableGeometry();
}

/// A view that goes away leaves behind where it was last.
QRect Popover::currentAnchor()
{
    if (anchor_.view && anchor_.view->isVisible())
        anchor_.screenRect = QRect(anchor_.view->mapToGlobal(QPoint()), anchor_.view->size());
    return anchor_.screenRect;
}

QScreen* Popover::screenOfAnchor(const QRect& anchor) const
{
    const QPoint middle(anchor.x() + anchor.width() / 2, anchor.y() + anchor.height() / 2);
    if (QScreen* screen = QGuiApplication::screenAt(middle))
        return screen;
    return anchor_.view ? anchor_.view->screen() : QGuiApplication::primaryScreen();
}

/// In the window's own coordinates.
QRect Popover::body() const
{
    return rect().adjusted(margin_, margin_, -margin_, -margin_);
}

bool Popover::contains(const QWidget* widget) const
{
    while (widget && widget != this)
        widget = widget->parentWidget();
    return widget;
}

/// The popover, if any, whose anchor lies inside this one.
Popover* Popover::child() const
{
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        auto* popover = qobject_cast<Popover*>(window);
        if (popover && popover != this && popover->isShown() && contains(popover->anchor_.view))
            return popover;
    }
    return nullptr;
}

/// Whether something that belongs to the popover is in front of it.
bool Popover::isOccupied() const
{
    return QApplication::activeModalWidget() || contains(QApplication::activePopupWidget()) || child() ||
           !keptOpen_.expired();
}

std::shared_ptr<void> Popover::keepOpen()
{
    auto token = keptOpen_.lock();
    if (!token)
        keptOpen_ = token = std::make_shared<std::monostate>();
    return token;
}

/// The user has turned to something else.
void Popover::closeIfLeft()
{
    if (shown_ && behavior_ == PopoverBehavior::Transient && !isOccupied())
        close();
}

bool Popover::event(QEvent* event)
{
    if (event->type() == QEvent::WindowActivate) {
        hasBeenActive_ = true;
        if (Popover* front = child()) {
            if (front->isPlacedByCompositor_)
                activateInProgram(*front);
            else
                front->activateWindow();
        }
    }
    return QWidget::event(event);
}

/// Compositors leave the keyboard with the parent of what they place.
bool Popover::passKeyOn(QObject* watched, QEvent* event)
{
    const auto type = event->type();
    const bool isKey = type == QEvent::KeyPress || type == QEvent::KeyRelease || type == QEvent::ShortcutOverride;
    if (!isKey || !isPlacedByCompositor_ || !anchor_.view || !watched->isWidgetType() ||
        static_cast<QWidget*>(watched)->window() != anchor_.view->window())
        return false;
    QCoreApplication::sendEvent(focusWidget() ? focusWidget() : this, event);
    return true;
}

bool Popover::eventFilter(QObject* watched, QEvent* event)
{
    if (shown_ && passKeyOn(watched, event))
        return true;
    // What fades out takes no second click.
    if (!shown_)
        return isInput(event->type()) && watched->isWidgetType() && contains(static_cast<QWidget*>(watched));
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        if (watched->isWidgetType() && !contains(static_cast<QWidget*>(watched)))
            closeIfLeft();
        break;
    case QEvent::Move:
    case QEvent::Resize:
        if (anchor_.view && (watched == anchor_.view || watched == anchor_.view->window()))
            place();
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

void Popover::closeEvent(QCloseEvent* event)
{
    // The program's own end closes every window, and that is no spontaneous event.
    if (!event->spontaneous())
        return;
    event->ignore();
    closeIfLeft();
}

void Popover::hideEvent(QHideEvent* event)
{
    if (event->spontaneous())
        return;
    if (shown_ && isPlacedByCompositor_ && behavior_ == PopoverBehavior::ApplicationDefined) {
        // Some compositors close what they have placed when the user clicks elsewhere.
        QMetaObject::invokeMethod(this, &Popover::comeBack, Qt::QueuedConnection);
        return;
    }
    shown_ = false;
    fade_.stop();
    qApp->removeEventFilter(this);
    Q_EMIT didClose();
}

void Popover::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Cancel))
        closeIfLeft();
    else
        QWidget::keyPressEvent(event);
}

void Popover::mousePressEvent(QMouseEvent* event)
{
    // Shadow and arrow are part of the window and yet outside of the popover.
    if (!body().contains(event->position().toPoint()))
        closeIfLeft();
}

void Popover::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    // Most of what is painted again lies amid the body.
    constexpr int edge = popoverCornerRadius + 1;
    if (body().adjusted(edge, edge, -edge, -edge).contains(event->rect())) {
        painter.fillRect(event->rect(), palette().color(QPalette::Window));
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing);
    constexpr qreal halfLine = 0.5;
    const QRectF bodyLine = QRectF(body()).adjusted(halfLine, halfLine, -halfLine, -halfLine);
    if (translucent_)
        paintPopoverShadow(painter, bodyLine);
    paintPopoverGround(painter, popoverOutline(bodyLine, arrow_), palette());
}

void Popover::resizeEvent(QResizeEvent* /*event*/)
{
    place();
}

} // namespace quillon
