#include "Destination.h"

#include "Failure.h"
#include "History.h"
#include "NetworkPlace.h"
#include "Paths.h"
#include "RepositoryFolder.h"
#include "ResticDiagnosis.h"
#include "Text.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QSaveFile>
#include <QStringList>
#include <QUuid>

#include <algorithm>
#include <array>

namespace quillon {

using namespace Qt::StringLiterals;

bool Destination::isNetwork() const
{
    return NetworkPlace::isUrl(path);
}

QString Destination::repository() const
{
    return bare || isNetwork() ? path : backupFolder(path) + u'/' + id;
}

bool Destination::isPresent() const
{
    return isNetwork() || RepositoryFolder::open(*this).has_value();
}

QString Destination::absence() const
{
    if (isNetwork())
        return u"The network place \"%1\" cannot be reached."_s.arg(path);
    if (const QString trap = RepositoryFolder::trap(*this); !trap.isEmpty())
        return u"\"%1\" is neither a file nor a folder, or is a link, and would keep these backups from being read. "
               "Whoever can change the disk has put it there. Remove it."_s.arg(shownLongText(trap));
    if (RepositoryFolder::contents(*this) == RepositoryFolder::Contents::Foreign)
        return u"\"%1\" is not yours, or leads elsewhere."_s.arg(repository());
    // An empty mount point, or none, stands for a disk that is not connected.
    if (bare || QDir(path).isEmpty())
        return u"The backup disk \"%1\" is not there."_s.arg(name);
    return u"The disk at \"%1\" has no backups of yours: it is another one, or has been erased. To begin anew on it, "
           "set it again with \"tmutil setdestination\"."_s.arg(path);
}

QString Destination::backupFolder(const QString& path)
{
    return (path.endsWith(u'/') ? path : path + u'/') + "Quillon.backups"_L1;
}

namespace {

void requireAny(const std::vector<Destination>& destinations)
{
    if (destinations.empty())
        throw Failure(ExitStatus::NoDestination,
                      u"No backup disk or network place is set. Set one with \"tmutil setdestination\"."_s);
}

void requirePresent(const std::vector<Destination>& present, const std::vector<Destination>& destinations)
{
    if (present.empty())
        throw Failure(ExitStatus::DestinationMissing, destinations.size() == 1
                                                          ? destinations.front().absence()
                                                          : u"None of the backup disks and network places is there."_s);
}

} // namespace

Destination namedDestination(const std::vector<Destination>& destinations, const QString& id)
{
    requireAny(destinations);
    const auto found = std::ranges::find_if(destinations, [&id](const Destination& destination) {
        return destination.id.compare(id, Qt::CaseInsensitive) == 0;
    });
    if (found == destinations.end())
        throw Failure(ExitStatus::UnknownDestination,
                      u"No backup disk or network place has the identifier \"%1\"."_s.arg(id));
    if (!found->isPresent())
        throw Failure(ExitStatus::DestinationMissing, found->absence());
    return *found;
}

Destination usualDestination(const std::vector<Destination>& destinations, const History& history,
                             const PresenceQuestion& presentOf)
{
    requireAny(destinations);
    auto others = destinations;
    const auto last = std::ranges::find(others, history.lastDestination(), &Destination::id);
    if (last != others.end()) {
        if (!presentOf({*last}).empty())
            return *last;
        others.erase(last);
    }
    const auto present = presentOf(others);
    requirePresent(present, destinations);
    return present.front();
}

Destination rotatedDestination(const std::vector<Destination>& destinations, const History& history,
                               const PresenceQuestion& presentOf)
{
    requireAny(destinations);
    const auto present = presentOf(destinations);
    requirePresent(present, destinations);
    // An invalid date, which stands for "never", is before every other.
    return *std::ranges::min_element(
        present, {}, [&history](const Destination& destination) { return history.lastBackup(destination.id); });
}

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
