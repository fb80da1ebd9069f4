#include "AlertText.h"

#include "AccessibleRole.h"

#include <QEvent>
#include <QScreen>
#include <QScrollBar>

#include <algorithm>
#include <cmath>
#include <memory>

namespace quillon {

namespace {

constexpr int columnDigits = 58;
constexpr double highestShareOfScreen = 0.6;

} // namespace

AlertText::AlertText(const QString& text, bool bold, QWidget* parent)
    : QTextEdit(parent)
{
    setAccessibleRole(*this, QAccessible::StaticText);
    setFrameShape(QFrame::NoFrame);
    viewport()->setAutoFillBackground(false);
    viewport()->setCursor(Qt::ArrowCursor);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabChangesFocus(true);
    setFocusPolicy(bold ? Qt::ClickFocus : Qt::StrongFocus); // what is worth copying stands in the second text
    document()->setDocumentMargin(0);
    QFont own = font();
    own.setBold(bold);
    setFont(own);
    setPlainText(text);
    setAccessibleName(text);
    takeWindowColor();
    fitToText();
}

void AlertText::changeEvent(QEvent* event)
{
    QTextEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        fitToText();
    else if (event->type() == QEvent::PaletteChange)
        takeWindowColor();
}

void AlertText::fitToText()
{
    const std::unique_ptr<QTextDocument> measured(document()->clone());
    measured->setDefaultFont(font());
    // Not the average character: that is as wide as an ideograph in a font that has them.
    const int column = fontMetrics().horizontalAdvance(u'0') * columnDigits;
    measured->setTextWidth(column);
    int width = std::min(column, static_cast<int>(std::ceil(measured->idealWidth())));
    const int highest = static_cast<int>(screen()->availableGeometry().height() * highestShareOfScreen);
    const int height = static_cast<int>(std::ceil(measured->size().height()));
    const bool scrolls = height > highest;
    setVerticalScrollBarPolicy(scrolls ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    if (scrolls)
        width += verticalScrollBar()->sizeHint().width();
    setFixedSize(width, std::min(height, highest));
}

/// Text fields have a ground of their own, and so a colour of their own; this one has neither.
void AlertText::takeWindowColor()
{
    QPalette own = palette();
    if (own.color(QPalette::Text) == own.color(QPalette::WindowText))
        return;
    own.setColor(QPalette::Text, own.color(QPalette::WindowText));
    setPalette(own);
}

} // namespace quillon
