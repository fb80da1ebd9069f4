#include "Program.h"

#include "ApplicationIdentity.h"
#include "Doctor.h"
#include "Report.h"
#include "StoredAndSentNames.h"
#include "TMUtilQueue.h"
#include "UserDefaults.h"

#include <cstdio>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int exitFailed = 1;

const QString help = u"Usage: quillonctl status [--json]\n"
                     "       quillonctl destinations [--json]\n"
                     "       quillonctl next [--count N] [--from LOCAL-DATE-TIME] [--json]\n"
                     "       quillonctl doctor [--json]\n"
                     "       quillonctl -h | --help | --version\n\n"
                     "status        what Time Machine is doing right now; exit status 1 when that\n"
                     "              cannot be read\n"
                     "destinations  the disks that Time Machine backs up to\n"
                     "next          the coming backups that the schedule gives, from now on or from a\n"
                     "              date and time of the current time zone, such as 2026-11-21T12:00\n"
                     "doctor        a page for a report of a fault: program, system, tool, disks,\n"
                     "              schedule; exit status 1 when something is wrong\n\n"
                     "Environment: QUILLON_TMUTIL names the tmutil tool to ask, TZ the time zone.\n"_s;

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
    const ToolAnswer answer = askTool(services.runLoop, services.launcher, tmutilPath(), words, patience);
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

int tellDiagnosis(const ProgramServices& services, bool json)
{
    const auto defaults = openUserDefaults(identity::identifier, DefaultsAccess::ReadOnly, services.runLoop);
    defaults->registerDefaults(registeredDefaults());
    const Diagnosis diagnosis = Doctor(services.runLoop, services.launcher, *defaults, tmutilPath()).examine();
    return print(json ? report::doctorJson(diagnosis) : report::doctorText(diagnosis)) && problems(diagnosis).isEmpty()
               ? 0
               : exitFailed;
}

} // namespace

void complain(const QString& trouble)
{
    std::fputs(u"quillonctl: %1\n"_s.arg(trouble).toLocal8Bit().constData(), stderr);
}

int runQuillonctl(const Arguments& arguments, const ProgramServices& services)
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
    case Arguments::Command::Doctor:
        return tellDiagnosis(services, arguments.json);
    }
    return exitFailed;
}

} // namespace quillon
