#include "MountedDisks.h"

#include "ShownText.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

#include <algorithm>
#include <array>
#include <chrono>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto longestWait = 10s;

/// Mount points of the running system; a folder on such a disk can still be added.
bool isOfTheSystem(const QString& path)
{
    static constexpr std::array places{"/boot"_L1, "/efi"_L1, "/etc"_L1, "/home"_L1,
                                       "/nix"_L1,  "/opt"_L1, "/usr"_L1, "/var"_L1};
    // Anything in square brackets, such as [SWAP], is no folder.
    return !path.startsWith(u'/') || path == "/"_L1 || std::ranges::any_of(places, [&path](QLatin1StringView place) {
        return path == place || path.startsWith(QString(place) + u'/');
    });
}

} // namespace

std::optional<std::vector<MountedDisk>> readMountedDisks(const QByteArray& lsblk)
{
    const QJsonValue devices = QJsonDocument::fromJson(lsblk)["blockdevices"_L1];
    if (!devices.isArray())
        return std::nullopt;
    std::vector<MountedDisk> disks;
    for (const QJsonValue device : devices.toArray()) {
        if (device["ro"_L1].toBool())
            continue;
        QStringList paths;
        for (const QJsonValue path : device["mountpoints"_L1].toArray())
            paths.append(path.toString());
        if (paths.contains(u"/"_s))
            continue; // further mount points of the root disk
        const auto path = std::ranges::find_if_not(paths, isOfTheSystem);
        if (path == paths.end())
            continue;
        const QString label = device["label"_L1].toString();
        const QJsonValue free = device["fsavail"_L1];
        disks.push_back({shownText(label.isEmpty() ? QFileInfo(*path).fileName() : label), *path,
                         free.isDouble() ? std::optional(free.toInteger()) : std::nullopt});
    }
    std::ranges::sort(disks, {}, &MountedDisk::name);
    return disks;
}

MountedDisks::MountedDisks(TaskLauncher& launcher, RunLoop& runLoop, QString lsblk)
    : launcher_(launcher)
    , runLoop_(runLoop)
    , lsblk_(std::move(lsblk))
{
}

MountedDisks::~MountedDisks()
{
    if (child_)
        child_->kill();
}

void MountedDisks::refresh()
{
    if (child_)
        return;
    child_ = launcher_.launch(
        {.executable = lsblk_,
         .arguments = {u"--json"_s, u"--list"_s, u"--bytes"_s, u"--output"_s, u"LABEL,MOUNTPOINTS,FSAVAIL,RO"_s},
         .environment = {u"LC_ALL=C.UTF-8"_s}},
        [this](const TaskResult& result) { take(result); });
    // One that hangs in the kernel does not end when it is killed; no other is started beside it.
    limit_ = runLoop_.scheduleAfter(longestWait, [this] {
        fail();
        child_->kill();
    });
}

void MountedDisks::take(const TaskResult& result)
{
    limit_.invalidate();
    child_.reset();
    const auto disks = result.status == 0 && result.output ? readMountedDisks(*result.output) : std::nullopt;
    if (!disks)
        return fail();
    list_ = *disks;
    state_ = State::Known;
}

void MountedDisks::fail()
{
    list_.clear();
    state_ = State::Failed;
}

} // namespace quillon
