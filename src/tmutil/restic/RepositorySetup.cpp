#include "RepositorySetup.h"

#include "Failure.h"
#include "KeyStore.h"
#include "StopRequest.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUuid>

#include <cerrno>
#include <sys/mman.h>
#include <unistd.h>
#include <vector>

namespace quillon {

using namespace Qt::StringLiterals;

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
