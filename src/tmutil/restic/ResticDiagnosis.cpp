#include "ResticDiagnosis.h"

#include "RepositoryFolder.h"
#include "Restic.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>
#include <QSysInfo>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

struct Sign {
    QLatin1StringView words;
    bool endsLine; ///< the words are an errno text, which ends its line; a file name may hold them anywhere else
    ResticProblem problem;
};

// A wrong key comes first: what goes wrong before a repository is open is said in the same breath as other words.
constexpr std::array signs{
    Sign{"wrong password or no key found"_L1, false, ResticProblem::WrongKey},
    Sign{"maximum number of keys reached"_L1, false, ResticProblem::WrongKey}, // none of those that were tried
    Sign{"repository is already locked"_L1, false, ResticProblem::Locked},
    Sign{"Is there a repository at the following location?"_L1, false, ResticProblem::NoRepository},
    Sign{"no space left on device"_L1, true, ResticProblem::NoSpace},
    Sign{"disk quota exceeded"_L1, true, ResticProblem::NoSpace},
    Sign{"permission denied"_L1, true, ResticProblem::NoPermission},
    Sign{"read-only file system"_L1, true, ResticProblem::NoPermission},
    Sign{"operation not permitted"_L1, true, ResticProblem::NoPermission},
};

bool shows(const QString& line, const Sign& sign)
{
    return sign.endsLine ? line.endsWith(sign.words) : line.contains(sign.words);
}

/// File names may hold anything, and what is not a character of XML could not be remembered.
QString printable(QString text)
{
    for (QChar& character : text) {
        if (!character.isPrint() && !character.isSurrogate())
            character = QChar::ReplacementCharacter;
    }
    return text;
}

QString ownWords(const QStringList& lines, int exitStatus)
{
    constexpr auto fatal = "Fatal: "_L1;
    for (const QString& line : lines) {
        if (line.startsWith(fatal))
            return u"restic: "_s + printable(line.mid(fatal.size()));
    }
    return lines.isEmpty() ? u"restic failed with exit status %1."_s.arg(exitStatus)
                           : u"restic: "_s + printable(lines.first());
}

QString sentence(ResticProblem problem)
{
    switch (problem) {
    case ResticProblem::Locked:
        return u"Another process is using the backups on this disk."_s;
    case ResticProblem::NoRepository:
        return u"The backups on this disk are missing or damaged."_s;
    case ResticProblem::WrongKey:
        return u"The key does not open the backups on this disk."_s;
    case ResticProblem::NoSpace:
        return u"The backup disk is full."_s;
    case ResticProblem::NoPermission:
        return u"The backup disk cannot be written to."_s;
    case ResticProblem::NoWorkSpace:
        return u"restic's temporary files cannot be written: the disk of the home folder is full, or its cache folder "
               "is not writable."_s;
    case ResticProblem::DiskGone:
        return u"The backup disk was taken away."_s;
    case ResticProblem::Unknown:
        break;
    }
    return {};
}

} // namespace

QString ResticDiagnosis::cause() const
{
    switch (problem) {
    case ResticProblem::Locked:
        return u"Locked"_s;
    case ResticProblem::NoRepository:
        return u"NoRepository"_s;
    case ResticProblem::WrongKey:
        return u"WrongKey"_s;
    case ResticProblem::NoSpace:
        return u"NoSpace"_s;
    case ResticProblem::NoPermission:
        return u"NoPermission"_s;
    case ResticProblem::NoWorkSpace:
        return u"NoWorkSpace"_s;
    case ResticProblem::DiskGone:
        return u"DestinationMissing"_s;
    case ResticProblem::Unknown:
        break;
    }
    return u"Unknown"_s;
}

ResticDiagnosis ResticDiagnosis::of(ResticProblem problem)
{
    return {problem, sentence(problem)};
}

ResticDiagnosis ResticDiagnosis::of(const QString& errorText, int exitStatus, const QString& workFolder)
{
    static constexpr std::array statuses{std::pair{10, ResticProblem::NoRepository},
                                         std::pair{11, ResticProblem::Locked}, std::pair{12, ResticProblem::WrongKey}};
    for (const auto& [status, problem] : statuses) {
        if (exitStatus == status)
            return of(problem);
    }
    QStringList lines;
    for (const QString& line : errorText.split(u'\n')) {
        if (const QString trimmed = line.trimmed(); !trimmed.isEmpty())
            lines.append(trimmed);
    }
    for (const Sign& sign : signs) {
        if (const auto line = std::ranges::find_if(lines, [&](const QString& one) { return shows(one, sign); });
            line != lines.end()) {
            const bool ownFiles = sign.endsLine && !workFolder.isEmpty() && line->contains(workFolder);
            return of(ownFiles ? ResticProblem::NoWorkSpace : sign.problem);
        }
    }
    return {ResticProblem::Unknown, ownWords(lines, exitStatus)};
}

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
