#include "Alert.h"

#include "Accessibility.h"
#include "WindowSystem.h"

#include <QAccessible>
#include <QApplication>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QStyle>
#include <QVBoxLayout>
#include <QWidget>
#include <QWindow>

#include <algorithm>
#include <cmath>
#include <memory>
#include <numbers>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

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
    if (event->type() == QEvent::FontChange)
        fitToText();
    else if (event->type() == QEvent::PaletteChange)
        takeWindowColor();
}

void AlertText::fitToText()
{
    const std::unique_ptr<QTextDocument> measured(document()->clone());
    measured->setDefaultFont(font());
    // Counted in digits: in a font that has ideographs the average character is as wide as one of them.
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

namespace {

constexpr int signSide = 40; // logical pixels; what signs are drawn in

/// A regular polygon around the middle, with rounded corners; its first corner points up, or half a side beside it.
QPolygonF polygon(QPointF middle, qreal radius, int corners, bool standsOnSide)
{
    QPolygonF result;
    for (int corner = 0; corner < corners; ++corner) {
        const qreal turn = (corner + (standsOnSide ? 0.5 : 0.0)) * 2 * std::numbers::pi / corners;
        result.append(middle + radius * QPointF(std::sin(turn), -std::cos(turn)));
    }
    return result;
}

/// The line of an exclamation mark or, upside down, of an i.
void paintMark(QPainter& painter, qreal top, qreal bottom, qreal dot)
{
    painter.drawLine(QPointF(0, top), QPointF(0, bottom));
    painter.drawPoint(QPointF(0, dot));
}

} // namespace

void paintAlertSign(QPainter& painter, const QRectF& area, AlertStyle alertStyle)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(area.center());
    painter.scale(area.width() / signSide, area.height() / signSide);
    const auto ground = [&painter](QRgb color, const QPolygonF& corners) {
        painter.setBrush(QColor(color));
        painter.setPen(QPen(QColor(color), 5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin)); // rounds the corners
        painter.drawPolygon(corners);
    };
    constexpr qreal stroke = 4.2;
    const auto pen = [](QRgb color) { return QPen(QColor(color), stroke, Qt::SolidLine, Qt::RoundCap); };
    switch (alertStyle) {
    case AlertStyle::Informational:
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0x2f6fde));
        painter.drawEllipse(QPointF(), 18, 18);
        painter.setPen(pen(0xffffff));
        paintMark(painter, -1, 9, -9);
        break;
    case AlertStyle::Warning:
        ground(0xf6b21b, polygon({0, 5}, 19, 3, false));
        painter.setPen(pen(0x3a2a00));
        paintMark(painter, -6, 3, 10.5);
        break;
    case AlertStyle::Critical:
        ground(0xd6302b, polygon({}, 16.5, 8, true));
        painter.setPen(pen(0xffffff));
        paintMark(painter, -9, 1, 9);
        break;
    }
    painter.restore();
}

AlertIcon::AlertIcon(AlertStyle alertStyle, QWidget* parent)
    : QWidget(parent)
    , alertStyle_(alertStyle)
{
    setFixedSize(signSide, signSide);
}

void AlertIcon::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    paintAlertSign(painter, rect(), alertStyle_);
}

namespace {

constexpr int margin = 18;
constexpr int alertGap = 14;
constexpr int textGap = 8;

/// Where buttons stand in a row, the one that goes ahead stands at its end on some desktops and at its beginning on
/// others.
bool firstButtonComesLast(const QWidget& widget)
{
    const int layout = widget.style()->styleHint(QStyle::SH_DialogButtonLayout, nullptr, &widget);
    return layout == QDialogButtonBox::MacLayout || layout == QDialogButtonBox::GnomeLayout;
}

} // namespace

Alert::Alert(const AlertRequest& request, QWidget* parent)
    : QWidget(parent)
{
    setAccessibleName(request.messageText.isEmpty() ? request.informativeText : request.messageText);
    setAccessibleDescription(request.messageText.isEmpty() ? QString() : request.informativeText);

    auto* texts = new QVBoxLayout;
    texts->setSpacing(textGap);
    texts->addStretch();
    for (const bool bold : {true, false}) {
        const QString& text = bold ? request.messageText : request.informativeText;
        if (text.isEmpty())
            continue;
        auto* paragraph = new AlertText(text, bold, this);
        paragraph->setObjectName(bold ? u"messageText"_s : u"informativeText"_s);
        texts->addWidget(paragraph);
    }
    texts->addStretch();

    auto* upper = new QHBoxLayout;
    upper->setSpacing(alertGap);
    upper->addWidget(new AlertIcon(request.style, this), 0, Qt::AlignTop);
    upper->addLayout(texts, 1);

    auto* row = new QHBoxLayout;
    row->addStretch();
    addButtons(request, *row);

    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(margin, margin, margin, margin);
    whole->setSpacing(margin);
    whole->setSizeConstraint(QLayout::SetFixedSize);
    whole->addLayout(upper);
    whole->addLayout(row);
}

