#include "Setup.h"

#include "LocalizedString.h"
#include "Services.h"
#include "Text.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>

#include <array>
#include <chrono>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

TmutilClient::TmutilClient(TaskLauncher& launcher, RunLoop& runLoop, QString executable, Seconds longestCall)
    : executable_(executable)
    , longestCall_(longestCall)
    , queue_(launcher, runLoop, std::move(executable))
{
}

void TmutilClient::call(const QStringList& arguments, const Handler& handler, const std::optional<QByteArray>& input)
{
    queue_.submit({.command = arguments.first(),
                   .arguments = arguments.mid(1),
                   .ended =
                       [this, handler](const TaskResult& result, bool tooSlow) {
                           const bool success = result.status == 0 && result.output;
                           QString complaint;
                           if (tooSlow)
                               complaint = localizedString("disksToolHangs");
                           else if (!success)
                               complaint = toolComplaint(result, executable_);
                           handler({success, result.output.value_or(QByteArray()), complaint, result.status});
                       },
                   .longest = longestCall_,
                   .input = input});
}

namespace {

/// Of the exit statuses those that tell why: tmutil(1), EXIT STATUS.
QString causeOf(int status)
{
    static const QMap<int, QString> causes{{4, u"DestinationMissing"_s}, {5, u"Locked"_s},
                                           {6, u"NoBackup"_s},           {9, u"ResticMissing"_s},
                                           {15, u"WrongKey"_s},          {16, u"Untrusted"_s},
                                           {66, u"NoInput"_s},           {73, u"CannotWrite"_s},
                                           {77, u"AccessDenied"_s},      {78, u"ConfigurationDamaged"_s}};
    return causes.value(status);
}

} // namespace

QString toolReason(const QString& cause, const QString& line)
{
    static const QMap<QString, const char*> sentences{{u"AccessDenied"_s, "reasonAccessDenied"},
                                                      {u"BadCertificate"_s, "reasonUntrusted"},
                                                      {u"CannotWrite"_s, "reasonCannotWrite"},
                                                      {u"ChangedHostKey"_s, "reasonUntrusted"},
                                                      {u"ConfigurationDamaged"_s, "reasonConfiguration"},
                                                      {u"ConnectionLost"_s, "reasonConnectionLost"},
                                                      {u"Damaged"_s, "reasonDamaged"},
                                                      {u"DestinationMissing"_s, "reasonMissing"},
                                                      {u"Locked"_s, "reasonLocked"},
                                                      {u"NoAttributes"_s, "reasonNoAttributes"},
                                                      {u"NoBackup"_s, "reasonNotInBackups"},
                                                      {u"NoInput"_s, "reasonNoInput"},
                                                      {u"NoPermission"_s, "reasonCannotWrite"},
                                                      {u"NoRepository"_s, "reasonNoRepository"},
                                                      {u"NoSpace"_s, "reasonNoSpace"},
                                                      {u"NoWorkSpace"_s, "reasonNoWorkSpace"},
                                                      {u"PathExists"_s, "reasonExists"},
                                                      {u"ResticMissing"_s, "reasonResticMissing"},
                                                      {u"ServerFailed"_s, "reasonServerFailed"},
                                                      {u"UnknownHostKey"_s, "reasonUntrusted"},
                                                      {u"Untrusted"_s, "reasonUntrusted"},
                                                      {u"WrongKey"_s, "reasonWrongKey"}};
    const char* const key = sentences.value(cause);
    if (key == nullptr)
        return line;
    const QString sentence = localizedString(key);
    return line.isEmpty() ? sentence : localizedString("reasonWithDetail").arg(sentence, line);
}

QString toolComplaint(const TaskResult& result, const QString& executable)
{
    if (result.status == TaskResult::launchRefused)
        return localizedString("disksToolMissing").arg(executable);
    QString line = QString::fromUtf8(result.errors).section(u'\n', 0, 0, QString::SectionSkipEmpty).trimmed();
    if (constexpr auto prefix = "tmutil: "_L1; line.startsWith(prefix))
        line.remove(0, prefix.size());
    const QString reason = toolReason(causeOf(result.status), shownLongText(line));
    return reason.isEmpty() ? localizedString("disksToolFailed").arg(result.status) : reason;
}

Setup::Setup(const Services& services)
    : services_(services)
    , tmutil_(services.launcher, services.runLoop, services.tmutil)
{
}

void Setup::read(const QStringList& arguments, const Reader& reader)
{
    ++awaitedReads_;
    tmutil_.call(arguments, [this, reader](const TmutilAnswer& answer) {
        if (!answer.success)
            trouble_ = answer.complaint;
        else if (!reader(answer.output))
            trouble_ = localizedString("disksToolUnreadable");
        if (--awaitedReads_ == 0)
            Q_EMIT readAll(std::exchange(trouble_, {}));
    });
}

void Setup::change(const QStringList& arguments, const std::optional<QByteArray>& input,
                   const TmutilClient::Handler& ended)
{
    changing_ = true;
    Q_EMIT changing(true);
    tmutil_.call(
        arguments,
        [this, ended](const TmutilAnswer& answer) {
            changing_ = false;
            Q_EMIT changing(false);
            ended(answer);
            Q_EMIT changed();
        },
        input);
}

void Setup::change(const QStringList& arguments, const QString& headline, const Reader& then)
{
    change(arguments, std::nullopt, [this, headline, then](const TmutilAnswer& answer) {
        if (!answer.success)
            complain(headline, answer.complaint);
        else if (then && !then(answer.output))
            complain(headline, localizedString("disksToolUnreadable"));
    });
}

void Setup::prepare(const QStringList& arguments)
{
    tmutil_.call(arguments, [](const TmutilAnswer&) {});
}

void Setup::confirm(const QString& message, const QString& informative, const QString& title,
                    const std::function<void()>& go) const
{
    services_.alerts.present({.style = AlertStyle::Warning,
                              .messageText = message,
                              .informativeText = informative,
                              .buttons = {localizedString("disksCancelTitle"), title},
                              .destructiveButton = 1},
                             [go](int response) {
                                 if (response == alertSecondButtonReturn)
                                     go();
                             });
}

void Setup::complain(const QString& headline, const QString& complaint) const
{
    services_.alerts.present({.style = AlertStyle::Warning,
                              .messageText = headline,
                              .informativeText = complaint,
                              .buttons = {localizedString("disksOkTitle")}},
                             {});
}

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
