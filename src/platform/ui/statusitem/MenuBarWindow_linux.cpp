#include "Accessibility.h"
#include "Alert.h"
#include "ShownStatusItem_linux.h"
#include "Symbol_linux.h"
#include "WindowSystem.h"

#include <QCloseEvent>
#include <QEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int sideMargin = 8;
constexpr int imageGap = 6;
constexpr int smallestHeight = 28;
constexpr qreal groundInset = 0.5; // of the ground that marks the button, from its edges
constexpr int verticalMargin = 2;  // keeps the title inside of that ground
constexpr qreal pointsPerInch = 72;

// What a line's ink needs above and below its baseline. Capitals and descenders count even where there are none, so
// that lines keep their places while the text changes; taller scripts count with what they have.
struct Extent {
    qreal above, below;
};

Extent extentOf(const QFontMetricsF& metrics, const QString& line)
{
    const qreal descender = metrics.tightBoundingRect(u"gjpqy"_s).bottom();
    const QRectF ink = metrics.tightBoundingRect(line);
    return {std::max(metrics.capHeight(), -ink.top()), std::max(descender, ink.bottom())};
}

} // namespace

MenuBarButton::MenuBarButton(QWidget* parent)
    : QPushButton(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    setAttribute(Qt::WA_Hover);
    connect(this, &QPushButton::pressed, this, &MenuBarButton::openMenu);
    setContent({});
}

void MenuBarButton::setContent(const StatusItemContent& content)
{
    content_ = content;
    setAccessibleName(content.title.text.isEmpty() ? QGuiApplication::applicationDisplayName() : content.title.text);
    setAccessibleDescription(content.description());
    setToolTip(content.description());
    updateGeometry();
    update();
}

void MenuBarButton::setPopupMenu(QMenu* menu)
{
    if (menu_) {
        menu_->removeEventFilter(this);
        disconnect(menu_, nullptr, this, nullptr);
    }
    menu_ = menu;
    if (!menu_)
        return;
    menu_->installEventFilter(this);
    connect(menu_, &QMenu::aboutToHide, this, [this] { setDown(false); });
}

void MenuBarButton::openMenu()
{
    if (bringModalWindowToFront() || !menu_ || menu_->isVisible())
        return;
    setDown(true);
    menu_->popup(mapToGlobal(rect().bottomLeft()) + QPoint(0, 1));
}

bool MenuBarButton::eventFilter(QObject* watched, QEvent* event)
{
    // A press that closes the menu is not to open it again.
    if (event->type() == QEvent::MouseButtonPress && watched == menu_) {
        const QPoint position = static_cast<QMouseEvent*>(event)->globalPosition().toPoint();
        menu_->setAttribute(Qt::WA_NoMouseReplay, rect().contains(mapFromGlobal(position)));
    }
    return QPushButton::eventFilter(watched, event);
}

void MenuBarButton::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Down:
        openMenu();
        return;
    default:
        QPushButton::keyPressEvent(event);
    }
}

QFont MenuBarButton::titleFont() const
{
    QFont font = withColorEmoji(QGuiApplication::font());
    if (content_.title.pointSize > 0)
        font.setPointSizeF(content_.title.pointSize);
    return font;
}

QStringList MenuBarButton::lines() const
{
    return content_.title.text.split(u'\n', Qt::SkipEmptyParts);
}

qreal MenuBarButton::linePitch() const
{
    const QFontMetricsF metrics(titleFont(), this);
    const QStringList texts = lines();
    const qreal spacing = content_.title.paragraphSpacing * logicalDpiY() / pointsPerInch;
    const qreal tightest = extentOf(metrics, texts.value(0)).below + extentOf(metrics, texts.value(1)).above + 1;
    return std::max(metrics.height() + spacing, tightest);
}

qreal MenuBarButton::blockHeight() const
{
    const QFontMetricsF metrics(titleFont(), this);
    const QStringList texts = lines();
    const qreal pitches = texts.size() > 1 ? linePitch() : 0;
    return extentOf(metrics, texts.value(0)).above + pitches + extentOf(metrics, texts.value(texts.size() - 1)).below;
}

int MenuBarButton::titleWidth() const
{
    const QFontMetricsF metrics(titleFont(), this);
    qreal width = 0;
    for (const QString& line : lines())
        width = std::max(width, metrics.horizontalAdvance(line));
    return static_cast<int>(std::ceil(width));
}

int MenuBarButton::imageSide() const
{
    return content_.image ? QFontMetrics(QGuiApplication::font(), this).height() + 3 : 0;
}

QSize MenuBarButton::sizeHint() const
{
    const int title = titleWidth();
    const int image = imageSide();
    const int gap = title > 0 && image > 0 ? imageGap : 0;
    const int content = std::max(static_cast<int>(std::ceil(blockHeight())), image);
    return {2 * sideMargin + title + gap + image, std::max(smallestHeight, content + 2 * verticalMargin)};
}

QSize MenuBarButton::minimumSizeHint() const
{
    // A title that is too long for the screen gives way, the image never does.
    return {2 * sideMargin + imageSide(), sizeHint().height()};
}

void MenuBarButton::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    paintGround(painter);
    QRect area = rect().adjusted(sideMargin, 0, -sideMargin, 0);
    if (content_.image) {
        const int side = imageSide();
        const QRect image(area.right() + 1 - side, (height() - side) / 2, side, side);
        painter.drawPixmap(image.topLeft(), symbolPixmap(content_.image->name, side, devicePixelRatioF(),
                                                         symbolColor(*content_.image, palette())));
        area.setRight(image.left() - 1 - imageGap);
    }
    paintTitle(painter, area);
}

void MenuBarButton::paintGround(QPainter& painter) const
{
    if (!isDown() && !underMouse() && !hasFocus())
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    QColor ground = palette().color(QPalette::WindowText);
    ground.setAlphaF(isDown() ? 0.18F : 0.08F);
    painter.setBrush(ground);
    painter.setPen(hasFocus() ? QPen(systemBlueColor(palette()), 1) : QPen(Qt::NoPen));
    constexpr qreal cornerRadius = 5;
    painter.drawRoundedRect(QRectF(rect()).adjusted(groundInset, groundInset, -groundInset, -groundInset), cornerRadius,
                            cornerRadius);
}

void MenuBarButton::paintTitle(QPainter& painter, const QRect& area) const
{
    painter.setFont(titleFont());
    painter.setPen(palette().color(QPalette::WindowText));
    const QFontMetricsF metrics(titleFont(), this);
    const QStringList texts = lines();
    // Capitals and digits are centred; descenders hang below, as far as there is room for them.
    const qreal below = extentOf(metrics, texts.value(texts.size() - 1)).below;
    const qreal top = std::min((height() - blockHeight() + below) / 2, height() - blockHeight() - verticalMargin);
    qreal baseline = top + extentOf(metrics, texts.value(0)).above;
    for (const QString& line : texts) {
        const QString shown = metrics.elidedText(line, Qt::ElideRight, area.width());
        painter.drawText(QPointF(area.right() + 1 - metrics.horizontalAdvance(shown), baseline), shown);
        baseline += linePitch();
    }
}

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
