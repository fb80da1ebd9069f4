#include "Commands.h"
#include "Configuration.h"
#include "Destination.h"
#include "Failure.h"
#include "NetworkProbe.h"
#include "Reports.h"
#include "Repository.h"
#include "Restic.h"

#include <QFile>
#include <QSaveFile>
#include <QTemporaryDir>
#include <QUuid>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <memory>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void refuseCredentialsFile(const QString& path)
{
    throw Failure(ExitStatus::NoInput,
                  u"The credentials in \"%1\" cannot be read: %2."_s.arg(path, qt_error_string(errno)));
}

/// Standard input, "-", may hold more than credentials, after an empty line.
QByteArray readCredentials(const QString& path)
{
    const bool isInput = path == "-"_L1;
    const auto close = [](FILE* file) {
        if (file != stdin)
            std::fclose(file);
    };
    const std::unique_ptr<FILE, decltype(close)> file(
        isInput ? stdin : std::fopen(QFile::encodeName(path).constData(), "re"), close);
    if (!file)
        refuseCredentialsFile(path);
    QByteArray text;
    constexpr qsizetype longest = qsizetype{64} * 1024;
    for (int character = std::getc(file.get()); character != EOF && text.size() < longest;
         character = std::getc(file.get())) {
        if (isInput && character == '\n' && (text.isEmpty() || text.endsWith('\n')))
            break;
        text += static_cast<char>(character);
    }
    if (std::ferror(file.get()) != 0)
        refuseCredentialsFile(path);
    return text;
}

QByteArray contentsOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writePrivate(const QString& path, const QByteArray& text)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || !file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner) ||
        file.write(text) != text.size() || !file.commit())
        throw Failure(ExitStatus::CannotWrite, u"\"%1\" cannot be written: %2."_s.arg(path, file.errorString()));
}

/// A network place as a command line names it. What lets the user in is kept once keep() is called.
class NamedPlace {
public:
    NamedPlace(const Folders& folders, const Configuration& configuration, const CommandLine& line)
        : folders_(folders)
    {
        access_.place = NetworkPlace::fromUrl(line.operands.first());
        const QByteArray credentials = line.credentials.isEmpty() ? QByteArray() : readCredentials(line.credentials);
        access_.parseCredentials(credentials); // may name the user, who is a part of the place
        id_ = NetworkAccess::identifierOf(folders, access_.place);
        if (!id_.isEmpty())
            takeUpKnown(!line.credentials.isEmpty());
        else
            id_ = identifierIn(configuration).value_or(QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper());
        access_.requireCredentials();
        access_.knownHosts = NetworkAccess::knownHostsFile(folders);
        access_.uploadLimit = line.uploadLimit < 0 ? access_.uploadLimit : line.uploadLimit;
        access_.downloadLimit = line.downloadLimit < 0 ? access_.downloadLimit : line.downloadLimit;
        if (!line.hostKey.isEmpty())
            accept(line.hostKey);
    }

    Destination destination() const { return {id_, access_.place.name(), access_.place.text()}; }
    Repository repository(const Destination& destination) const { return {destination, access_}; }
    HostKey hostKey() const { return HostKey::of(access_, folders_); }
    bool isSftp() const { return access_.place.kind == NetworkPlace::Kind::Sftp; }

    NetworkAnswer ask() const
    {
        const bool hasKey = KeyStore(folders_.configuration).contains(id_);
        const SecretFile anyKey(KeyStore::makeKey()); // tells whether there is something that it does not open
        return askPlace(repository(destination()), folders_, hasKey ? QString() : anyKey.path());
    }

    /// Whether a configuration has it as a repository that was made by hand; nothing where it does not have it.
    std::optional<bool> isBareIn(const Configuration& configuration) const
    {
        const auto& all = configuration.destinations();
        const auto found = std::ranges::find(all, id_, &Destination::id);
        return found == all.end() ? std::nullopt : std::optional(found->bare);
    }

    /// Without secrets: whatever becomes of the repository that is made now, it is found again.
    void note() const
    {
        if (!isKnown_)
            NetworkAccess{.place = access_.place}.save(folders_, id_);
    }

    void keep() const
    {
        access_.save(folders_, id_);
        if (!accepted_.isEmpty())
            writePrivate(NetworkAccess::knownHostsFile(folders_), accepted_);
    }

private:
    void takeUpKnown(bool withNewCredentials)
    {
        NetworkAccess known = NetworkAccess::load(folders_, id_);
        if (withNewCredentials)
            known.credentials = access_.credentials;
        access_ = known;
        isKnown_ = true;
    }

    /// Where what was kept of the place is lost, its key is not.
    std::optional<QString> identifierIn(const Configuration& configuration) const
    {
        const auto& all = configuration.destinations();
        const auto found = std::ranges::find(all, access_.place.text(), &Destination::path);
        return found == all.end() ? std::nullopt : std::optional(found->id);
    }

