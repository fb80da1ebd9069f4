#include "Alert.h"

#include "AlertIcon.h"
#include "AlertText.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int margin = 18;
constexpr int gap = 14;
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
    upper->setSpacing(gap);
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

} // namespace quillon
