#include "ResticDiagnosis.h"

#include "Repository.h"
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

// Of several the first counts: what keeps ssh from connecting ends restic's session with other words, and whoever
// tries again for a minute meets with more than one problem. Words of ssh(1), of Go's libraries "net", "crypto/x509"
// and "net/http", and of S3 ("Error responses").
constexpr std::array networkSigns{
    Sign{"REMOTE HOST IDENTIFICATION HAS CHANGED"_L1, false, ResticProblem::ChangedHostKey},
    Sign{"Host key verification failed"_L1, false, ResticProblem::UnknownHostKey},
    Sign{"x509: "_L1, false, ResticProblem::BadCertificate},
    Sign{"Permission denied ("_L1, false, ResticProblem::AccessDenied},
    Sign{"Too many authentication failures"_L1, false, ResticProblem::AccessDenied},
    Sign{"401 Unauthorized"_L1, false, ResticProblem::AccessDenied},
    Sign{"403 Forbidden"_L1, false, ResticProblem::AccessDenied},
    Sign{"Access Denied"_L1, false, ResticProblem::AccessDenied},
    Sign{"The AWS Access Key Id you provided does not exist"_L1, false, ResticProblem::AccessDenied},
    Sign{"The request signature we calculated does not match"_L1, false, ResticProblem::AccessDenied},
    Sign{"507 Insufficient Storage"_L1, false, ResticProblem::NoSpace},
    Sign{"unexpected HTTP response (5"_L1, false, ResticProblem::ServerFailed},
    Sign{"server response unexpected: 5"_L1, false, ResticProblem::ServerFailed},
    Sign{"no space left on device"_L1, true, ResticProblem::NoSpace},
    Sign{"disk quota exceeded"_L1, true, ResticProblem::NoSpace},
    Sign{"(SSH_FX_FAILURE)"_L1, true, ResticProblem::ServerFailed}, // what OpenSSH says of a full disk, too
    Sign{"unable to start the sftp session"_L1, false, ResticProblem::Unreachable},
    Sign{"kex_exchange_identification"_L1, false, ResticProblem::Unreachable},
    Sign{"during banner exchange"_L1, true, ResticProblem::Unreachable},
    Sign{"connection lost"_L1, true, ResticProblem::ConnectionLost},
    Sign{"ssh command exited"_L1, false, ResticProblem::ConnectionLost},
    Sign{"closed by remote host"_L1, false, ResticProblem::ConnectionLost},
    Sign{"unexpected EOF"_L1, true, ResticProblem::ConnectionLost},
    Sign{"connection reset by peer"_L1, true, ResticProblem::ConnectionLost},
    Sign{"broken pipe"_L1, true, ResticProblem::ConnectionLost},
    Sign{"Connection refused"_L1, true, ResticProblem::Unreachable},
    Sign{"connection refused"_L1, true, ResticProblem::Unreachable},
    Sign{"timed out"_L1, true, ResticProblem::Unreachable},
    Sign{"i/o timeout"_L1, true, ResticProblem::Unreachable},
    Sign{"Could not resolve hostname"_L1, false, ResticProblem::Unreachable},
    Sign{"no such host"_L1, true, ResticProblem::Unreachable},
    Sign{"server misbehaving"_L1, true, ResticProblem::Unreachable},
    Sign{"etwork is unreachable"_L1, true, ResticProblem::Unreachable},
    Sign{"o route to host"_L1, true, ResticProblem::Unreachable},
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

QStringList linesOf(const QString& text)
{
    QStringList lines;
    for (const QString& line : text.split(u'\n')) {
        if (const QString trimmed = line.trimmed(); !trimmed.isEmpty())
            lines.append(trimmed);
    }
    return lines;
}

QStringList::const_iterator findSign(const QStringList& lines, const Sign& sign)
{
    return std::ranges::find_if(lines, [&](const QString& line) { return shows(line, sign); });
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
        return u"Another process is using these backups."_s;
    case ResticProblem::NoRepository:
        return u"The backups are missing or damaged."_s;
    case ResticProblem::WrongKey:
        return u"The key does not open the backups."_s;
    case ResticProblem::NoSpace:
        return u"There is no room left for backups."_s;
    case ResticProblem::NoPermission:
        return u"The backups cannot be written to."_s;
    case ResticProblem::NoWorkSpace:
        return u"restic's temporary files cannot be written: the disk of the home folder is full, or its cache folder "
               "is not writable."_s;
    case ResticProblem::Unreachable:
        return u"The network place cannot be reached."_s;
    case ResticProblem::ConnectionLost:
        return u"The connection to the network place was lost. The next backup goes on from what was sent."_s;
    case ResticProblem::AccessDenied:
        return u"The server does not let this user in: look at the user, the key and the password."_s;
    case ResticProblem::UnknownHostKey:
        return u"The server's host key is not known. Find out whether it is the server's, and accept it with \"tmutil "
               "setdestination -a --accept-host-key FINGERPRINT URL\"."_s;
    case ResticProblem::ChangedHostKey:
        return u"The server has another host key than before, or is another server. Only if you know why, accept it "
               "with \"tmutil setdestination -a --accept-host-key FINGERPRINT URL\"."_s;
    case ResticProblem::BadCertificate:
        return u"The server's certificate is not to be trusted. If it is the server's own, name it as \"ca-file\" in "
               "the credentials."_s;
    case ResticProblem::ServerFailed:
        return u"The server has failed with an error of its own; it may be full."_s;
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
    case ResticProblem::ConnectionLost:
        return u"ConnectionLost"_s;
    case ResticProblem::AccessDenied:
        return u"AccessDenied"_s;
    case ResticProblem::UnknownHostKey:
        return u"UnknownHostKey"_s;
    case ResticProblem::ChangedHostKey:
        return u"ChangedHostKey"_s;
    case ResticProblem::BadCertificate:
        return u"BadCertificate"_s;
    case ResticProblem::ServerFailed:
        return u"ServerFailed"_s;
    case ResticProblem::Unreachable:
    case ResticProblem::DiskGone:
        return u"DestinationMissing"_s;
    case ResticProblem::Unknown:
        break;
    }
    return u"Unknown"_s;
}

