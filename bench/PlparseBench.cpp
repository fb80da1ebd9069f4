// GNUstep's plparse (Debian: gnustep-base-runtime) and this project's reader on the same file: each row is the time of
// a whole process that reads the file, builds the values and ends. The text is long enough that a program's start is a
// few per cent of its row.

#include "PropertyList.h"
#include "StatusText.h"

#include <QFile>
#include <QStandardPaths>
#include <QTemporaryFile>

#include <benchmark/benchmark.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quillon {

namespace {

using namespace Qt::StringLiterals;

constexpr qsizetype textSize = qsizetype{16} << 20;

/// Times child processes that run `work`, which must not return unless it failed.
template<typename Work>
void timeProcess(benchmark::State& state, const QString& path, Work work)
{
    for ([[maybe_unused]] auto run : state) {
        const pid_t child = fork();
        if (child == 0) {
            work();
            _exit(1);
        }
        int status = -1;
        if (waitpid(child, &status, 0) != child || status != 0)
            state.SkipWithError("the file could not be read");
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * QFile(path).size());
}

QString writeStatusTexts(QTemporaryFile& file)
{
    file.open();
    file.write(statusTexts(textSize));
    file.close();
    return file.fileName();
}

void readInThisProgram(benchmark::State& state)
{
    QTemporaryFile temporary;
    const QString path = writeStatusTexts(temporary);
    timeProcess(state, path, [&path] {
        QFile file(path);
        if (file.open(QIODevice::ReadOnly) && propertylist::parseOldStyle(file.readAll()))
            _exit(0);
    });
}

void readWithPlparse(benchmark::State& state)
{
    const QByteArray program = QFile::encodeName(QStandardPaths::findExecutable(u"plparse"_s));
    if (program.isEmpty()) {
        state.SkipWithError("plparse is not installed");
        return;
    }
    QTemporaryFile temporary;
    const QString path = writeStatusTexts(temporary);
    timeProcess(state, path, [&program, encoded = QFile::encodeName(path)] {
        if (freopen("/dev/null", "w", stdout))
            execl(program.constData(), program.constData(), encoded.constData(), nullptr);
    });
}

} // namespace

BENCHMARK(readInThisProgram)
    ->Name("property list/16 MB file, own reader")
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(readWithPlparse)->Name("property list/16 MB file, plparse")->UseRealTime()->Unit(benchmark::kMillisecond);

} // namespace quillon
