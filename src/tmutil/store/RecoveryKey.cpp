#include "RecoveryKey.h"

#include <QRandomGenerator>
#include <QStringList>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

// Base 32 without I, L, O and U: Douglas Crockford, "Base 32".
constexpr QLatin1StringView alphabet{"0123456789ABCDEFGHJKMNPQRSTVWXYZ"};
constexpr qsizetype randomCharacters = 28;
constexpr qsizetype groupLength = 5;

/// Two characters that change when one is mistaken, or when two are exchanged.
QString checkOf(const QString& characters)
{
    constexpr int largestPrimeOfTenBits = 1021;
    int sum = 1;
    for (const QChar character : characters)
        sum = static_cast<int>((sum * 32 + alphabet.indexOf(character)) % largestPrimeOfTenBits);
    return QString(alphabet[sum / 32]) + alphabet[sum % 32];
}

QString inGroups(const QString& characters)
{
    QStringList groups;
    for (qsizetype at = 0; at < characters.size(); at += groupLength)
        groups.append(characters.mid(at, groupLength));
    return groups.join(u'-');
}

} // namespace

QString makeRecoveryKey()
{
    QString characters;
    while (characters.size() < randomCharacters)
        characters += alphabet[QRandomGenerator::system()->bounded(static_cast<int>(alphabet.size()))];
    return inGroups(characters + checkOf(characters));
}

QString recoveryKeyFrom(const QString& typed)
{
    QString characters;
    for (QChar character : typed.toUpper()) {
        if (character == u'O')
            character = u'0';
        else if (character == u'I' || character == u'L')
            character = u'1';
        if (alphabet.contains(character))
            characters += character;
        else if (character != u'-' && !character.isSpace())
            return {};
    }
    const QString random = characters.left(randomCharacters);
    return characters.size() == randomCharacters + 2 && characters.endsWith(checkOf(random)) ? inGroups(characters)
                                                                                             : QString();
}

} // namespace quillon
