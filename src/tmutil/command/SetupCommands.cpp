#include "Commands.h"
#include "Configuration.h"
#include "Destination.h"
#include "Failure.h"
#include "History.h"
#include "Paths.h"
#include "Reports.h"
#include "Repository.h"
#include "Restic.h"
#include "ResticOutput.h"
#include "SourceSet.h"
#include "Text.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSysInfo>
#include <QVariantMap>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <functional>
#include <termios.h>
#include <unistd.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

void tryExclusion(const Folders& folders, const QStringList& names, qlonglong largest, bool xml)
{
    Configuration::requireNames(names);
    const auto omission = SourceSet::of(Configuration(folders), folders).omittedBy(names, largest);
    if (xml)
        return printXml(QVariantMap{{u"Files"_s, omission.files}, {u"Bytes"_s, omission.bytes}});
    print(
        QStringList(omission.files == 1
                        ? u"1 file of %1 bytes would be left out."_s.arg(omission.bytes)
                        : u"%1 files of %2 bytes in all would be left out."_s.arg(omission.files).arg(omission.bytes)));
}

} // namespace

void listExclusions(const Folders& folders, bool xml)
{
    const Configuration configuration(folders);
    const QStringList paths = configuration.exclusions();
    const QStringList names = configuration.excludedNames();
    if (!xml)
        return print(paths);
    printXml(QVariantMap{{u"Paths"_s, QVariantList(paths.begin(), paths.end())},
                         {u"Names"_s, QVariantList(names.begin(), names.end())},
                         {u"LargestFile"_s, configuration.largestFile()}});
}

/// Those that nobody has named come with the reason why they are left out.
void listAllExclusions(const Folders& folders)
{
    const Configuration configuration(folders);
    QStringList lines = configuration.exclusions();
    for (const QString& name : configuration.excludedNames())
        lines.append(u"%1 (by name)"_s.arg(name));
    if (configuration.largestFile() > 0)
        lines.append(u"files of more than %1 bytes"_s.arg(configuration.largestFile()));
    for (const auto& [path, reason] : SourceSet::of(configuration, folders).automatic)
        lines.append(u"%1 (%2)"_s.arg(path, reason));
    print(lines << u"folders with a CACHEDIR.TAG (caches)"_s);
}

void isExcluded(const Folders& folders, const QStringList& paths)
{
    const SourceSet set = SourceSet::of(Configuration(folders), folders);
    QStringList lines;
    for (const QString& path : paths) {
        const QString own = ownPath(path);
        if (const QFileInfo file(own); !file.exists() && !file.isSymLink())
            throw Failure(ExitStatus::NoInput, u"\"%1\" does not exist."_s.arg(path));
        lines.append((set.contains(own) ? "[Included]    "_L1 : "[Excluded]    "_L1) + own);
    }
    print(lines);
}

void excludeNames(const Folders& folders, const QStringList& patterns, bool trial, bool xml)
{
    if (trial)
        return tryExclusion(folders, patterns, 0, xml);
    Configuration(folders).addExcludedNames(patterns);
}

void excludeLarger(const Folders& folders, const QString& megabytes, bool trial, bool xml)
{
    bool isNumber = false;
    const qlonglong number = megabytes.toLongLong(&isNumber);
    constexpr qlonglong most = 1'000'000'000;
    if (!isNumber || number < 0 || number > most)
        throw Failure(ExitStatus::Usage, u"\"%1\" is no number of megabytes."_s.arg(megabytes));
    constexpr qlonglong bytes = 1'000'000;
    if (trial)
        return tryExclusion(folders, {}, number * bytes, xml);
    Configuration(folders).setLargestFile(number * bytes);
}

