#include "Restic.h"
#include "Verification.h"

#include <QCryptographicHash>

#include <algorithm>
#include <array>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

enum class PackState { Missing, Sound, Damaged };

/// A file of data is named after the SHA-256 of its contents.
PackState stateOf(int folder, const QByteArray& name, const QByteArray& identifier)
{
    const int file = openat(folder, name.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (file < 0)
        return PackState::Missing;
    QCryptographicHash hash(QCryptographicHash::Sha256);
    std::array<char, 64 * 1024> buffer{};
    ssize_t count = 0;
    while ((count = read(file, buffer.data(), buffer.size())) > 0)
        hash.addData(QByteArrayView(buffer.data(), count));
    close(file);
    return count == 0 && hash.result().toHex() == identifier ? PackState::Sound : PackState::Damaged;
}

bool isUnknownCommand(const ResticOutcome& outcome)
{
    return outcome.exitStatus != 0 && outcome.errorText.contains("unknown command"_L1);
}

} // namespace

QStringList damagedPacks(const RepositoryFolder& repository, const QStringList& packs)
{
    QStringList damaged;
    for (const QString& pack : packs) {
        const QByteArray identifier = pack.toLatin1();
        if (stateOf(repository.descriptor(), "data/" + identifier.left(2) + '/' + identifier, identifier) ==
            PackState::Damaged)
            damaged.append(pack);
    }
    return damaged;
}

bool holdsSnapshot(const RepositoryFolder& repository, const QString& identifier)
{
    return std::ranges::any_of(repository.namesIn("snapshots"), [&](const QByteArray& name) {
        return name.startsWith(identifier.toLatin1()) &&
               stateOf(repository.descriptor(), "snapshots/" + name, name) == PackState::Sound;
    });
}

qlonglong setAsideDamagedSnapshots(const RepositoryFolder& repository)
{
    qlonglong count = 0;
    for (const QByteArray& name : repository.namesIn("snapshots")) {
        if (stateOf(repository.descriptor(), "snapshots/" + name, name) != PackState::Damaged)
            continue;
        mkdirat(repository.descriptor(), "damaged", S_IRWXU);
        if (renameat(repository.descriptor(), ("snapshots/" + name).constData(), repository.descriptor(),
                     ("damaged/" + name).constData()) == 0)
            ++count;
    }
    return count;
}

void repairRepository(const RepositoryFolder& repository, const QStringList& packs, const Restic& restic)
{
    // restic 0.16 and later save what they can of a file and leave a copy of it in the repository's folder. Where that
    // cannot be done the file stays: without it, older backups would lose also what is sound in it.
    if (const QStringList damaged = damagedPacks(repository, packs); !damaged.isEmpty()) {
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
