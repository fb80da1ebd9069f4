#include "DayStrip.h"

#include "Accessibility.h"

#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QPixmapCache>
#include <QToolTip>

#include <algorithm>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;
using logwords::Mark;

namespace {

constexpr int gap = 3; // between two days, in logical pixels

/// With at least 3:1 contrast to the grounds of both palettes (WCAG 2.1, 1.4.11).
QColor colorOf(Mark mark, const QPalette& palette)
{
    const bool dark = isDark(palette);
    switch (mark) {
    case Mark::Good:
        return dark ? QColor(0x57c785) : QColor(0x1a7f37);
    case Mark::Trouble:
        return dark ? QColor(0xff8070) : QColor(0xc0271b);
    case Mark::Going:
        return systemBlueColor(palette);
    case Mark::Passed:
    case Mark::None:
        break;
    }
    return dark ? QColor(0xa0a0a0) : QColor(0x6a6a6a);
}

/// A tick, a cross, a ring, a dash, or a dot, within a square.
void drawMark(QPainter& painter, const QRectF& square, Mark mark, const QColor& color)
{
    const qreal side = square.width();
    const auto at = [&](qreal x, qreal y) { return square.topLeft() + QPointF(x, y) * side; };
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(color, std::max(side * 0.13, 1.6), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    switch (mark) {
    case Mark::Good:
        painter.drawPolyline(QPolygonF{at(0.18, 0.55), at(0.42, 0.78), at(0.84, 0.26)});
        break;
    case Mark::Trouble:
        painter.drawLine(at(0.24, 0.24), at(0.76, 0.76));
        painter.drawLine(at(0.76, 0.24), at(0.24, 0.76));
        break;
    case Mark::Going:
        painter.drawEllipse(at(0.5, 0.5), side * 0.3, side * 0.3);
        break;
    case Mark::Passed:
        painter.drawLine(at(0.22, 0.5), at(0.78, 0.5));
        break;
    case Mark::None:
        painter.drawPoint(at(0.5, 0.5));
        break;
    }
    painter.restore();
}

} // namespace

QIcon markIcon(Mark mark)
{
    const QPalette palette = QApplication::palette();
    const int side = QFontMetrics(QApplication::font()).height();
    const qreal ratio = qApp->devicePixelRatio();
    const auto drawn = [&](const QColor& color) {
        const QString key = u"mark-%1-%2-%3"_s.arg(QString::number(static_cast<int>(mark)), color.name(),
                                                   QString::number(side * ratio));
        QPixmap pixmap;
        if (!QPixmapCache::find(key, &pixmap)) {
            pixmap = QPixmap((QSizeF(side, side) * ratio).toSize());
            pixmap.setDevicePixelRatio(ratio);
            pixmap.fill(Qt::transparent);
            QPainter painter(&pixmap);
            drawMark(painter, QRectF(0, 0, side, side), mark, color);
            painter.end();
            QPixmapCache::insert(key, pixmap);
        }
        return pixmap;
    };
    QIcon icon(drawn(colorOf(mark, palette)));
    icon.addPixmap(drawn(palette.color(QPalette::HighlightedText)), QIcon::Selected);
    return icon;
}

DayStrip::DayStrip(QWidget* parent)
    : QWidget(parent)
{
    setAccessibleRole(*this, QAccessible::Graphic);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void DayStrip::setDays(std::vector<logwords::Day> days)
{
    days_ = std::move(days);
    updateGeometry();
    update();
}

QSize DayStrip::sizeHint() const
{
    const int side = fontMetrics().height();
    return {static_cast<int>(days_.size()) * (side + gap), side + 2 * gap};
}

QRect DayStrip::placeOf(std::size_t day) const
{
    const auto count = static_cast<int>(days_.size());
    const int place = layoutDirection() == Qt::RightToLeft ? count - 1 - static_cast<int>(day) : static_cast<int>(day);
    const int left = width() * place / count;
    return {left, 0, width() * (place + 1) / count - left - gap, height()};
}

bool DayStrip::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto& help = static_cast<const QHelpEvent&>(*event);
    for (std::size_t day = 0; day < days_.size(); ++day) {
        if (placeOf(day).contains(help.pos()))
            QToolTip::showText(help.globalPos(), days_[day].text, this, placeOf(day));
    }
    return true;
}

void DayStrip::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (std::size_t day = 0; day < days_.size(); ++day) {
        const QRectF place = placeOf(day);
        const QColor color = colorOf(days_[day].mark, palette());
        QColor ground = color;
        ground.setAlphaF(days_[day].mark == Mark::None ? 0.06F : 0.15F);
        painter.setPen(Qt::NoPen);
        painter.setBrush(ground);
        painter.drawRoundedRect(place, gap, gap);
        const qreal side = std::min(place.width(), place.height()) - gap;
        QRectF square(0, 0, side, side);
        square.moveCenter(place.center());
        drawMark(painter, square, days_[day].mark, color);
    }
}

} // namespace quillon