namespace {

void printRecoveryKey(const Destination& destination, const QString& key)
{
    print(QStringList{
        u"The recovery key of the backups on \"%1\":"_s.arg(shownText(destination.name)),
        {},
        u"    "_s + key,
        {},
        u"Write it down and keep it away from this computer and from the backups. It is shown only now; whoever has "
        "it and the backups can read them. On another computer \"tmutil adopt %1\" asks for it and takes the backups up."_s
            .arg(destination.isNetwork() ? destination.path : u"PATH"_s)});
}

/// One that nobody has seen must not stay: it opens nothing for anybody and counts among the few that restic tries.
void showNewKey(const Restic& restic, const RecoveryKey& made, const std::function<void()>& show)
{
    std::signal(SIGPIPE, SIG_IGN);
    try {
        show();
    } catch (const Failure& failure) {
        removeRecoveryKeys(restic, {made.identifier});
        throw Failure(failure.status(),
                      u"The recovery key could not be shown and was removed again: %1"_s.arg(failure.message()));
    }
}

void removeOlderKeys(const Restic& restic, const QStringList& older)
{
    try {
        removeRecoveryKeys(restic, older);
    } catch (const Failure& failure) {
        throw Failure(failure.status(),
                      u"An older recovery key opens the backups as well: %1"_s.arg(failure.message()));
    }
}

/// What the disk has of this computer is what counts, also where somebody has erased it. Gives a sentence where it has
/// backups of others alone.
QString takeStock(const Repository& repository, const Restic& restic, const Folders& folders)
{
    const QDateTime now = QDateTime::currentDateTimeUtc();
    const auto all = snapshotsIn(repository, restic);
    const auto own = madeBy(History(folders.state).hostNames() << QSysInfo::machineHostName(), all);
    const Snapshot* const latest = latestOf(own, now);
    const QDateTime date = latest != nullptr && latest->complete ? latest->time : QDateTime();
    History::change(folders.state, [&](History& history) { history.setLastBackup(repository.destination().id, date); });
    if (all.empty() || !own.empty())
        return {};
    return u"Its backups are of another computer; the latest is \"%1\". Of this computer it has none yet."_s.arg(
        latestOf(all, now)->name());
}

Repository newRepository(const Destination& destination, const Folders& folders, const StopRequest& stop)
{
    NewRepository made = makeRepository(destination, folders, stop);
    if (!made.repository)
        throw made.refusal.isEmpty() ? made.outcome.failure() : Failure(ExitStatus::Failed, made.refusal);
    noteNewRepository(destination, folders);
    return std::move(*made.repository);
}

/// Repositories of this user that nothing on this computer opens: most often those of the computer before it.
bool hasUnknownRepositories(const Destination& destination, const Folders& folders)
{
    const auto names = QDir(Destination::backupFolder(destination.path)).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    return std::ranges::any_of(names, [&](const QString& id) {
        const Destination other{id, {}, destination.path};
        return id != destination.id && RepositoryFolder::contents(other) == RepositoryFolder::Contents::Repository &&
               !isOpenedByKey(other, folders);
    });
}

/// One line, which a terminal does not show.
QString readSecret()
{
    const bool terminal = isatty(STDIN_FILENO) != 0;
    termios before{};
    if (terminal) {
        tcgetattr(STDIN_FILENO, &before);
        termios silent = before;
        silent.c_lflag &= ~static_cast<tcflag_t>(ECHO);
        std::fputs("Recovery key or passphrase: ", stderr);
        tcsetattr(STDIN_FILENO, TCSAFLUSH, &silent);
    }
    QByteArray line;
    constexpr qsizetype longest = 4096;
    for (int character = std::getchar(); character != EOF && character != '\n' && line.size() < longest;
         character = std::getchar())
        line += static_cast<char>(character);
    if (terminal) {
        tcsetattr(STDIN_FILENO, TCSAFLUSH, &before);
        std::fputc('\n', stderr);
    }
    return QString::fromUtf8(line);
}

} // namespace

void noteNewRepository(const Destination& destination, const Folders& folders)
{
    History::change(folders.state, [&](History& history) {
        history.noteNewRepository(destination.id);
        history.setLastBackup(destination.id, {});
    });
    KeyStore(folders.configuration).setKeptRecoveryKey(destination.id, {});
}

void welcome(const Destination& destination, bool isNew, const std::function<Repository()>& open,
             const Folders& folders, const StopRequest& stop)
{
    try {
        const Repository repository = open();
        const Restic restic(repository, folders, &stop);
        if (!isNew)
            takeStock(repository, restic, folders);
        if (!isNew && !recoveryKeys(restic).isEmpty())
            return;
        const RecoveryKey made = addRecoveryKey(restic, {});
        showNewKey(restic, made, [&] { printRecoveryKey(destination, made.key); });
        // Programs that set a disk need not show what is printed.
        if (isatty(STDOUT_FILENO) != 0)
            KeyStore(folders.configuration).setKeptRecoveryKey(destination.id, made.identifier);
    } catch (const Failure& failure) {
        printForPeople(QStringList(
            u"There is no recovery key for these backups yet: %1 \"tmutil recoverykey -d %2\" makes one."_s.arg(
                failure.message(), destination.id)));
    }
}

