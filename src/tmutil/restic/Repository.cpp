#include "Repository.h"

#include "Destination.h"
#include "Failure.h"
#include "Paths.h"
#include "Restic.h"
#include "ResticOutput.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUuid>

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <iterator>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace quillon {

using namespace Qt::StringLiterals;

std::optional<Repository> Repository::open(const Destination& destination, const Folders& folders)
{
    if (destination.isNetwork())
        return Repository(destination, NetworkAccess::load(folders, destination.id));
    auto folder = RepositoryFolder::open(destination);
    return folder ? std::optional(Repository(std::move(*folder))) : std::nullopt;
}

Repository::Repository(RepositoryFolder folder)
    : destination_(folder.destination())
    , folder_(std::move(folder))
{
}

Repository::Repository(Destination destination, NetworkAccess access)
    : destination_(std::move(destination))
    , access_(std::move(access))
{
}

void Repository::requireWritable() const
{
    if (folder_)
        folder_->requireWritable();
}

void Repository::requireConfig() const
{
    if (folder_)
        folder_->requireConfig();
}

namespace {

enum class PackState { Missing, Sound, Damaged };

/// A file of data is named after the SHA-256 of its contents.
PackState stateOf(int folder, const QByteArray& name, const QByteArray& identifier)
{
    const int file = openat(folder, name.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (file < 0)
        return PackState::Missing;
    QCryptographicHash hash(QCryptographicHash::Sha256);
    std::array<char, std::size_t{64} * 1024> buffer{};
    ssize_t count = 0;
    while ((count = read(file, buffer.data(), buffer.size())) > 0)
        hash.addData(QByteArrayView(buffer.data(), count));
    close(file);
    return count == 0 && hash.result().toHex() == identifier ? PackState::Sound : PackState::Damaged;
}

/// The same of a file that only restic can read, which gives its contents as they are.
bool isDamagedPack(const Restic& restic, const QString& pack)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    const auto outcome = restic.readInPieces().run({u"cat"_s, u"pack"_s, pack, u"--no-lock"_s, u"--no-cache"_s},
                                                   [&hash](const QByteArray& piece) { hash.addData(piece); });
    return outcome.exitStatus == 0 && hash.result().toHex() != pack.toLatin1();
}

bool isUnknownCommand(const ResticOutcome& outcome)
{
    return outcome.exitStatus != 0 && outcome.errorText.contains("unknown command"_L1);
}

} // namespace

QStringList damagedPacks(const Repository& repository, const Restic& restic, const QStringList& packs)
{
    QStringList damaged;
    if (const RepositoryFolder* const folder = repository.folder()) {
        std::ranges::copy_if(packs, std::back_inserter(damaged), [folder](const QString& pack) {
            const QByteArray identifier = pack.toLatin1();
            return stateOf(folder->descriptor(), "data/" + identifier.left(2) + '/' + identifier, identifier) ==
                   PackState::Damaged;
        });
    } else if (!packs.isEmpty()) {
        const auto there = restic.run({u"list"_s, u"packs"_s, u"--no-lock"_s}); // what is missing is tried for long
        std::ranges::copy_if(packs, std::back_inserter(damaged), [&](const QString& pack) {
            return there.output.contains(pack.toLatin1()) && isDamagedPack(restic, pack);
        });
    }
    return damaged;
}

bool holdsSnapshot(const Repository& repository, const Restic& restic, const QString& identifier)
{
    if (const RepositoryFolder* const folder = repository.folder())
        return std::ranges::any_of(folder->namesIn("snapshots"), [&](const QByteArray& name) {
            return name.startsWith(identifier.toLatin1()) &&
                   stateOf(folder->descriptor(), "snapshots/" + name, name) == PackState::Sound;
        });
    const auto outcome = restic.run({u"cat"_s, u"snapshot"_s, identifier, u"--no-lock"_s, u"--no-cache"_s});
    if (outcome.exitStatus != 0 && outcome.diagnosis().problem != ResticProblem::Unknown)
        throw outcome.failure();
    return outcome.exitStatus == 0;
}

DamagedRecords putAsideDamagedRecords(const Repository& repository, const Restic& restic)
{
    const RepositoryFolder* const folder = repository.folder();
    DamagedRecords damaged;
    if (folder == nullptr) {
        for (const QString& identifier : unreadableSnapshots(restic))
            damaged.left.append("snapshots/"_L1 + identifier);
        return damaged;
    }
    for (const QByteArray& name : folder->namesIn("snapshots")) {
        if (stateOf(folder->descriptor(), "snapshots/" + name, name) != PackState::Damaged)
            continue;
        mkdirat(folder->descriptor(), "damaged", S_IRWXU);
        if (renameat(folder->descriptor(), ("snapshots/" + name).constData(), folder->descriptor(),
                     ("damaged/" + name).constData()) == 0)
            ++damaged.putAside;
    }
    return damaged;
}

void repairRepository(const Repository& repository, const QStringList& packs, const Restic& restic)
{
    // restic 0.16 and later save what they can of a file and leave a copy of it in the repository's folder. Where that
    // cannot be done the file stays: without it, older backups would lose also what is sound in it.
    if (const QStringList damaged = damagedPacks(repository, restic, packs); !damaged.isEmpty()) {
        const QStringList command = QStringList{u"repair"_s, u"packs"_s} + damaged;
        auto saved = restic.runUnlocking(command);
        if (saved.errorText.contains("RESTIC_FEATURES=repair-packs-v1"_L1)) // 0.16 asks for it; 0.17 would refuse it
            saved = restic.withFeature(u"repair-packs-v1"_s).runUnlocking(command);
        if (saved.exitStatus != 0 && saved.diagnosis().problem != ResticProblem::Unknown)
            throw saved.failure(); // a full disk, say, which passes
    }
    auto outcome = restic.runUnlocking({u"repair"_s, u"index"_s});
    if (isUnknownCommand(outcome))
        outcome = restic.runUnlocking({u"rebuild-index"_s});
    outcome.require();
}

namespace {

// restic notes a user with each key.
constexpr QLatin1StringView recoveryUser{"quillon-recovery"};

void addKey(const Restic& restic, const QString& passwordFile, const QString& user)
{
    restic.runUnlocking({u"key"_s, u"add"_s, u"--new-password-file"_s, passwordFile, u"--user"_s, user}).require();
}

QJsonArray keyList(const Restic& restic)
{
    const auto outcome = restic.runUnlocking({u"key"_s, u"list"_s, u"--json"_s, u"--no-lock"_s});
    outcome.require();
    return QJsonDocument::fromJson(outcome.output).array();
}

/// Versions of restic print more or less of it, and take any of that.
QString identifierOf(const QJsonValue& key)
{
    constexpr qsizetype length = 8;
    return key["id"_L1].toString().left(length);
}

/// Of the key that opens the repository for that call of restic.
QString identifierInUse(const Restic& restic)
{
    for (const QJsonValue key : keyList(restic)) {
        if (key["current"_L1].toBool())
            return identifierOf(key);
    }
    return {};
}

bool opens(const Restic& restic)
{
    const auto outcome = restic.run({u"cat"_s, u"config"_s, u"--no-lock"_s});
    if (outcome.exitStatus != 0 && outcome.diagnosis().problem != ResticProblem::WrongKey)
        outcome.require();
    return outcome.exitStatus == 0;
}

} // namespace

SecretFile::SecretFile(const QString& secret)
    : descriptor_(memfd_create("secret", MFD_CLOEXEC))
{
    const QByteArray line = secret.toUtf8() + '\n';
    if (descriptor_ >= 0 && write(descriptor_, line.constData(), static_cast<size_t>(line.size())) == line.size())
        return;
    const QString reason = qt_error_string(errno);
    close(descriptor_);
    throw Failure(ExitStatus::CannotWrite, u"The key cannot be given to restic: %1."_s.arg(reason));
}

SecretFile::~SecretFile()
{
    close(descriptor_);
}

QString SecretFile::path() const
{
    return u"/proc/%1/fd/%2"_s.arg(getpid()).arg(descriptor_);
}

NewRepository makeRepository(const Destination& destination, const Folders& folders, const StopRequest& stop)
{
    Restic::executable(); // without one nothing is to be left on the disk
    Repository fresh(RepositoryFolder::makeBeside(destination));
    NewRepository made{
        .repository = std::nullopt, .outcome = Restic(fresh, folders, &stop).run({u"init"_s}), .refusal = {}};
    if (made.outcome.exitStatus == 0 && !stop.isMade()) {
        made.refusal = fresh.folder()->moveIntoPlace().value_or(QString());
        if (made.refusal.isEmpty()) {
            made.repository.emplace(std::move(fresh));
            return made;
        }
    }
    fresh.folder()->remove();
    return made;
}

void makeRepository(const Repository& place, const Folders& folders, const StopRequest& stop)
{
    Restic(place, folders, &stop).run({u"init"_s}).require();
}

bool isOpenedByKey(const Destination& destination, const Folders& folders)
{
    const auto repository = Repository::open(destination, folders);
    try {
        return !repository || opens(Restic(*repository, folders, nullptr));
    } catch (const Failure& failure) {
        return failure.status() != ExitStatus::WrongKey;
    }
}

QStringList recoveryKeys(const Restic& restic)
{
    QStringList identifiers;
    for (const QJsonValue key : keyList(restic)) {
        if (key["userName"_L1].toString() == recoveryUser)
            identifiers.append(identifierOf(key));
    }
    return identifiers;
}

RecoveryKey addRecoveryKey(const Restic& restic, const QStringList& older)
{
    RecoveryKey made{.key = makeRecoveryKey(), .identifier = {}};
    addKey(restic, SecretFile(made.key).path(), recoveryUser);
    QStringList added = recoveryKeys(restic);
    added.removeIf([&older](const QString& identifier) { return older.contains(identifier); });
    made.identifier = added.value(0);
    return made;
}

void removeRecoveryKeys(const Restic& restic, const QStringList& identifiers)
{
    for (const QString& identifier : identifiers)
        restic.runUnlocking({u"key"_s, u"remove"_s, identifier}).require();
}

std::vector<Repository> repositoriesAt(const QString& path)
{
    const QString canonical = QFileInfo(path).canonicalFilePath();
    if (canonical.isEmpty())
        return {};
    const QString name = QFileInfo(canonical).fileName();
    std::vector<Destination> named;
    for (const QString& id : QDir(Destination::backupFolder(canonical)).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        named.push_back({id, name, canonical});
    const QString inside = QFileInfo(canonical).path();
    if (QFileInfo(inside).fileName() == QFileInfo(Destination::backupFolder(u"/"_s)).fileName())
        named.push_back({name, QFileInfo(QFileInfo(inside).path()).fileName(), QFileInfo(inside).path()});
    else
        named.push_back({QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper(), name, canonical, true});
    std::vector<Repository> found;
    for (const Destination& destination : named) {
        auto folder = RepositoryFolder::open(destination);
        if (folder && folder->hasConfig())
            found.emplace_back(std::move(*folder));
    }
    return found;
}

Destination takeUpRepository(const std::vector<Repository>& candidates, const QString& path, const QString& passphrase,
                             const Folders& folders, const StopRequest& stop)
{
    if (candidates.empty())
        throw Failure(ExitStatus::NoBackup, u"There are no backups of yours at \"%1\"."_s.arg(path));
    if (passphrase.isEmpty())
        throw Failure(ExitStatus::WrongKey, u"Nothing was given that could open the backups."_s);
    const QString recoveryKey = recoveryKeyFrom(passphrase);
    const SecretFile secret(recoveryKey.isEmpty() ? passphrase : recoveryKey);
    const KeyStore keys(folders.configuration);
    for (const Repository& repository : candidates) {
        const Destination& destination = repository.destination();
        const Restic byPassphrase(repository, folders, &stop, secret.path());
        if (!opens(byPassphrase))
            continue;
        keys.setKeptRecoveryKey(destination.id, identifierInUse(byPassphrase)); // it has been typed
        if (keys.contains(destination.id) && opens(Restic(repository, folders, &stop)))
            return destination;
        QString key = recoveryKey.isEmpty() ? passphrase : recoveryKey;
        if (repository.isWritable()) { // else to restore is all that can be done
            key = KeyStore::makeKey();
            addKey(byPassphrase, SecretFile(key).path(), u"quillon"_s);
        }
        keys.store(destination.id, key);
        return destination;
    }
    throw Failure(ExitStatus::WrongKey, u"That opens none of the backups at \"%1\"."_s.arg(path));
}

} // namespace quillon
