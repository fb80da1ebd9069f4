#include "Program.h"

#include "ApplicationIdentity.h"
#include "ControlRequest.h"
#include "Doctor.h"
#include "HostSystem.h"
#include "Ledger.h"
#include "Report.h"
#include "SingleInstance.h"
#include "StoredAndSent.h"
#include "TMUtil.h"
#include "UserDefaults.h"

#include <cstdio>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int mostDates = 1000;
constexpr int usualStarts = 20;

std::optional<Arguments::Command> readCommand(const QString& word)
{
    using Command = Arguments::Command;
    if (word == "status"_L1)
        return Command::Status;
    if (word == "destinations"_L1)
        return Command::Destinations;
    if (word == "next"_L1)
        return Command::Next;
    if (word == "history"_L1)
        return Command::History;
    if (word == "doctor"_L1)
        return Command::Doctor;
    if (word == "--help"_L1 || word == "-h"_L1)
        return Command::Help;
    if (word == "--version"_L1)
        return Command::Version;
    return std::nullopt;
}

/// Reads the option at words[i] and its value; what is wrong with it, or the empty text.
QString readOption(const QStringList& words, qsizetype& i, Arguments& arguments)
{
    const QString& word = words[i];
    const bool ofNext = arguments.command == Arguments::Command::Next;
    const bool counts = ofNext || arguments.command == Arguments::Command::History;
    const bool answers =
        arguments.command != Arguments::Command::Help && arguments.command != Arguments::Command::Version;
    if (word == "--json"_L1 && answers) {
        arguments.json = true;
        return {};
    }
    if ((word != "--count"_L1 || !counts) && (word != "--from"_L1 || !ofNext))
        return u"unexpected argument \"%1\""_s.arg(word);
    if (++i == words.size())
        return u"%1 needs a value"_s.arg(word);
    if (word == "--from"_L1) {
        arguments.from = readLocalDateTime(words[i]);
        return arguments.from
                   ? QString()
                   : u"--from takes a local date and time such as 2026-11-21T12:00, not \"%1\""_s.arg(words[i]);
    }
    bool isNumber = false;
    arguments.count = words[i].toInt(&isNumber);
    return isNumber && arguments.count >= 1 && arguments.count <= mostDates
               ? QString()
               : u"--count takes a number from 1 to %1, not \"%2\""_s.arg(QString::number(mostDates), words[i]);
}

std::optional<Arguments> readRequest(QStringList words, QString* error)
{
    Arguments arguments;
    arguments.command = Arguments::Command::OfRunning;
    arguments.json = words.removeAll(u"--json"_s) > 0;
    arguments.request = words;
    return ControlRequest::parse(words, error) ? std::optional(arguments) : std::nullopt;
}

} // namespace

std::optional<Arguments> Arguments::parse(const QStringList& words, QString* error)
{
    if (words.isEmpty()) {
        *error = u"a command is missing; --help lists them"_s;
        return std::nullopt;
    }
    if (ControlRequest::isMeant(words))
        return readRequest(words, error);
    const auto command = readCommand(words.first());
    if (!command) {
        *error = u"unknown command \"%1\"; --help lists them"_s.arg(words.first());
        return std::nullopt;
    }
    Arguments arguments;
    arguments.command = *command;
    if (*command == Command::History)
        arguments.count = usualStarts;
    for (qsizetype i = 1; i < words.size(); ++i) {
        *error = readOption(words, i, arguments);
        if (!error->isEmpty())
            return std::nullopt;
    }
    return arguments;
}