void Alert::addButtons(const AlertRequest& request, QHBoxLayout& row)
{
    QStringList titles = request.buttons;
    if (titles.isEmpty())
        titles = {QCoreApplication::translate("QPlatformTheme", "OK")}; // which Qt has in every language
    const int stretches = row.count();
    for (const QString& title : titles) {
        auto* button = new QPushButton(QString(title).replace('&'_L1, "&&"_L1), this);
        button->setAccessibleName(title);
        button->setAutoDefault(true);
        row.insertWidget(firstButtonComesLast(*this) ? stretches : -1, button);
        if (!buttons_.isEmpty())
            setTabOrder(buttons_.last(), button);
        buttons_.append(button);
    }
    buttons_.first()->setDefault(true);

    const int last = static_cast<int>(buttons_.size()) - 1;
    const int destructive = request.destructiveButton.value_or(-1);
    destructiveButton_ = buttons_.value(destructive);
    const int harmless = destructive == last && last > 0 ? last - 1 : last;
    escapeButton_ = buttons_.value(request.escapeButton.value_or(harmless), buttons_.last());
    tintDestructiveButton();
}

int Alert::responseOf(const QAbstractButton* button) const
{
    for (int place = 0; place < buttons_.size(); ++place)
        if (buttons_[place] == button)
            return alertFirstButtonReturn + place;
    Q_UNREACHABLE();
}

void Alert::tintDestructiveButton()
{
    if (!destructiveButton_)
        return;
    constexpr int middle = 128;
    const bool dark = palette().color(QPalette::Button).lightness() < middle;
    QPalette own;
    own.setColor(QPalette::ButtonText, dark ? QColor(0xff, 0xb9, 0xb3) : QColor(0xc8, 0x10, 0x22));
    destructiveButton_->setPalette(own);
}

void Alert::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        tintDestructiveButton();
}

void Alert::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Cancel))
        escapeButton_->click();
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        buttons_.first()->click();
    else
        QWidget::keyPressEvent(event);
}

void Alert::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    buttons_.first()->setFocus();
    QAccessibleEvent appeared(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&appeared);
}

bool bringModalWindowToFront()
{
    QWidget* modal = QApplication::activeModalWidget();
    if (modal) {
        openAnew(*modal);
        bringToFront(*modal);
    }
    return modal;
}

void letClicksThrough(QWidget& window)
{
    QWindow* modal = QGuiApplication::modalWindow();
    if (!modal->isVisible()) // it blocks others until it is all gone
        return;
    // Qt blocks no window that belongs to the modal one. Window systems are told of that when a window comes up, and
    // this one is up.
    QWindow* own = window.windowHandle();
    own->setTransientParent(modal);
    // Under Wayland Qt closes what belongs to a window that goes.
    QObject::connect(
        modal, &QWindow::visibleChanged, own, [own] { own->setTransientParent(nullptr); }, Qt::SingleShotConnection);
}

AlertWindow::AlertWindow(const AlertRequest& request)
    : QDialog(nullptr, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint |
                           Qt::WindowStaysOnTopHint)
    , alert_(new Alert(request, this))
{
    setAccessibleRole(*this, QAccessible::AlertMessage);
    setWindowTitle(QGuiApplication::applicationDisplayName());
    setAccessibleName(alert_->accessibleName());
    setWindowModality(Qt::ApplicationModal);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(alert_);
    for (const QPushButton* button : alert_->buttons())
        connect(button, &QPushButton::clicked, this, [this, button] { done(alert_->responseOf(button)); });
}

void AlertWindow::beginModal(std::function<void(int response)> answer)
{
    connect(
        this, &QDialog::finished, this,
        [answer = std::move(answer)](int response) {
            if (answer)
                answer(response);
        },
        Qt::SingleShotConnection);
    show();
    bringToFront(*this);
}

void AlertWindow::reject()
{
    alert_->escapeButton()->click();
}

void AlertWindow::closeEvent(QCloseEvent* event)
{
    // The program's end closes every window too, by an event that is not spontaneous: it answers nothing for the user.
    if (event->spontaneous())
        QDialog::closeEvent(event);
}

void ModalAlertPresenter::present(const AlertRequest& request, std::function<void(int response)> answer)
{
    alerts_.push_back({request, std::move(answer)});
    if (window_)
        return;
    keyboardOwner_ = QApplication::activeWindow();
    showFirst();
}

void ModalAlertPresenter::showFirst()
{
    window_ = std::make_unique<AlertWindow>(alerts_.front().request);
    window_->beginModal([this](int response) { finish(response); });
}

void ModalAlertPresenter::finish(int response)
{
    const auto answer = std::move(alerts_.front().answer);
    alerts_.pop_front();
    window_.release()->deleteLater(); // it is the window that calls
    if (!alerts_.empty())
        showFirst();
    else if (keyboardOwner_ && keyboardOwner_->isVisible())
        keyboardOwner_->activateWindow(); // not every window manager does
    if (answer)                           // comes last: it may end the presenter
        answer(response);
}

} // namespace quillon
