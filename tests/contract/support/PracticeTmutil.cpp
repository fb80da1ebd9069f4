#include "PracticeTmutil.h"

#include "PropertyList.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QThread>

#include <chrono>
#include <csignal>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

void start(QProcess& process, const QString& program, const QStringList& arguments)
{
    process.setEnvironment({u"command="_s + arguments.value(0)});
    process.start(program, arguments);
}

Answer answerOf(QProcess& process)
{
    if ((process.state() != QProcess::NotRunning && !process.waitForFinished(-1)) ||
        process.error() == QProcess::FailedToStart || process.exitStatus() != QProcess::NormalExit)
        return {-1, process.readAllStandardOutput(), process.readAllStandardError() + process.errorString().toUtf8()};
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

} // namespace

Answer runProgram(const QString& program, const QStringList& arguments)
{
    QProcess process;
    start(process, program, arguments);
    return answerOf(process);
}

std::optional<QVariantMap> parseStatus(const QByteArray& text)
{
    const auto start = text.indexOf('{');
    const auto end = text.lastIndexOf('}');
    if (start < 0 || end < start)
        return std::nullopt;
    const auto value = propertylist::parseOldStyle(QByteArrayView(text).sliced(start, end - start + 1));
    if (!value)
        return std::nullopt;
    return value->toMap();
}

bool eventually(const std::function<bool()>& condition)
{
    for (const QDeadlineTimer limit(60s); !limit.hasExpired(); QThread::msleep(20)) {
        if (condition())
            return true;
    }
    return false;
}

PracticeTmutil::PracticeTmutil(const QString& tmutil)
{
    QDir().mkdir(source());
    write(u"tmutil"_s, "#!/bin/sh\n"
                       "export XDG_CONFIG_HOME='" +
                           path(u"config"_s).toUtf8() + "' XDG_STATE_HOME='" + path(u"state"_s).toUtf8() +
                           "' XDG_CACHE_HOME='" + path(u"cache"_s).toUtf8() + "'\nexec '" + tmutil.toUtf8() +
                           "' \"$@\"\n");
    QFile::setPermissions(executable(),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther);
    run({u"addsource"_s, source()});
}

PracticeTmutil::~PracticeTmutil()
{
    run({u"stopbackup"_s});
    eventually([this] { return status().value(u"Running"_s).toString() != "1"_L1; });
    // Folders that nobody may write to, and names that Qt cannot read.
    runProgram(u"/bin/sh"_s, {u"-c"_s, u"/bin/chmod -R u+rwX '%1'; /bin/rm -r '%1'"_s.arg(folder_.path())});
}

QVariantMap PracticeTmutil::status() const
{
    return parseStatus(run({u"status"_s}).output).value_or(QVariantMap());
}

Answer PracticeTmutil::watch(const QString& program, const QStringList& arguments) const
{
    QProcess process;
    start(process, program, arguments);
    // Whoever completes a backup waits for those who watch it; a request to end is all that shortens that.
    while (!process.waitForFinished(100) && process.state() != QProcess::NotRunning) {
        if (status().value(u"BackupPhase"_s).toString() == "Finishing"_L1)
            endWorker();
    }
    return answerOf(process);
}

void PracticeTmutil::endWorker() const
{
    QFile run(stateFolder() + "/run.plist"_L1);
    if (!run.open(QIODevice::ReadOnly))
        return;
    const auto contents = propertylist::parse(run.readAll()).value_or(QVariant()).toMap();
    if (const auto worker = contents.value(u"Worker"_s).toInt(); worker > 0)
        ::kill(worker, SIGTERM);
}

QString PracticeTmutil::addDisk(const QString& name) const
{
    QDir().mkpath(path(name));
    run({u"setdestination"_s, u"-a"_s, path(name)});
    return QDir(path(name) + "/Quillon.backups"_L1).entryList(QDir::Dirs | QDir::NoDotAndDotDot).value(0);
}

void PracticeTmutil::write(const QString& name, const QByteArray& contents) const
{
    QDir().mkpath(QFileInfo(path(name)).path());
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
        qFatal("%s cannot be written", qPrintable(path(name)));
}

} // namespace quillon
