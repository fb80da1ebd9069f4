#include "KeyStore.h"

#include "Failure.h"
#include "Folders.h"
#include "ResticDiagnosis.h"
#include "ShownText.h"

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QSaveFile>
#include <QStringList>
#include <QUuid>

#include <array>

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
        sum = static_cast<int>((qsizetype{32} * sum + alphabet.indexOf(character)) % largestPrimeOfTenBits);
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

namespace {

void writePrivateLine(const QString& path, const QString& text)
{
    const QByteArray line = text.toUtf8() + '\n';
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || !file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner) ||
        file.write(line) != line.size() || !file.commit())
        throw Failure(ExitStatus::CannotWrite,
                      u"The key file \"%1\" cannot be written: %2."_s.arg(path, file.errorString()));
}

} // namespace

KeyStore::KeyStore(const QString& configurationFolder)
    : folder_(configurationFolder + "/keys"_L1)
{
}

QString KeyStore::path(const QString& destinationId) const
{
    return folder_ + u'/' + destinationId + ".key"_L1;
}

bool KeyStore::contains(const QString& destinationId) const
{
    return QFileInfo(path(destinationId)).isFile(); // restic would wait for a pipe
}

void KeyStore::require(const Destination& destination) const
{
    const QString file = path(destination.id);
    const QString disk = shownText(destination.name);
    const QString cause = ResticDiagnosis::of(ResticProblem::WrongKey).cause();
    if (!contains(destination.id))
        throw Failure(
            ExitStatus::WrongKey,
            u"The key of the backups on \"%1\", \"%2\", is missing. Put it back, or take the backups up with their "
            "recovery key by \"tmutil adopt\"."_s.arg(disk, file),
            cause);
    if (!QFileInfo(file).isReadable())
        throw Failure(ExitStatus::WrongKey,
                      u"The key of the backups on \"%1\", \"%2\", cannot be read."_s.arg(disk, file), cause);
}

QString KeyStore::makeKey()
{
    std::array<quint32, 8> words{};
    QRandomGenerator::system()->fillRange(words.data(), words.size());
    return QString::fromLatin1(QByteArray(reinterpret_cast<const char*>(words.data()), sizeof words).toBase64());
}

void KeyStore::ensure(const QString& destinationId) const
{
    if (!contains(destinationId))
        store(destinationId, makeKey());
}

void KeyStore::store(const QString& destinationId, const QString& key) const
{
    needPrivateFolder(folder_);
    const QString aside = path(destinationId) + u'.' + QUuid::createUuid().toString(QUuid::Id128).left(8);
    if (contains(destinationId) && !QFile::copy(path(destinationId), aside))
        throw Failure(ExitStatus::CannotWrite, u"The key file \"%1\" cannot be written."_s.arg(aside));
    writePrivateLine(path(destinationId), key);
}

QString KeyStore::keptPath(const QString& destinationId) const
{
    return folder_ + u'/' + destinationId + ".recovery"_L1;
}

QString KeyStore::keptRecoveryKey(const QString& destinationId) const
{
    QFile file(keptPath(destinationId));
    constexpr qint64 longest = 100;
    return file.open(QIODevice::ReadOnly) ? QString::fromLatin1(file.readLine(longest)).trimmed() : QString();
}

void KeyStore::setKeptRecoveryKey(const QString& destinationId, const QString& identifier) const
{
    needPrivateFolder(folder_);
    writePrivateLine(keptPath(destinationId), identifier);
}

} // namespace quillon
