#include "ResticLocks.h"

#include "RepositoryFolder.h"
#include "Restic.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSysInfo>

#include <cerrno>
#include <chrono>
#include <csignal>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

// A lock that lives is written anew every five minutes (restic, "Locks"); restic gives up on it after half an hour.
constexpr auto lifetime = 30min;

} // namespace

std::optional<ResticLock> ResticLock::fromJson(const QByteArray& text)
{
    const QJsonObject lock = QJsonDocument::fromJson(text).object();
    const QDateTime time = QDateTime::fromString(lock.value("time"_L1).toString(), Qt::ISODateWithMs);
    if (!time.isValid())
        return std::nullopt;
    return ResticLock{time, lock.value("hostname"_L1).toString(), lock.value("pid"_L1).toInt()};
}

ProcessKind processKind(pid_t process)
{
    if (process <= 0 || (::kill(process, 0) != 0 && errno == ESRCH))
        return ProcessKind::None;
    QFile name(u"/proc/%1/comm"_s.arg(process));
    if (!name.open(QIODevice::ReadOnly))
        return ProcessKind::Unknown;
    return name.readAll().contains("restic") ? ProcessKind::Restic : ProcessKind::Other;
}

bool isStale(const ResticLock& lock, const QString& host, ProcessKind kind, const QDateTime& now)
{
    const bool isOld = lock.time.addDuration(lifetime) < now;
    if (lock.host != host || kind == ProcessKind::Unknown)
        return isOld;
    return kind != ProcessKind::Restic;
}

void removeStaleLocks(const RepositoryFolder& repository, const Restic& restic)
{
    const QDateTime now = QDateTime::currentDateTimeUtc();
    for (const QByteArray& name : repository.namesIn("locks")) {
        const auto outcome = restic.run({u"cat"_s, u"lock"_s, QString::fromLatin1(name), u"--no-lock"_s});
        const auto lock = ResticLock::fromJson(outcome.output);
        if (lock && isStale(*lock, QSysInfo::machineHostName(), processKind(lock->process), now))
            repository.removeLock(name);
    }
}

} // namespace quillon
