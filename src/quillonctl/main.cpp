#include "Arguments.h"
#include "Bundle.h"
#include "ComingStarts.h"
#include "DefaultSettings.h"
#include "Doctor.h"
#include "QtRunLoop.h"
#include "Report.h"
#include "TMUtilPath.h"
#include "Task.h"
#include "ToolQuestion.h"
#include "UserDefaultsStore.h"

#include <QCoreApplication>

#include <clocale>
#include <cstdio>

namespace {

using namespace quillon;
using namespace Qt::StringLiterals;

constexpr int exitFailed = 1;
constexpr int exitUsage = 2;

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

ToolAnswer ask(const QStringList& words)
{
    QtRunLoop runLoop;
    Task launcher;
    const ToolAnswer answer = askTool(runLoop, launcher, tmutilPath(), words, patience);
    std::fwrite(answer.errors.constData(), 1, static_cast<std::size_t>(answer.errors.size()), stderr);
    return answer;
}

/// Says on standard error why the tool's answer is of no use.
void complainOf(const ToolAnswer& answer)
{
    const QString trouble = answer.trouble.isEmpty() ? u"what it printed cannot be understood"_s : answer.trouble;
    complain(u"%1: %2"_s.arg(tmutilPath(), trouble));
}

int tellStatus(bool json)
{
    const auto answer = ask({u"status"_s});
    const auto status = TMStatus::fromOutput(answer.output);
    if (status.failed)
        complainOf(answer);
    return print(report::status(status, json)) && !status.failed ? 0 : exitFailed;
}

int tellDestinations(bool json)
{
    const auto answer = ask({u"destinationinfo"_s, u"-X"_s});
    const auto destinations = destinationsIn(answer.output);
    if (!destinations)
        complainOf(answer);
    else if (destinations->isEmpty())
        complain(u"no backup disk is set up"_s);
    return print(report::destinations(destinations.value_or(QList<BackupDestination>()), json)) && destinations
               ? 0
               : exitFailed;
}

int tellStarts(const Arguments& arguments)
{
    QtRunLoop runLoop;
    const auto defaults = openUserDefaults(DefaultsAccess::ReadOnly, runLoop);
    defaults->registerDefaults(registeredDefaults());
    const auto starts = comingStarts(*defaults, arguments.from.value_or(runLoop.now()), arguments.count);
    return print(report::starts(starts, arguments.json)) ? 0 : exitFailed;
}

int tellDiagnosis(bool json)
{
    QtRunLoop runLoop;
    Task launcher;
    const auto defaults = openUserDefaults(DefaultsAccess::ReadOnly, runLoop);
    defaults->registerDefaults(registeredDefaults());
    const Diagnosis diagnosis = Doctor(runLoop, launcher, *defaults, tmutilPath()).examine();
    return print(json ? report::doctorJson(diagnosis) : report::doctorText(diagnosis)) && problems(diagnosis).isEmpty()
               ? 0
               : exitFailed;
}

int run(const Arguments& arguments)
{
    switch (arguments.command) {
    case Arguments::Command::Help:
        return print(help.toUtf8()) ? 0 : exitFailed;
    case Arguments::Command::Version:
        return print(u"quillonctl %1\n"_s.arg(bundleShortVersion()).toUtf8()) ? 0 : exitFailed;
    case Arguments::Command::Status:
        return tellStatus(arguments.json);
    case Arguments::Command::Destinations:
        return tellDestinations(arguments.json);
    case Arguments::Command::Next:
        return tellStarts(arguments);
    case Arguments::Command::Doctor:
        return tellDiagnosis(arguments.json);
    }
    return exitUsage;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    QString error;
    const auto arguments = Arguments::parse(QCoreApplication::arguments().mid(1), &error);
    if (!arguments) {
        complain(error);
        return exitUsage;
    }
    return run(*arguments);
}
