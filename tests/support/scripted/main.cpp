// A tmutil that plays a script. The script "script.json" lies in the folder that this program is called by (a link to
// it will do); "progress" there counts the calls made, "problems" collects what should not have happened.

#include "TmutilScript.h"

#include <QFile>
#include <QFileInfo>

#include <csignal>
#include <cstdio>
#include <exception>
#include <sys/file.h>
#include <unistd.h>

namespace {

using namespace quillon;
using namespace Qt::StringLiterals;

constexpr int unexpectedCall = 99;

QByteArray read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The number of this call, counted from 0; calls that overlap get different ones.
int nextCall(const QString& folder)
{
    QFile file(folder + u"/progress"_s);
    if (!file.open(QIODevice::ReadWrite | QIODevice::Unbuffered))
        return -1;
    flock(file.handle(), LOCK_EX);
    const int call = file.readAll().toInt();
    file.seek(0);
    file.write(QByteArray::number(call + 1));
    return call;
}

void report(const QString& folder, const QString& problem)
{
    QFile file(folder + u"/problems"_s);
    if (file.open(QIODevice::Append))
        file.write(problem.toUtf8() + '\n');
}

/// The variables that this program was given.
QString environment()
{
    QStringList variables;
    for (char** variable = environ; *variable; ++variable)
        variables.append(QString::fromLocal8Bit(*variable));
    return variables.join(u' ');
}

int play(const TmutilScript::Call& call)
{
    using Fault = TmutilScript::Fault;
    usleep(static_cast<useconds_t>(call.delay * 1e6));
    const QByteArray output = call.faultyOutput();
    std::fwrite(output.constData(), 1, static_cast<std::size_t>(output.size()), stdout);
    std::fflush(stdout);
    if (call.fault == Fault::Hang) {
        for (;;)
            pause();
    }
    if (call.fault == Fault::Crash) {
        std::signal(SIGTERM, SIG_DFL);
        std::raise(SIGTERM);
    }
    if (call.fault == Fault::Endless) {
        const QByteArray page(65536, 'x');
        while (std::fwrite(page.constData(), 1, 65536, stdout) == 65536) {
        }
    }
    return call.status;
}

} // namespace

int main(int argc, char** argv)
{
    const QString folder = QFileInfo(QString::fromLocal8Bit(argv[0])).path();
    try {
        const auto script = TmutilScript::fromJson(read(folder + u"/script.json"_s));
        QStringList words;
        for (int i = 1; i < argc; ++i)
            words.append(QString::fromLocal8Bit(argv[i]));
        if (const QString given = environment(); given != u"command="_s + words.value(0))
            report(folder, u"unexpected environment: "_s + given);
        const int number = nextCall(folder);
        if (number < 0 || number >= script.calls.size() || script.calls[number].expected != words) {
            report(folder, u"unexpected call: "_s + words.join(u' '));
            return unexpectedCall;
        }
        return play(script.calls[number]);
    } catch (const std::exception& problem) {
        report(folder, QString::fromLocal8Bit(problem.what()));
        return unexpectedCall;
    }
}
