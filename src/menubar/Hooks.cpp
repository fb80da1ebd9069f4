#include "Hooks.h"

#include "LocalizedString.h"

#include <QFile>
#include <QPointer>
#include <QProcessEnvironment>
#include <QStandardPaths>

#include <chrono>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto longest = 10min;
constexpr qsizetype wordsBound = 2000; // characters, of some tens of thousands of entries

QString nameOf(Hooks::Event event)
{
    switch (event) {
    case Hooks::Event::Before:
        return u"before"_s;
    case Hooks::Event::Completed:
        return u"completed"_s;
    case Hooks::Event::Failed:
        return u"failed"_s;
    case Hooks::Event::Skipped:
        return u"skipped"_s;
    }
    Q_UNREACHABLE();
}

/// What others could have written would run with this user's rights.
bool isOwn(const struct stat& entry)
{
    return (entry.st_uid == geteuid() || entry.st_uid == 0) && (entry.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

bool mayRun(const QString& folder, const QString& program)
{
    struct stat place {};
    struct stat file {};
    const QByteArray path = QFile::encodeName(program);
    return stat(QFile::encodeName(folder).constData(), &place) == 0 && isOwn(place) &&
           stat(path.constData(), &file) == 0 && isOwn(file) && S_ISREG(file.st_mode) &&
           access(path.constData(), X_OK) == 0;
}

/// That of this program, which scripts need for PATH and HOME, and what has happened.
QStringList environmentOf(const QString& event, const LedgerEntry& entry)
{
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QUILLON_EVENT"_s, event);
    environment.insert(u"QUILLON_DISK"_s, entry.diskIdentifier);
    environment.insert(u"QUILLON_DISK_NAME"_s, entry.diskName);
    environment.insert(u"QUILLON_BYTES"_s, entry.bytes ? QString::number(*entry.bytes) : QString());
    environment.insert(
        u"QUILLON_DURATION"_s,
        entry.began && entry.ended
            ? QString::number(std::chrono::duration_cast<std::chrono::seconds>(*entry.ended - *entry.began).count())
            : QString());
    environment.insert(u"QUILLON_REASON"_s, quillon::nameOf(entry.reason));
    return environment.toStringList();
}

/// What it complained of comes last.
QString wordsOf(const QByteArray& output, const QByteArray& errors)
{
    return QString::fromUtf8(output.trimmed() + '\n' + errors).trimmed().right(wordsBound);
}

} // namespace

struct Hooks::Run {
    QPointer<QObject> whoAsks;
    Completion completion;
    std::unique_ptr<RunningTask> child{};
    Timer limit{};
    QByteArray output{};
    bool tookTooLong = false;

    Result resultOf(const QString& program, const TaskResult& ended) const
    {
        const QString words = wordsOf(output, ended.errors);
        if (tookTooLong)
            return {false, localizedString("hookTooLongMessage").arg(program)};
        if (ended.status == 0)
            return {true, words};
        const QString line = words.section(u'\n', -1);
        return {false, line.isEmpty() ? localizedString("hookStatusMessage").arg(program, QString::number(ended.status))
                                      : line};
    }
};

Hooks::Hooks(Services services)
    : services_(std::move(services))
{
}

Hooks::~Hooks() = default;

void Hooks::run(Event event, const LedgerEntry& entry, QObject* whoAsks, const Completion& completion)
{
    const QString program = services_.folder + u'/' + nameOf(event);
    if (services_.folder.isEmpty() || !QFile::exists(program)) {
        completion({});
        return;
    }
    if (!mayRun(services_.folder, program)) {
        services_.runLoop.enqueue([whoAsks = QPointer<QObject>(whoAsks), completion, program] {
            if (whoAsks)
                completion({false, localizedString("hookNotRunMessage").arg(program)});
        });
        return;
    }
    launch(running_.emplace_back(Run{whoAsks, completion}), program, environmentOf(nameOf(event), entry));
}

void Hooks::launch(Run& run, const QString& program, const QStringList& environment)
{
    const TaskRequest request{
        .executable = program,
        .arguments = {},
        .environment = environment,
        .captureErrors = true,
        .takeOutput = [&run](const QByteArray& bytes) { run.output = (run.output + bytes).right(Task::errorBound); }};
    run.limit = services_.runLoop.scheduleAfter(longest, [&run] {
        run.tookTooLong = true;
        run.child->kill();
    });
    run.child = services_.launcher.launch(request, [this, &run, program](const TaskResult& ended) {
        const auto whoAsks = run.whoAsks;
        const auto completion = run.completion;
        const Result result = run.resultOf(program, ended);
        running_.remove_if([&run](const Run& one) { return &one == &run; });
        if (whoAsks)
            completion(result);
    });
}

QString hooksFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/quillon/hooks"_L1;
}

} // namespace quillon
