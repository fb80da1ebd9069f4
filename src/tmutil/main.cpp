#include "CommandLine.h"
#include "Commands.h"
#include "Failure.h"
#include "Paths.h"
#include "Reports.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <clocale>
#include <memory>

using namespace quillon;

namespace {

/// Whether the command runs restic and so needs an event loop; `status`, run every few seconds, must not pay for one.
bool needsEventLoop(Command command)
{
    static constexpr std::array commands{
        Command::RunBackup,   Command::LatestBackup, Command::ListBackups, Command::ListFiles,      Command::FindFiles,
        Command::Versions,    Command::Restore,      Command::Verify,      Command::SetDestination, Command::Adopt,
        Command::RecoveryKey, Command::DeleteBackup, Command::DiskUsage,   Command::StartBackup};
    return std::ranges::find(commands, command) != commands.end();
}

} // namespace

int main(int argc, char** argv)
{
    // Callers pass no locale, and Qt would complain of that on standard error.
    qputenv("LC_ALL", "C.UTF-8");
    std::setlocale(LC_CTYPE, "C.UTF-8"); // patterns match characters, which are more than a byte
    QStringList arguments;
    for (int index = 1; index < argc; ++index)
        arguments.append(decodePath(argv[index]));
    try {
        const CommandLine line = CommandLine::parse(arguments);
        std::unique_ptr<QCoreApplication> application;
        if (needsEventLoop(line.command)) {
            application = std::make_unique<QCoreApplication>(argc, argv);
            std::setlocale(LC_NUMERIC, "C");
        }
        runCommand(line);
        return static_cast<int>(ExitStatus::Success);
    } catch (const Failure& failure) {
        printError(failure.message());
        return static_cast<int>(failure.status());
    }
}
