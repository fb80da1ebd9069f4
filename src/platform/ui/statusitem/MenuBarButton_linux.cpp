#include "MenuBarButton_linux.h"

#include "ModalAlertPresenter.h"
#include "Symbol_linux.h"
#include "SystemColor.h"

#include <QEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

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

} // namespace quillon
