#include "ShownText.h"

#include "TextComparison.h"

#include <QList>

namespace quillon {

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
