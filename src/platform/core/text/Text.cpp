#include "Text.h"

#include <QByteArray>
#include <QList>

#include <algorithm>

namespace quillon {

namespace {

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

/// Takes the run of digits off the front of a text; without its leading zeros.
QStringView takeNumber(QStringView& text)
{
    const auto* const end = std::find_if_not(text.begin(), text.end(), isDigit);
    const auto* const start = std::find_if(text.begin(), end, [](QChar c) { return c != u'0'; });
    const QStringView number(start, end);
    text = text.sliced(end - text.begin());
    return number;
}

char32_t takeCodePoint(QStringView& text)
{
    const bool pair = text.size() > 1 && text[0].isHighSurrogate() && text[1].isLowSurrogate();
    const char32_t point = pair ? QChar::surrogateToUcs4(text[0], text[1]) : text[0].unicode();
    text = text.sliced(pair ? 2 : 1);
    return point;
}

} // namespace

std::strong_ordering compareNumerically(QStringView a, QStringView b)
{
    while (!a.isEmpty() && !b.isEmpty()) {
        std::strong_ordering order = std::strong_ordering::equal;
        if (isDigit(a.front()) && isDigit(b.front())) {
            const QStringView x = takeNumber(a);
            const QStringView y = takeNumber(b);
            order = x.size() != y.size() ? x.size() <=> y.size() : x.compare(y) <=> 0;
        } else {
            order = takeCodePoint(a) <=> takeCodePoint(b);
        }
        if (order != std::strong_ordering::equal)
            return order;
    }
    return a.size() <=> b.size();
}

bool precedesByCodePoint(QStringView a, QStringView b)
{
    while (!a.isEmpty() && !b.isEmpty()) {
        const char32_t x = takeCodePoint(a);
        const char32_t y = takeCodePoint(b);
        if (x != y)
            return x < y;
    }
    return a.isEmpty() && !b.isEmpty();
}

std::optional<QString> removePercentEncoding(const QString& text)
{
    const QByteArray encoded = text.toUtf8();
    const auto isHexadecimal = [](char c) {
        return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
    };
    for (qsizetype at = encoded.indexOf('%'); at >= 0; at = encoded.indexOf('%', at + 3)) {
        if (at + 2 >= encoded.size() || !isHexadecimal(encoded[at + 1]) || !isHexadecimal(encoded[at + 2]))
            return std::nullopt;
    }
    return strictUtf8(QByteArray::fromPercentEncoding(encoded));
}

namespace {

constexpr qsizetype longestName = 80;
constexpr char32_t zeroWidthNonJoiner = 0x200C;
constexpr char32_t zeroWidthJoiner = 0x200D;

/// What stands in place of a character; 0 for nothing.
char32_t shownCharacter(char32_t character)
{
    switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return U' ';
    case QChar::Other_Format: // the two that scripts and emoji cannot do without move nothing
        return character == zeroWidthJoiner || character == zeroWidthNonJoiner ? character : 0;
    default:
        return character;
    }
}

QString onOneLine(const QString& text, qsizetype longest)
{
    QList<char32_t> characters;
    for (const char32_t character : text.toUcs4()) {
        if (const char32_t shown = shownCharacter(character); shown != 0)
            characters.append(shown);
    }
    if (characters.size() > longest)
        characters = characters.first(longest / 2) + QList<char32_t>{U'…'} + characters.last(longest / 2);
    return QString::fromUcs4(characters.constData(), characters.size());
}

} // namespace

QString shownText(const QString& text, qsizetype longest)
{
    return onOneLine(text, longest).trimmed();
}

QString shownLongText(const QString& text)
{
    constexpr qsizetype longest = 500;
    return shownText(text, longest);
}

QString displayedName(const QString& name)
{
    const auto decoded = removePercentEncoding(name);
    return onOneLine(decoded && !decoded->isEmpty() ? *decoded : name, longestName);
}

} // namespace quillon
