#include "Repository.h"

#include "Folders.h"
#include "Restic.h"
#include "Snapshot.h"

#include <QCryptographicHash>

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <iterator>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

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

} // namespace quillon
