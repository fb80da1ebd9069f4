#include "Accessibility.h"

#include <QAbstractButton>
#include <QAccessibleWidget>
#include <QFontInfo>
#include <QStringList>
#include <QStyle>
#include <QVariant>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// WCAG 2.1, "relative luminance".
double luminance(const QColor& color)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

} // namespace

double contrast(const QColor& one, const QColor& other)
{
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

bool isDark(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

QColor systemBlueColor(const QPalette& palette)
{
    return isDark(palette) ? QColor(0x5aaaff) : QColor(0x0058d0);
}

QFont withColorEmoji(QFont font)
{
    font.setFamilies(
        QStringList{QFontInfo(font).family(), u"Noto Color Emoji"_s}); // what a system does not have is passed over
    return font;
}

namespace {

constexpr auto roleProperty = "accessibleRole";

class WidgetWithRole final : public QAccessibleWidget {
public:
    using QAccessibleWidget::QAccessibleWidget;

    QAccessible::Role role() const override { return object()->property(roleProperty).value<QAccessible::Role>(); }
    int childCount() const override { return role() == QAccessible::StaticText ? 0 : QAccessibleWidget::childCount(); }
};

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object)
{
    auto* widget = qobject_cast<QWidget*>(object);
    return widget && widget->property(roleProperty).isValid() ? new WidgetWithRole(widget) : nullptr; // Qt owns it
}

} // namespace

void setAccessibleRole(QWidget& widget, QAccessible::Role role)
{
    QAccessible::installFactory(makeInterface); // once, however often it is called
    widget.setProperty(roleProperty, QVariant::fromValue(role));
}

namespace {

bool isBasicLatinLetter(QChar letter)
{
    return (letter >= u'a' && letter <= u'z') || (letter >= u'A' && letter <= u'Z');
}

/// Hands out every letter once.
class FreeLetters {
public:
    bool isFree(QChar letter) const { return isBasicLatinLetter(letter) && letters_.contains(letter.toUpper()); }
    void take(QChar letter) { letters_.remove(letter.toUpper()); }
    QString first() const { return letters_.left(1); }

private:
    QString letters_ = QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZ");
};

/// Where in the title the letter stands that it gets; -1 for nowhere.
qsizetype mnemonicPlace(const QString& title, const FreeLetters& letters)
{
    qsizetype inWord = -1;
    for (qsizetype place = 0; place < title.size(); ++place) {
        if (!letters.isFree(title[place]))
            continue;
        if (place == 0 || title[place - 1].isSpace())
            return place;
        if (inWord < 0)
            inWord = place;
    }
    return inWord;
}

QString withMnemonicAt(const QString& title, qsizetype place)
{
    const auto literal = [](QString part) { return part.replace(u'&', QStringLiteral("&&")); };
    return literal(title.left(place)) + u'&' + literal(title.mid(place));
}

} // namespace

QStringList titlesWithMnemonics(const QStringList& titles)
{
    FreeLetters letters;
    QStringList marked;
    for (QString title : titles) {
        qsizetype place = mnemonicPlace(title, letters);
        if (place < 0 && !letters.first().isEmpty()) {
            title += QStringLiteral("(%1)").arg(letters.first());
            place = title.size() - 2;
        }
        if (place >= 0) {
            letters.take(title[place]);
            marked.append(withMnemonicAt(title, place));
        } else {
            marked.append(title.replace(u'&', QStringLiteral("&&")));
        }
    }
    return marked;
}

void assignMnemonics(const QList<QAbstractButton*>& buttons)
{
    QStringList titles;
    for (const auto* button : buttons)
        titles.append(button->text());
    const bool platformHasThem = std::all_of(buttons.begin(), buttons.end(), [](const QAbstractButton* button) {
        return button->style()->styleHint(QStyle::SH_UnderlineShortcut, nullptr, button) != 0;
    });
    if (platformHasThem)
        titles = titlesWithMnemonics(titles);
    else
        titles.replaceInStrings(QStringLiteral("&"), QStringLiteral("&&"));
    for (qsizetype place = 0; place < buttons.size(); ++place)
        buttons[place]->setText(titles[place]);
}

} // namespace quillon