    /// In a file of its own, for it counts only once it is kept.
    void accept(const QString& fingerprint)
    {
        if (!isSftp())
            throw Failure(ExitStatus::Usage, u"Only an SFTP server has a host key."_s);
        const HostKey key = hostKey();
        if (key.fingerprint() != fingerprint)
            throw Failure(
                ExitStatus::Untrusted,
                u"The server shows another host key, %1 (%2), and nothing was set."_s.arg(key.fingerprint(), key.type));
        accepted_ = withHostKey(contentsOf(access_.knownHosts), key);
        trial_ = std::make_unique<QTemporaryDir>();
        access_.knownHosts = trial_->filePath(u"known_hosts"_s);
        writePrivate(access_.knownHosts, accepted_);
    }

    const Folders& folders_;
    NetworkAccess access_;
    QString id_;
    bool isKnown_ = false;
    QByteArray accepted_; ///< known hosts with the key that the user accepts; empty where none is new
    std::unique_ptr<QTemporaryDir> trial_;
};

/// The key that the server shows, where the problem is about that.
std::optional<HostKey> shownKey(const ResticDiagnosis& problem, const NamedPlace& place)
{
    const bool isAboutKey =
        problem.problem == ResticProblem::UnknownHostKey || problem.problem == ResticProblem::ChangedHostKey;
    return isAboutKey ? std::optional(place.hostKey()) : std::nullopt;
}

Failure failureOf(const ResticDiagnosis& problem, const NamedPlace& place, const std::optional<HostKey>& key)
{
    QString message = problem.description;
    if (key)
        message += u" Its fingerprint is %1 (%2)."_s.arg(key->fingerprint(), key->type);
    if (problem.problem == ResticProblem::WrongKey)
        message = u"There are backups at \"%1\" that no key of this computer opens. If they are yours, \"tmutil adopt "
                  "%1\" takes them up with their recovery key."_s.arg(place.destination().path);
    return {problem.failure().status(), message, problem.cause()};
}

/// For programs.
void tellFailure(const Failure& failure, const NamedPlace& place, const std::optional<HostKey>& key = {})
{
    QVariantMap told{
        {u"URL"_s, place.destination().path}, {u"Cause"_s, failure.cause()}, {u"Description"_s, failure.message()}};
    if (key)
        told.insert(u"HostKey"_s, QVariantMap{{u"Type"_s, key->type}, {u"Fingerprint"_s, key->fingerprint()}});
    printXml(told);
}

void requireAnswer(const NetworkAnswer& answer, const NamedPlace& place, bool xml = false)
{
    if (!answer.problem)
        return;
    const auto key = shownKey(*answer.problem, place);
    const Failure failure = failureOf(*answer.problem, place, key);
    if (xml)
        tellFailure(failure, place, key);
    throw failure;
}

void tellContents(const NamedPlace& place, bool isEmpty, bool xml)
{
    if (xml)
        return printXml(
            QVariantMap{{u"URL"_s, place.destination().path}, {u"Contents"_s, isEmpty ? u"Empty"_s : u"Backups"_s}});
    printForPeople(QStringList(isEmpty ? u"The server can be used; there are no backups yet."_s
                                       : u"The server can be used; it has backups of yours."_s));
}

/// Where it is new, its repository is made.
void setPlace(const NamedPlace& place, bool isNew, bool append, Configuration& configuration, const Folders& folders)
{
    const StopRequest stop;
    Destination destination = place.destination();
    destination.bare = place.isBareIn(configuration).value_or(false);
    if (isNew) {
        KeyStore(folders.configuration).ensure(destination.id);
        place.note();
        makeRepository(place.repository(destination), folders, stop);
        noteNewRepository(destination, folders);
    }
    place.keep();
    configuration.takeUp(destination, append);
    welcome(
        destination, isNew, [&] { return place.repository(destination); }, folders, stop);
}

} // namespace

void setNetworkDestination(const Folders& folders, const CommandLine& line)
{
    Configuration configuration(folders, Configuration::IfLost::BeginAnew);
    const NamedPlace place(folders, configuration, line);
    const NetworkAnswer answer = place.ask();
    requireAnswer(answer, place, line.xml);
    const bool isEmpty = answer.contents == NetworkAnswer::Contents::Empty;
    if (line.trial)
        return tellContents(place, isEmpty, line.xml);
    try {
        setPlace(place, isEmpty, line.append, configuration, folders);
    } catch (const Failure& failure) {
        if (line.xml)
            tellFailure(failure, place);
        throw;
    }
}

void adoptNetworkPlace(const Folders& folders, const CommandLine& line, const TakeUp& takeUp)
{
    Configuration configuration(folders, Configuration::IfLost::BeginAnew);
    const NamedPlace place(folders, configuration, line);
    const NetworkAnswer answer = place.ask();
    if (!answer.problem || answer.problem->problem != ResticProblem::WrongKey)
        requireAnswer(answer, place);
    std::vector<Repository> candidates;
    if (answer.contents != NetworkAnswer::Contents::Empty)
        candidates.push_back(place.repository(place.destination()));
    takeUp(candidates, [&](Destination destination) {
        // Backups that were made by hand are listed, too, unless it is known that there are none.
        destination.bare = place.isBareIn(configuration).value_or(true);
        place.keep();
        configuration.takeUp(destination);
    });
}

} // namespace quillon
