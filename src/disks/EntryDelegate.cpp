#include "EntryDelegate.h"

#include "Symbol_linux.h"

#include <QApplication>
#include <QPainter>

#include <algorithm>

namespace quillon {

namespace {

constexpr int margin = 8;
// Of the text's colour, for what is less important; the ground of what is selected gives less contrast.
constexpr qreal faded = 0.65;
constexpr qreal fadedSelected = 0.88;

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

} // namespace

void EntryDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const QStyle& style = option.widget ? *option.widget->style() : *QApplication::style();
    QStyleOptionViewItem ground = option;
    initStyleOption(&ground, index);
    ground.text.clear();
    style.drawControl(QStyle::CE_ItemViewItem, &ground, painter, option.widget);

    const bool selected = option.state.testFlag(QStyle::State_Selected);
    const bool dimmed = index.data(dimmedRole).toBool();
    const auto group = option.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
    const QColor text = option.palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text);
    const QColor base = option.palette.color(group, selected ? QPalette::Highlight : QPalette::Base);
    const QColor quiet = mixed(text, base, selected ? fadedSelected : faded);
    const Qt::LayoutDirection direction = option.direction;

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
                          metrics.elidedText(line.simplified(), Qt::ElideMiddle, place.width()));
        top += metrics.height();
    };
    painter->save();
    drawLine(index.data().toString(), titleFont(option), dimmed ? quiet : text);
    for (const QString& line : index.data(detailsRole).toStringList())
        drawLine(line, option.font, quiet);
    painter->restore();
}

QSize EntryDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const auto details = static_cast<int>(index.data(detailsRole).toStringList().size());
    const int lines = QFontMetrics(titleFont(option)).height() + details * QFontMetrics(option.font).height();
    // Any width will do: lines are shortened.
    return {0, std::max(lines, symbolSide(option)) + margin};
}

} // namespace quillon