void setDestination(const Folders& folders, const CommandLine& line)
{
    const QString& path = line.operands.first();
    if (NetworkPlace::isUrl(path))
        return setNetworkDestination(folders, line);
    Configuration configuration(folders, Configuration::IfLost::BeginAnew);
    const Destination destination = configuration.setDestination(
        path, line.append, [&folders](const Destination& found) { return isOpenedByKey(found, folders); });
    if (const QString source = configuration.sourceOnDisk(destination.path); !source.isEmpty())
        printForPeople(
            QStringList(u"\"%1\" is on the same disk as \"%2\": when that breaks, the backups are lost with it."_s.arg(
                destination.path, source)));
    if (hasUnknownRepositories(destination, folders))
        printForPeople(QStringList(
            u"This disk also has backups whose key is not on this computer. If they are yours, \"tmutil adopt "
            "%1\" takes them up."_s.arg(destination.path)));
    const StopRequest stop;
    const bool isNew = RepositoryFolder::contents(destination) == RepositoryFolder::Contents::Empty;
    const auto open = [&] {
        return isNew ? newRepository(destination, folders, stop) : std::move(*Repository::open(destination, folders));
    };
    welcome(destination, isNew, open, folders, stop);
}

void renewRecoveryKey(const Folders& folders, const Destination& destination, bool xml)
{
    const auto repository = Repository::open(destination, folders);
    repository->requireWritable();
    const StopRequest stop;
    const Restic restic(*repository, folders, &stop);
    const KeyStore keys(folders.configuration);
    QStringList older = recoveryKeys(restic);
    // restic tries no more than twenty keys; of those that were shown and never kept some are let live until then.
    if (constexpr qsizetype most = 8; older.size() >= most) {
        const QString kept = keys.keptRecoveryKey(destination.id);
        older.removeAll(kept);
        removeOlderKeys(restic, older);
        older = recoveryKeys(restic);
    }
    const RecoveryKey made = addRecoveryKey(restic, older);
    showNewKey(restic, made, [&] {
        if (xml)
            printXml(QVariantMap{{u"RecoveryKey"_s, made.key}, {u"KeyID"_s, made.identifier}});
        else
            printRecoveryKey(destination, made.key);
    });
    if (xml)
        return;
    keys.setKeptRecoveryKey(destination.id, made.identifier);
    removeOlderKeys(restic, older);
}

void keepRecoveryKey(const Folders& folders, const Destination& destination, const QString& identifier)
{
    const auto repository = Repository::open(destination, folders);
    const StopRequest stop;
    const Restic restic(*repository, folders, &stop);
    QStringList others = recoveryKeys(restic);
    if (others.removeAll(identifier) == 0)
        throw Failure(ExitStatus::WrongKey,
                      u"That recovery key does not open the backups any more. \"tmutil recoverykey\" makes another."_s);
    KeyStore(folders.configuration).setKeptRecoveryKey(destination.id, identifier);
    removeOlderKeys(restic, others);
}

void adopt(const Folders& folders, const CommandLine& line)
{
    const QString& path = line.operands.first();
    const TakeUp takeUp = [&](const std::vector<Repository>& candidates, const auto& keep) {
        const QString secret = readSecret(); // ahead of the stop, so that an interrupt ends the prompt
        const StopRequest stop;
        const Destination destination = takeUpRepository(candidates, path, secret, folders, stop);
        const auto repository = std::ranges::find(candidates, destination, &Repository::destination);
        keep(destination);
        const QString remark = takeStock(*repository, Restic(*repository, folders, &stop), folders);
        printForPeople(QStringList(
            u"The backups at \"%1\" are taken up. \"tmutil listbackups\" names them."_s.arg(destination.path)));
        if (!remark.isEmpty())
            printForPeople(QStringList(remark));
    };
    if (NetworkPlace::isUrl(path))
        adoptNetworkPlace(folders, line, takeUp);
    else
        takeUp(repositoriesAt(path), [&folders](const Destination& destination) {
            Configuration(folders, Configuration::IfLost::BeginAnew).takeUp(destination);
        });
}

} // namespace quillon
