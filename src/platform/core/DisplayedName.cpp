#include "DisplayedName.h"

#include "TextComparison.h"

#include <QList>

namespace quillon {

namespace {

// In code points. What a menu has room for; tools that make file systems allow a fifth of it at most.
constexpr qsizetype longest = 80;

/// Unicode, "Bidirectional Character Types": the explicit formatting characters, and the implicit marks.
bool turnsDirection(char32_t character)
{
    return character == 0x061C || character == 0x200E || character == 0x200F ||
           (character >= 0x202A && character <= 0x202E) || (character >= 0x2066 && character <= 0x2069);
}

bool isSpace(char32_t character)
{
    return QChar::isSpace(character); // line and paragraph separators, too
}

bool isCommand(char32_t character)
{
    return QChar::category(character) == QChar::Other_Control;
}

} // namespace

QString displayedName(const QString& name)
{
    QList<char32_t> shown;
    const auto decoded = removePercentEncoding(name);
    const auto characters = (decoded && !decoded->isEmpty() ? *decoded : name).toUcs4();
    for (const char32_t character : characters) {
        if (isSpace(character))
            shown.append(U' ');
        else if (!isCommand(character) && !turnsDirection(character))
            shown.append(character);
    }
    if (shown.size() > longest) {
        constexpr qsizetype end = longest / 3;
        shown = shown.first(longest - end - 1) + QList<char32_t>{U'\u2026'} + shown.last(end);
    }
    return QString::fromUcs4(shown.constData(), shown.size());
}

} // namespace quillon