namespace {

constexpr int exitFailed = 1;
constexpr int exitNotRunning = 2;
constexpr int exitUsage = 2;
constexpr int exitUsageOfRequest = 64; // EX_USAGE of sysexits(3): of a request 2 says that no Quillon runs

const QString help = u"Usage: quillonctl status [--json]\n"
                     "       quillonctl destinations [--json]\n"
                     "       quillonctl next [--count N] [--from LOCAL-DATE-TIME] [--json]\n"
                     "       quillonctl history [--count N] [--json]\n"
                     "       quillonctl doctor [--json]\n"
                     "       quillonctl backup [--disk NAME-OR-ID] [--json]\n"
                     "       quillonctl stop | retry | skip-retry | settings [--json]\n"
                     "       quillonctl pause DURATION | pause --until TIME | resume [--json]\n"
                     "       quillonctl skip | postpone DURATION [--json]\n"
                     "       quillonctl rules [add DAY TIME | remove N] [--json]\n"
                     "       quillonctl status --watch [--json]\n"
                     "       quillonctl -h | --help | --version\n\n"
                     "status        what Time Machine is doing right now; exit status 1 when that\n"
                     "              cannot be read\n"
                     "destinations  the disks that Time Machine backs up to\n"
                     "next          the coming backups that the schedule gives, from now on or from a\n"
                     "              date and time of the current time zone, such as 2026-11-21T12:00\n"
                     "history       what became of the latest starts, from Quillon's backup log\n"
                     "doctor        a page for a report of a fault: program, system, tool, disks,\n"
                     "              schedule; exit status 1 when something is wrong\n\n"
                     "These ask the running Quillon; exit status 1 when it refuses, 2 when none runs:\n\n"
                     "backup        start a backup, to a disk where one is named\n"
                     "stop          stop the running backup\n"
                     "pause         pause the schedule for 90m, 2h, 1d or 1w, at most 4w, or until\n"
                     "              18:30, 2026-11-21 or 2026-11-21T18:30\n"
                     "resume        end the pause\n"
                     "skip          pass over the next start of the schedule, and no other\n"
                     "postpone      make the next start later; those behind it stay\n"
                     "retry         make the pending retry now; skip-retry drops it\n"
                     "rules         list the rules by their numbers, add one such as Monday 18:30,\n"
                     "              weekdays 9:00 or every-day 12:00, or remove one\n"
                     "settings      open the settings\n"
                     "status --watch  print a line now and at each change, until interrupted\n\n"
                     "Environment: QUILLON_TMUTIL names the tmutil tool to ask, TZ the time zone.\n"_s;

/// One line on standard error.
void complain(const QString& trouble)
{
    std::fputs(u"quillonctl: %1\n"_s.arg(trouble).toLocal8Bit().constData(), stderr);
}

/// False, with a line on standard error, when not all of it could be written.
bool print(const QByteArray& text)
{
    const auto size = static_cast<std::size_t>(text.size());
    if (std::fwrite(text.constData(), 1, size, stdout) == size && std::fflush(stdout) == 0)
        return true;
    complain(u"the answer could not be written"_s);
    return false;
}

constexpr std::chrono::minutes patience{1};

ToolAnswer ask(const ProgramServices& services, const QStringList& words)
{
    ToolAnswer answer = askTool(services.runLoop, services.launcher, tmutilPath(), words, patience);
    std::fwrite(answer.errors.constData(), 1, static_cast<std::size_t>(answer.errors.size()), stderr);
    return answer;
}

/// Says on standard error why the tool's answer is of no use.
void complainOf(const ToolAnswer& answer)
{
    const QString trouble = answer.trouble.isEmpty() ? u"what it printed cannot be understood"_s : answer.trouble;
    complain(u"%1: %2"_s.arg(tmutilPath(), trouble));
}

int tellStatus(const ProgramServices& services, bool json)
{
    const auto answer = ask(services, {u"status"_s});
    const auto status = TMStatus::fromOutput(answer.output);
    if (status.failed)
        complainOf(answer);
    return print(report::status(status, json)) && !status.failed ? 0 : exitFailed;
}

int tellDestinations(const ProgramServices& services, bool json)
{
    const auto answer = ask(services, {u"destinationinfo"_s, u"-X"_s});
    const auto destinations = destinationsIn(answer.output);
    if (!destinations)
        complainOf(answer);
    else if (destinations->isEmpty())
        complain(u"no backup disk is set up"_s);
    return print(report::destinations(destinations.value_or(QList<BackupDestination>()), json)) && destinations
               ? 0
               : exitFailed;
}

int tellStarts(RunLoop& runLoop, const Arguments& arguments)
{
    const auto defaults = openUserDefaults(identity::identifier, DefaultsAccess::ReadOnly, runLoop);
    defaults->registerDefaults(registeredDefaults());
    const auto starts = comingStarts(*defaults, arguments.from.value_or(runLoop.now()), arguments.count);
    return print(report::starts(starts, arguments.json)) ? 0 : exitFailed;
}

int tellHistory(const Arguments& arguments)
{
    const auto entries = SqliteLedger(ledgerFile()).read({.most = arguments.count});
    if (!entries)
        complain(u"%1 cannot be read"_s.arg(ledgerFile()));
    return print(report::history(entries.value_or(std::vector<LedgerEntry>()), arguments.json)) && entries ? 0
                                                                                                           : exitFailed;
}

int tellDiagnosis(const ProgramServices& services, bool json)
{
    const auto defaults = openUserDefaults(identity::identifier, DefaultsAccess::ReadOnly, services.runLoop);
    defaults->registerDefaults(registeredDefaults());
    const Diagnosis diagnosis = Doctor(services.runLoop, services.launcher, *defaults, tmutilPath()).examine();
    return print(json ? report::doctorJson(diagnosis) : report::doctorText(diagnosis)) && problems(diagnosis).isEmpty()
               ? 0
               : exitFailed;
}

/// An answer on standard output, a refusal on standard error; with --json all of it on standard output.
bool print(const ControlAnswer& answer, bool json)
{
    if (!answer.done)
        complain(answer.text);
    if (json)
        return print(answer.toLine() + '\n');
    return !answer.done || print((answer.text + u'\n').toUtf8());
}

/// A tool that hangs is ended after a minute or two, and a start may wait for two more questions.
constexpr std::chrono::minutes patienceForAnswer{5};

int askRunning(const Arguments& arguments)
{
    InstanceCall call;
    constexpr std::chrono::seconds patienceForCall{2};
    if (!call.ask(identity::instanceLock(), ControlRequest::toLine(arguments.request),
                  QDeadlineTimer(patienceForCall))) {
        print(ControlAnswer::refused(u"Quillon is not running"_s), arguments.json);
        return exitNotRunning;
    }
    const bool watches = arguments.request.first() == "status"_L1;
    for (bool isFirst = true;; isFirst = false) {
        const auto line = call.nextLine(isFirst ? QDeadlineTimer(patienceForAnswer) : QDeadlineTimer::Forever);
        if (!line && !isFirst) {
            complain(u"Quillon has ended"_s);
            return exitNotRunning;
        }
        const auto answer = ControlAnswer::fromLine(line.value_or(QByteArray()))
                                .value_or(ControlAnswer::refused(u"the running Quillon gave no answer"_s));
        const bool isPrinted = print(answer, arguments.json);
        if (!watches || !answer.done || !isPrinted)
            return isPrinted && answer.done ? 0 : exitFailed;
    }
}

int answer(const Arguments& arguments, const ProgramServices& services)
{
    switch (arguments.command) {
    case Arguments::Command::Help:
        return print(help.toUtf8()) ? 0 : exitFailed;
    case Arguments::Command::Version:
        return print(u"quillonctl %1\n"_s.arg(bundleShortVersion()).toUtf8()) ? 0 : exitFailed;
    case Arguments::Command::Status:
        return tellStatus(services, arguments.json);
    case Arguments::Command::Destinations:
        return tellDestinations(services, arguments.json);
    case Arguments::Command::Next:
        return tellStarts(services.runLoop, arguments);
    case Arguments::Command::History:
        return tellHistory(arguments);
    case Arguments::Command::Doctor:
        return tellDiagnosis(services, arguments.json);
    case Arguments::Command::OfRunning:
        return askRunning(arguments);
    }
    return exitFailed;
}

} // namespace

int runQuillonctl(const QStringList& words, const ProgramServices& services)
{
    QString error;
    const auto arguments = Arguments::parse(words, &error);
    if (arguments)
        return answer(*arguments, services);
    complain(error);
    return ControlRequest::isMeant(words) ? exitUsageOfRequest : exitUsage;
}

} // namespace quillon
