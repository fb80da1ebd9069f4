#include "Arguments.h"
#include "Bundle.h"
#include "ComingStarts.h"
#include "DefaultSettings.h"
#include "QtRunLoop.h"
#include "Report.h"
#include "TMUtilPath.h"
#include "TMUtilQueue.h"
#include "Task.h"
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
                     "       quillonctl -h | --help | --version\n\n"
                     "status        what Time Machine is doing right now; exit status 1 when that\n"
                     "              cannot be read\n"
                     "destinations  the disks that Time Machine backs up to\n"
                     "next          the coming backups that the schedule gives, from now on or from a\n"
                     "              date and time of the current time zone, such as 2026-11-21T12:00\n\n"
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

/// What the tool printed for one command that only reads.
std::optional<QByteArray> ask(const QString& command, const QStringList& arguments)
{
    QtRunLoop runLoop;
    Task launcher;
    TMUtilQueue queue(launcher, runLoop, tmutilPath());
    std::optional<QByteArray> answer;
    queue.submit({command, arguments, [](TMUtilHandlers&) {},
                  [&answer](const std::optional<QByteArray>& output) {
                      answer = output;
                      QCoreApplication::quit();
                  }});
    QCoreApplication::exec();
    return answer;
}

int run(const Arguments& arguments)
{
    switch (arguments.command) {
    case Arguments::Command::Help:
        return print(help.toUtf8()) ? 0 : exitFailed;
    case Arguments::Command::Version:
        return print(u"quillonctl %1\n"_s.arg(bundleShortVersion()).toUtf8()) ? 0 : exitFailed;
    case Arguments::Command::Status: {
        const auto status = TMStatus::fromOutput(ask(u"status"_s, {}));
        return print(report::status(status, arguments.json)) && !status.failed ? 0 : exitFailed;
    }
    case Arguments::Command::Destinations: {
        const auto output = ask(u"destinationinfo"_s, {u"-X"_s});
        const auto destinations = BackupDestinations::fromOutput(output);
        if (!output || output->isEmpty() || !destinations.success) {
            complain(u"the destinations could not be read from %1"_s.arg(tmutilPath()));
            return exitFailed;
        }
        return print(report::destinations(destinations.list, arguments.json)) ? 0 : exitFailed;
    }
    case Arguments::Command::Next: {
        QtRunLoop runLoop;
        const auto defaults = openUserDefaults(DefaultsAccess::ReadOnly, runLoop);
        defaults->registerDefaults(registeredDefaults());
        const Date from = arguments.from.value_or(runLoop.now());
        const auto starts = comingStarts(*defaults, from, arguments.count);
        return print(report::starts(starts, arguments.json)) ? 0 : exitFailed;
    }
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
