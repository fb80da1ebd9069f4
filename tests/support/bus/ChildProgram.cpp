#include "ChildProgram.h"

#include "EventLoop.h"

#include <csignal>
#include <stdexcept>
#include <sys/prctl.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

void start(QProcess& process, const QString& program, const QStringList& arguments, const QStringList& extra)
{
    auto environment = QProcessEnvironment::systemEnvironment();
    for (const QString& variable : extra)
        environment.insert(variable.section(u'=', 0, 0), variable.section(u'=', 1));
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); }); // also when this process crashes
    process.start(program, arguments);
    if (!process.waitForStarted(-1))
        throw std::runtime_error("cannot start " + program.toStdString());
}

} // namespace

ChildProgram::ChildProgram(const QString& program, const QStringList& arguments, const QStringList& extra)
{
    start(process_, program, arguments, extra);
}

ChildProgram::~ChildProgram()
{
    process_.terminate();
    constexpr int graceMs = 60'000;
    if (process_.state() != QProcess::NotRunning && !process_.waitForFinished(graceMs))
        crash();
}

void ChildProgram::crash()
{
    process_.kill();
    process_.waitForFinished(-1);
}

QString ChildProgram::readLine()
{
    if (!runUntil([this] { return process_.canReadLine() || process_.state() == QProcess::NotRunning; }) ||
        !process_.canReadLine())
        throw std::runtime_error(process_.program().toStdString() + " says nothing");
    return QString::fromUtf8(process_.readLine()).trimmed();
}

QString outputOf(const QString& program, const QStringList& arguments, const QStringList& extra)
{
    QProcess process;
    start(process, program, arguments, extra);
    if (!runUntil([&process] { return process.state() == QProcess::NotRunning; }) || process.exitCode() != 0)
        throw std::runtime_error(program.toStdString() + " failed");
    return QString::fromUtf8(process.readAllStandardOutput());
}

} // namespace quillon
