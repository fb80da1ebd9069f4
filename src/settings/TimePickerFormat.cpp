#include "TimePickerFormat.h"

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

QString fieldFormat(QChar field, qsizetype width)
{
    switch (field.unicode()) {
    case u'h':
    case u'K':
        return QString(width, u'h');
    case u'H':
    case u'k':
        return QString(width, u'H');
    case u'm':
        return u"mm"_s;
    case u'a':
    case u'b':
    case u'B':
        return u"Ap"_s; // as it is written in the language
    default:
        return {};
    }
}

bool isField(QChar character)
{
    return (character >= u'a' && character <= u'z') || (character >= u'A' && character <= u'Z');
}

} // namespace

QString timePickerFormat(const QString& pattern)
{
    QString format;
    bool quoted = false;
    for (qsizetype place = 0; place < pattern.size();) {
        const QChar character = pattern[place];
        qsizetype end = place + 1;
        if (character == u'\'')
            quoted = !quoted;
        if (!quoted && isField(character)) {
            while (end < pattern.size() && pattern[end] == character)
                ++end;
            format += fieldFormat(character, end - place);
        } else {
            // Nobody types a narrow no-break space.
            format += character.isSpace() ? QChar(u' ') : character;
        }
        place = end;
    }
    return format.trimmed();
}

} // namespace quillon
