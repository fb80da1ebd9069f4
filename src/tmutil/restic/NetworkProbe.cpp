#include "NetworkProbe.h"

#include "Restic.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <memory>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto patienceWithNetwork = 10s;

/// One question to a place.
struct Question {
    std::unique_ptr<QProcess> process = std::make_unique<QProcess>();
    QByteArray error;
    bool isLate = false;

    bool isAnswered() const { return process->state() == QProcess::NotRunning; }

    /// Nothing where it went well.
    std::optional<ResticDiagnosis> problem() const
    {
        if (isLate)
            return ResticDiagnosis::of(ResticProblem::Unreachable);
        const bool hasEnded =
            process->exitStatus() == QProcess::NormalExit && process->error() != QProcess::FailedToStart;
        if (hasEnded && process->exitCode() == 0)
            return std::nullopt;
        return ResticDiagnosis::ofNetwork(errorText(), process->exitCode());
    }

    QString errorText() const { return QString::fromUtf8(error); }
};

void prepareSsh(QProcess& process, QStringList command, const Folders& folders)
{
    process.setProgram(Restic::executable(command.takeFirst()));
    process.setArguments(command);
    process.setEnvironment({u"HOME="_s + folders.home, u"PATH=/usr/local/bin:/usr/bin:/bin"_s});
    process.setStandardInputFile(QProcess::nullDevice());
}

/// Whether ssh or restic is asked first: ssh alone surely tells what keeps it from connecting, for restic may end
/// before it has passed that on.
bool isAskedBySsh(const Repository& place)
{
    return place.access()->place.kind == NetworkPlace::Kind::Sftp;
}

Question questionBySsh(const Repository& place, const Folders& folders)
{
    Question question;
    prepareSsh(*question.process, place.access()->sshCommand(), folders);
    return question;
}

Question questionByRestic(const Repository& place, const Folders& folders, const QString& keyFile)
{
    Question question;
    Restic(place, folders, nullptr, keyFile).prepare(*question.process, {u"cat"_s, u"config"_s, u"--no-lock"_s});
    return question;
}

/// All at once, until each is answered or the time is over.
void put(std::vector<Question>& questions, const QDeadlineTimer& deadline)
{
    QEventLoop loop;
    const auto endIfAnswered = [&] {
        if (std::ranges::all_of(questions, &Question::isAnswered))
            loop.quit();
    };
    for (Question& question : questions) {
        QProcess& process = *question.process;
        QObject::connect(&process, &QProcess::stateChanged, &loop, endIfAnswered, Qt::QueuedConnection);
        process.start();
    }
    QTimer::singleShot(std::chrono::milliseconds(deadline.remainingTime()), &loop, &QEventLoop::quit);
    if (!std::ranges::all_of(questions, &Question::isAnswered))
        loop.exec();
    for (Question& question : questions) {
        question.isLate = !question.isAnswered();
        question.process->kill();
        question.process->waitForFinished();
        question.error = question.process->readAllStandardError();
    }
}

Question firstQuestion(const Repository& place, const Folders& folders)
{
    return isAskedBySsh(place) ? questionBySsh(place, folders) : questionByRestic(place, folders, {});
}

std::optional<ResticDiagnosis> problemOf(Question question, const QDeadlineTimer& deadline)
{
    std::vector<Question> questions;
    questions.push_back(std::move(question));
    put(questions, deadline);
    return questions.front().problem();
}

} // namespace

NetworkAnswer askPlace(const Repository& place, const Folders& folders, const QString& keyFile)
{
    const QDeadlineTimer deadline(patienceWithNetwork);
    if (isAskedBySsh(place)) {
        if (const auto problem = problemOf(questionBySsh(place, folders), deadline))
            return {NetworkAnswer::Contents::Unknown, problem};
    }
    std::vector<Question> byRestic;
    byRestic.push_back(questionByRestic(place, folders, keyFile));
    put(byRestic, deadline);
    const auto problem = byRestic.front().problem();
    if (!problem)
        return {NetworkAnswer::Contents::Backups, std::nullopt};
    // restic asks whether there is a repository also where the server has failed.
    if (problem->problem == ResticProblem::NoRepository && byRestic.front().errorText().contains("not exist"_L1))
        return {NetworkAnswer::Contents::Empty, std::nullopt};
    return {NetworkAnswer::Contents::Unknown, problem};
}

void requireConnection(const Repository& repository, const Folders& folders)
{
    if (repository.access() == nullptr)
        return;
    if (const auto problem = problemOf(firstQuestion(repository, folders), QDeadlineTimer(patienceWithNetwork)))
        throw problem->failure();
}

std::vector<Destination> presentOf(const std::vector<Destination>& destinations, const Folders& folders)
{
    std::vector<Question> questions;
    for (const Destination& destination : destinations) {
        if (!destination.isNetwork())
            continue;
        const auto opened = Repository::open(destination, folders);
        const Repository& place = *opened;
        questions.push_back(firstQuestion(place, folders));
    }
    if (!questions.empty())
        put(questions, QDeadlineTimer(patienceWithNetwork));
    std::vector<Destination> present;
    auto question = questions.begin();
    for (const Destination& destination : destinations) {
        const auto problem = destination.isNetwork() ? (question++)->problem() : std::nullopt;
        if (destination.isPresent() && !(problem && problem->problem == ResticProblem::Unreachable))
            present.push_back(destination);
    }
    return present;
}

QString HostKey::fingerprint() const
{
    const QByteArray key = QByteArray::fromBase64(line.section(u' ', 2, 2).toLatin1());
    const QByteArray hash = QCryptographicHash::hash(key, QCryptographicHash::Sha256);
    return u"SHA256:"_s + QString::fromLatin1(hash.toBase64(QByteArray::OmitTrailingEquals));
}

HostKey HostKey::of(const NetworkAccess& access, const Folders& folders)
{
    const QTemporaryDir folder;
    NetworkAccess fresh = access;
    fresh.knownHosts = folder.filePath(u"known_hosts"_s);
    QStringList command = fresh.sshCommand();
    // What comes first counts. The key is told ahead of any log-in, which is not wanted here.
    const QStringList settings{u"StrictHostKeyChecking=accept-new"_s, u"UserKnownHostsFile="_s + fresh.knownHosts,
                               u"GlobalKnownHostsFile=/dev/null"_s, u"PreferredAuthentications=none"_s};
    for (const QString& setting : settings) {
        command.insert(1, setting);
        command.insert(1, u"-o"_s);
    }
    std::vector<Question> questions(1);
    prepareSsh(*questions.front().process, command, folders);
    put(questions, QDeadlineTimer(patienceWithNetwork));
    QFile file(fresh.knownHosts);
    const QString line = file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readLine()).trimmed() : QString();
    if (line.count(u' ') < 2)
        throw questions.front().problem().value_or(ResticDiagnosis::of(ResticProblem::Unreachable)).failure();
    return {line, line.section(u' ', 1, 1)};
}

QByteArray withHostKey(const QByteArray& knownHosts, const HostKey& key)
{
    const QByteArray server = key.line.section(u' ', 0, 0).toUtf8() + ' ';
    QByteArray text;
    for (const QByteArray& line : knownHosts.split('\n')) {
        if (!line.isEmpty() && !line.startsWith(server))
            text += line + '\n';
    }
    return text + key.line.toUtf8() + '\n';
}

} // namespace quillon