Failure ResticDiagnosis::failure() const
{
    const auto status = [this] {
        switch (problem) {
        case ResticProblem::WrongKey:
            return ExitStatus::WrongKey;
        case ResticProblem::Unreachable:
            return ExitStatus::DestinationMissing;
        case ResticProblem::AccessDenied:
            return ExitStatus::AccessDenied;
        case ResticProblem::UnknownHostKey:
        case ResticProblem::ChangedHostKey:
        case ResticProblem::BadCertificate:
            return ExitStatus::Untrusted;
        default:
            return ExitStatus::Failed;
        }
    };
    return {status(), description, cause()};
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
    const QStringList lines = linesOf(errorText);
    for (const Sign& sign : signs) {
        if (const auto line = findSign(lines, sign); line != lines.end()) {
            const bool ownFiles = sign.endsLine && !workFolder.isEmpty() && line->contains(workFolder);
            return of(ownFiles ? ResticProblem::NoWorkSpace : sign.problem);
        }
    }
    return {ResticProblem::Unknown, ownWords(lines, exitStatus)};
}

ResticDiagnosis ResticDiagnosis::ofNetwork(const QString& errorText, int exitStatus, const QString& workFolder)
{
    const QStringList lines = linesOf(errorText);
    for (const Sign& sign : networkSigns) {
        const auto line = findSign(lines, sign);
        if (line != lines.end() && (workFolder.isEmpty() || !line->contains(workFolder)))
            return of(sign.problem);
    }
    return of(errorText, exitStatus, workFolder);
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

namespace {

std::optional<ResticLock> readLock(const Restic& restic, const QString& name)
{
    return ResticLock::fromJson(restic.run({u"cat"_s, u"lock"_s, name, u"--no-lock"_s}).output);
}

/// At a network place restic alone removes locks. It asks the processes of this computer whether they live by a signal
/// that ends all but restic; where one of those has got the number of a lock's, the lock stays for half an hour, after
/// which restic asks nobody.
void removeStaleLocksElsewhere(const Restic& restic, const QDateTime& now)
{
    bool isAnyStale = false;
    const auto list = restic.run({u"list"_s, u"locks"_s, u"--no-lock"_s}).output;
    for (const QByteArray& name : list.split('\n')) {
        const auto lock = name.isEmpty() ? std::nullopt : readLock(restic, QString::fromLatin1(name));
        if (!lock)
            continue;
        const ProcessKind kind = processKind(lock->process);
        const bool isOwn = lock->host == QSysInfo::machineHostName() && lock->time.addDuration(lifetime) >= now;
        if (isOwn && kind != ProcessKind::None && kind != ProcessKind::Restic)
            return;
        isAnyStale = isAnyStale || isStale(*lock, QSysInfo::machineHostName(), kind, now);
    }
    if (isAnyStale)
        restic.run({u"unlock"_s});
}

} // namespace

void removeStaleLocks(const Repository& repository, const Restic& restic)
{
    const QDateTime now = QDateTime::currentDateTimeUtc();
    const RepositoryFolder* const folder = repository.folder();
    if (folder == nullptr)
        return removeStaleLocksElsewhere(restic, now);
    for (const QByteArray& name : folder->namesIn("locks")) {
        const auto lock = readLock(restic, QString::fromLatin1(name));
        if (lock && isStale(*lock, QSysInfo::machineHostName(), processKind(lock->process), now))
            folder->removeLock(name);
    }
}

} // namespace quillon
