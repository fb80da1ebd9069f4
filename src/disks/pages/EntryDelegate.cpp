#include "ListPage.h"
#include "Symbol_linux.h"
#include "SystemColor.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>

namespace quillon {

namespace {

constexpr int margin = 8;
constexpr int mostLinesOfRemark = 3;
constexpr qreal faded = 0.65; // of the text's colour, for what is less important
constexpr double leastContrast = 4.5;

QFont titleFont(const QStyleOptionViewItem& option)
{
    QFont font = option.font;
    font.setBold(true);
    return font;
}

int symbolSide(const QStyleOptionViewItem& option)
{
    return 2 * QFontMetrics(option.font).height();
}

QColor mixed(const QColor& text, const QColor& ground, qreal share)
{
    return QColor::fromRgbF(static_cast<float>(text.redF() * share + ground.redF() * (1 - share)),
                            static_cast<float>(text.greenF() * share + ground.greenF() * (1 - share)),
                            static_cast<float>(text.blueF() * share + ground.blueF() * (1 - share)));
}

/// A ground for that text, as near to the style's as can be. Some room is left for quieter text.
QColor groundFor(const QColor& text, QColor ground)
{
    constexpr double room = 1.1;
    const QColor away = contrast(text, Qt::black) > contrast(ground, Qt::black) ? Qt::black : Qt::white;
    for (int step = 0; step < 20 && contrast(text, ground) < leastContrast * room; ++step)
        ground = mixed(away, ground, 0.05);
    return ground;
}

QColor quietColor(const QColor& text, const QColor& ground)
{
    qreal share = faded;
    while (share < 1 && contrast(mixed(text, ground, share), ground) < leastContrast)
        share += 0.05;
    return mixed(text, ground, std::min(share, 1.0));
}

QStringList wrapped(const QString& text, const QFont& font, int width)
{
    QTextLayout layout(text, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    QStringList lines;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        if (lines.size() + 1 == mostLinesOfRemark) {
            lines.append(QFontMetrics(font).elidedText(text.mid(line.textStart()), Qt::ElideRight, width));
            break;
        }
        lines.append(text.mid(line.textStart(), line.textLength()).trimmed());
    }
    layout.endLayout();
    return lines;
}

QStringList remarkLines(const QModelIndex& index, const QFont& font, int width)
{
    QStringList lines;
    for (const QString& remark : index.data(EntryDelegate::remarksRole).toStringList())
        lines += wrapped(remark, font, width);
    return lines;
}

/// What the symbol and the margins leave of the width of an entry.
int textWidth(const QStyleOptionViewItem& option, int width)
{
    return std::max(width - 3 * margin - symbolSide(option), 1);
}

} // namespace

void EntryDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    const bool dimmed = index.data(dimmedRole).toBool();
    const auto group = option.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
    const QColor text = option.palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text);
    const QColor base = selected ? groundFor(text, option.palette.color(group, QPalette::Highlight))
                                 : option.palette.color(group, QPalette::Base);
    const QColor quiet = quietColor(text, base);
    const Qt::LayoutDirection direction = option.direction;

    const QStyle& style = option.widget ? *option.widget->style() : *QApplication::style();
    QStyleOptionViewItem ground = option;
    initStyleOption(&ground, index);
    ground.text.clear();
    if (selected)
        ground.palette.setColor(QPalette::Highlight, base);
    style.drawControl(QStyle::CE_ItemViewItem, &ground, painter, option.widget);

    const QRect inner = option.rect.adjusted(margin, margin / 2, -margin, -margin / 2);
    const int side = symbolSide(option);
    const QRect symbol = QStyle::alignedRect(direction, Qt::AlignLeft | Qt::AlignVCenter, {side, side}, inner);
    painter->drawPixmap(symbol, symbolPixmap(index.data(symbolRole).toString(), side,
                                             painter->device()->devicePixelRatioF(), dimmed ? quiet : text));

    const QRect place = QStyle::visualRect(direction, inner, inner.adjusted(side + margin, 0, 0, 0));
    int top = place.top();
    const auto drawLine = [&](const QString& line, const QFont& font, const QColor& color) {
        const QFontMetrics metrics(font);
        painter->setFont(font);
        painter->setPen(color);
        const QRect row(place.left(), top, place.width(), metrics.height());
        painter->drawText(row, static_cast<int>(QStyle::visualAlignment(direction, Qt::AlignLeft | Qt::AlignVCenter)),
                          metrics.elidedText(line, Qt::ElideMiddle, place.width()));
        top += metrics.height();
    };
    painter->save();
    drawLine(index.data().toString(), titleFont(option), dimmed ? quiet : text);
    for (const QString& line : index.data(detailsRole).toStringList())
        drawLine(line, option.font, quiet);
    for (const QString& line : remarkLines(index, option.font, textWidth(option, option.rect.width())))
        drawLine(line, option.font, text);
    painter->restore();
}

QSize EntryDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const auto* view = qobject_cast<const QAbstractItemView*>(option.widget);
    const int width = view ? view->viewport()->width() : option.rect.width();
    const auto rows = index.data(detailsRole).toStringList().size() +
                      remarkLines(index, option.font, textWidth(option, width)).size();
    const int lines =
        QFontMetrics(titleFont(option)).height() + static_cast<int>(rows) * QFontMetrics(option.font).height();
    // Any width will do: lines are shortened or wrapped.
    return {0, std::max(lines, symbolSide(option)) + margin};
}

} // namespace quillon
