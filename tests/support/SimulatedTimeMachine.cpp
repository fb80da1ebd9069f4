#include "SimulatedTimeMachine.h"

#include <QFileInfo>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr double stoppingTakes = 4;

} // namespace

SimulatedTimeMachine::SimulatedTimeMachine(VirtualRunLoop& runLoop)
    : VirtualLauncher(runLoop)
    , runLoop_(runLoop)
{
}

void SimulatedTimeMachine::start(const QString& destination)
{
    begun_ = Date(runLoop_.uptime());
    stoppedAfter_.reset();
    used_.append(destination);
    startUptimes_.append(runLoop_.uptime());
}

void SimulatedTimeMachine::stop()
{
    if (isRunning())
        stoppedAfter_ = elapsed();
}

double SimulatedTimeMachine::elapsed() const
{
    return secondsBetween(*begun_, Date(runLoop_.uptime()));
}

double SimulatedTimeMachine::runLength() const
{
    if (stoppedAfter_)
        return *stoppedAfter_ + stoppingTakes;
    double length = 0;
    for (const auto& phase : phases)
        length += phase.seconds;
    return length;
}

bool SimulatedTimeMachine::isRunning() const
{
    return begun_ && elapsed() < runLength();
}

TmutilScript::Call SimulatedTimeMachine::behaviour(const TaskRequest& request)
{
    if (const QString name = QFileInfo(request.executable).fileName(); programs.contains(name))
        return programs.value(name);
    TmutilScript::Call call;
    call.delay = callDuration;
    const QString command = request.arguments.value(0);
    if (isInjected()) {
        call.fault = injection.fault;
        call.status = injection.status;
    }
    const bool takesEffect = call.fault != TmutilScript::Fault::Refused && call.status == 0;
    if (command == "status"_L1) {
        call.output = status();
    } else if (command == "destinationinfo"_L1) {
        call.output = destinationInfo();
    } else if (command == "startbackup"_L1 && takesEffect) {
        call.status = startBackup(request.arguments);
    } else if (command == "stopbackup"_L1 && takesEffect) {
        stop();
    }
    return call;
}

int SimulatedTimeMachine::startBackup(const QStringList& arguments)
{
    const QString chosen = chosenDestination(arguments);
    if (isRunning())
        return 1;
    if (chosen.isEmpty())
        return 4;
    start(chosen);
    return 0;
}

QString SimulatedTimeMachine::chosenDestination(const QStringList& arguments) const
{
    QStringList ids;
    for (const auto& destination : destinations) {
        if (destination.isMounted)
            ids.append(destination.id);
    }
    if (const auto option = arguments.indexOf("-d"_L1); option >= 0)
        return ids.contains(arguments.value(option + 1)) ? arguments.value(option + 1) : QString();
    if (arguments.contains("-r"_L1)) // the one whose last run is longest ago
        std::ranges::stable_sort(ids, {}, [this](const QString& id) { return used_.lastIndexOf(id); });
    else if (!used_.isEmpty())
        return used_.last();
    return ids.value(0);
}

bool SimulatedTimeMachine::isInjected() const
{
    if (injection.command.isEmpty())
        return launched().size() == injection.call;
    const auto ofCommand = std::count_if(launched().begin(), launched().end(), [this](const TaskRequest& request) {
        return request.arguments.value(0) == injection.command;
    });
    return launched().last().arguments.value(0) == injection.command && ofCommand == injection.call;
}

QByteArray SimulatedTimeMachine::status() const
{
    if (!isRunning())
        return idleStatus();
    double into = stoppedAfter_ ? std::min(elapsed(), *stoppedAfter_) : elapsed();
    Phase current = phases.last();
    for (const auto& phase : phases) {
        if (into < phase.seconds) {
            current = phase;
            break;
        }
        into -= phase.seconds;
    }
    QString text = u"Backup session status:\n{\n    BackupPhase = %1;\n    DestinationID = \"%2\";\n    Running = 1;\n"
                   "    Stopping = %3;\n"_s.arg(current.word, used_.last(), stoppedAfter_ ? u"1"_s : u"0"_s);
    if (current.reportsProgress) {
        const double fraction = into / current.seconds;
        text +=
            u"    Progress =     {\n        Percent = \"%1\";\n        TimeRemaining = \"%2\";\n"
            "        bytes = %3;\n    };\n"_s.arg(QString::number(fraction), QString::number(current.seconds - into),
                                                  QString::number(qRound64(fraction * double(totalBytes))));
    }
    return (text + u"}\n"_s).toUtf8();
}

QByteArray SimulatedTimeMachine::idleStatus() const
{
    QByteArray failure;
    if (hasDamage)
        failure = "    LastFailure =     {\n        Cause = Damaged;\n    };\n";
    else if (begun_ && !stoppedAfter_ && phases.last().word != "Finishing"_L1)
        failure = "    LastFailure =     {\n        Description = \"The disk is full.\";\n        DestinationID = \"" +
                  used_.last().toUtf8() + "\";\n    };\n";
    return "Backup session status:\n{\n    ClientID = \"com.apple.backupd\";\n" + failure + "    Running = 0;\n}\n";
}

QByteArray SimulatedTimeMachine::destinationInfo() const
{
    QByteArray list;
    for (const auto& destination : destinations) {
        list += "<dict><key>ID</key><string>" + destination.id.toUtf8() + "</string><key>Name</key><string>" +
                destination.name.toHtmlEscaped().toUtf8() +
                "</string><key>Kind</key><string>Local</string><key>LastDestination</key><integer>" +
                QByteArray(!used_.isEmpty() && used_.last() == destination.id ? "1" : "0") + "</integer>" +
                (destination.isMounted ? "<key>MountPoint</key><string>/</string>" : "") + "</dict>";
    }
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?><plist version=\"1.0\"><dict><key>Destinations</key><array>" +
           list + "</array></dict></plist>";
}

} // namespace quillon
