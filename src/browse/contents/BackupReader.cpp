#include "BackupReader.h"

#include "LocalizedString.h"

#include <chrono>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

// A path has 4096 bytes at most, each of which may take six characters.
constexpr qsizetype longestLine = qsizetype{256} * 1024;

} // namespace

ToolCall::ToolCall(const Setup::Services& services, const QStringList& arguments, Handlers handlers,
                   std::optional<Seconds> longestSilence)
    : handlers_(std::move(handlers))
    , runLoop_(services.runLoop)
    , executable_(services.tmutil)
    , longestSilence_(longestSilence)
{
    child_ = services.launcher.launch({.executable = executable_,
                                       .arguments = arguments,
                                       .environment = {u"command="_s + arguments.first()},
                                       .captureErrors = true,
                                       .takeOutput = [this](const QByteArray& bytes) { take(bytes); }},
                                      [this](const TaskResult& result) { end(result); });
    awaitMore();
}

ToolCall::~ToolCall()
{
    if (child_)
        child_->terminate();
}

void ToolCall::stop()
{
    if (child_)
        child_->terminate();
}

void ToolCall::awaitMore()
{
    if (longestSilence_)
        silence_ = runLoop_.scheduleAfter(*longestSilence_, [this] { giveUp(); });
}

/// A tool that waits for a disk may not even end when it is asked to, so that its end is not waited for.
void ToolCall::giveUp()
{
    child_->terminate();
    child_.reset();
    const auto ended = handlers_.ended;
    ended(localizedString("disksToolHangs"));
}

void ToolCall::take(const QByteArray& bytes)
{
    awaitMore();
    rest_ += bytes;
    qsizetype begin = 0;
    for (qsizetype end = rest_.indexOf('\n'); readable_ && end >= 0; end = rest_.indexOf('\n', begin)) {
        readable_ = handlers_.line(rest_.mid(begin, end - begin));
        begin = end + 1;
    }
    rest_.remove(0, begin);
    if (rest_.size() > longestLine)
        readable_ = false;
    if (!readable_) {
        rest_.clear();
        child_->terminate();
    }
}

void ToolCall::end(const TaskResult& result)
{
    child_.reset();
    silence_.invalidate();
    // A last line without its end is half of one.
    const bool whole = readable_ && rest_.isEmpty();
    const auto ended = handlers_.ended;
    if (result.status == 0)
        ended(whole ? QString() : localizedString("disksToolUnreadable"));
    else
        ended(readable_ ? toolComplaint(result, executable_) : localizedString("disksToolUnreadable"));
}

namespace {

// Who only passes through the timeline does not set the disk to work.
constexpr auto pauseBeforeFilling = 1s;

// A disk may have to spin up, and restic to read its index.
constexpr auto longestSilence = 2min;

constexpr qint64 toldEvery = 5000; // entries

} // namespace

BackupReader::BackupReader(const Setup::Services& services, const ListingCacheFolder& kept, Backup backup)
    : services_(services)
    , folder_(kept)
    , backup_(std::move(backup))
    , kept_(folder_.listing(backup_.disk + backup_.name))
{
}

void BackupReader::list(const QString& folder, const FilesTaker& taker)
{
    listing_.reset();
    // tmutil alone knows which folders the backup was made of; what is kept has those around them, too.
    if (kept_->isWhole() && !folder.isEmpty()) {
        if (const auto files = kept_->folder(folder))
            return taker(*files, {});
    }
    listed_.clear();
    listing_ =
        std::make_unique<ToolCall>(services_, QStringList{u"listfiles"_s, u"--json"_s, u"--"_s, backup_.name + folder},
                                   ToolCall::Handlers{.line = [this](const QByteArray& line) { return take(line); },
                                                      .ended =
                                                          [this, taker](const QString& complaint) {
                                                              listing_.reset();
                                                              const auto files = std::exchange(listed_, {});
                                                              taker(files, complaint);
                                                          }},
                                   longestSilence);
}

bool BackupReader::take(const QByteArray& line)
{
    auto entry = readFileLine(line);
    if (entry)
        listed_.push_back(std::move(*entry));
    return entry.has_value();
}

void BackupReader::fill(const FillWatcher& watcher)
{
    if (kept_->isWhole() || watcher_)
        return;
    watcher_ = watcher;
    delay_ = services_.runLoop.scheduleAfter(pauseBeforeFilling, [this] { startFilling(); });
}

void BackupReader::startFilling()
{
    if (!kept_->begin())
        return;
    filling_ = std::make_unique<ToolCall>(
        services_, QStringList{u"listfiles"_s, u"-r"_s, u"--json"_s, u"--"_s, backup_.name},
        ToolCall::Handlers{.line = [this](const QByteArray& line) { return keep(line); },
                           .ended = [this](const QString& complaint) { endFilling(complaint); }},
        longestSilence);
}

bool BackupReader::keep(const QByteArray& line)
{
    const auto entry = readFileLine(line);
    if (!entry || !kept_->add(*entry))
        return false;
    if (++filled_ % toldEvery == 0)
        watcher_(filled_, false);
    return true;
}

void BackupReader::endFilling(const QString& complaint)
{
    filling_.reset();
    // Without it the tool is asked each time; nobody needs to know.
    if (complaint.isEmpty() && kept_->finish())
        folder_.trim();
    else
        kept_->discard();
    watcher_(filled_, true);
}

ListingCache::Page BackupReader::search(const NamePattern& pattern, qint64 behind, int most)
{
    return kept_->search(pattern, behind, most).value_or(ListingCache::Page());
}

} // namespace quillon
