#include "PlayedDisks.h"

#include "PropertyList.h"
#include "VirtualRunLoop.h"

#include <QDateTime>
#include <QMap>
#include <QVariantMap>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

const QDateTime lastBackup(QDate(2026, 11, 21), QTime(7, 22, 58), Qt::UTC);

QVariantMap disk(const QString& name, const QVariantMap& more)
{
    QVariantMap entry{{u"ID"_s, name}, {u"Name"_s, name}, {u"Path"_s, "/media/you/"_L1 + name}};
    entry.insert(more);
    return entry;
}

QVariantMap present(qlonglong free, qlonglong total)
{
    return {{u"MountPoint"_s, u"/"_s}, {u"BytesFree"_s, free}, {u"BytesTotal"_s, total}};
}

QVariantList disks()
{
    constexpr qlonglong gigabyte = 1'000'000'000;
    QVariantMap studio = present(812 * gigabyte, 2000 * gigabyte);
    studio.insert(u"LastBackup"_s, lastBackup);
    QVariantMap archive = present(3 * gigabyte, 500 * gigabyte);
    archive.insert(u"RecoveryKeyMissing"_s, 1LL);
    archive.insert(u"LastFailure"_s,
                   QVariantMap{{u"Date"_s, u"2026-11-21 07:22:58 +0000"_s},
                               {u"Description"_s, u"The backup disk \"Büro & Archiv\" is full, and nothing can be "
                                                  "removed from it without losing the last complete backup."_s}});
    return {disk(u"Studio Disk"_s, studio), disk(u"Büro & Archiv"_s, archive),
            disk(u"Travel"_s, {{u"LastBackup"_s, lastBackup.addDays(-40)}}),
            disk(u"backups"_s, {{u"Kind"_s, u"Network"_s},
                                {u"URL"_s, u"rest:https://anna@nas.example.org:8000/backups"_s},
                                {u"LastBackup"_s, lastBackup},
                                {u"CAFile"_s, u"/home/you/nas.pem"_s},
                                {u"UploadLimit"_s, 512LL},
                                {u"DownloadLimit"_s, 2048LL}})};
}

/// What servers answer, by their names.
QVariantMap answerOf(const QString& url)
{
    static const QMap<QString, QString> causes{{u"first"_s, u"UnknownHostKey"_s},
                                               {u"changed"_s, u"ChangedHostKey"_s},
                                               {u"self-signed"_s, u"BadCertificate"_s},
                                               {u"known"_s, u"WrongKey"_s}};
    const QVariantMap key{{u"Type"_s, u"ssh-ed25519"_s},
                          {u"Fingerprint"_s, u"SHA256:nThbg6kXUpJWGl7E1IGOCspRomTxdCARLviKw6E5SY8"_s}};
    for (const auto& [name, cause] : causes.asKeyValueRange()) {
        if (url.contains(name + u".example.org"_s))
            return {{u"Cause"_s, cause}, {u"HostKey"_s, key}};
    }
    return {{u"Contents"_s, u"Empty"_s}};
}

QVariant answerTo(const QStringList& arguments)
{
    const QString& command = arguments.first();
    if (command == "setdestination"_L1)
        return answerOf(arguments.last());
    if (command == "destinationinfo"_L1)
        return QVariantMap{{u"Destinations"_s, disks()}};
    if (command == "diskusage"_L1)
        return QVariantList{QVariantMap{{u"ID"_s, u"Studio Disk"_s}, {u"Bytes"_s, 731'400'000'000LL}}};
    if (command == "listsources"_L1)
        return QVariantList{u"/home/you"_s, u"/srv/photos"_s};
    if (command == "listexclusions"_L1)
        return QVariantMap{{u"Paths"_s, QVariantList{u"/home/you/Downloads"_s}},
                           {u"Names"_s, QVariantList{u"*.iso"_s}},
                           {u"LargestFile"_s, 4'000'000'000LL}};
    if (command == "recoverykey"_L1)
        return QVariantMap{{u"RecoveryKey"_s, u"8K2VT-QX4MN-7HDZ0-RW3CE-B91YJ-P5S6A"_s}, {u"KeyID"_s, u"6c2a9f01"_s}};
    return QVariantMap{{u"Files"_s, 1284LL}, {u"Bytes"_s, 36'200'000'000LL}}; // of what would be left out
}

} // namespace

PlayedDisks::PlayedDisks(VirtualRunLoop& runLoop, AlertPresenter& alerts)
    : VirtualLauncher(runLoop)
    , window_(std::make_unique<DisksWindow>(Setup::Services{*this, runLoop, alerts, u"tmutil"_s}, u"lsblk"_s))
{
    window_->show();
    runLoop.advance(Seconds(1));
}

PlayedDisks::~PlayedDisks() = default;

TmutilScript::Call PlayedDisks::behaviour(const TaskRequest& request)
{
    TmutilScript::Call call;
    if (request.executable == "tmutil"_L1) {
        const QVariant answer = answerTo(request.arguments);
        call.output = propertylist::toXml(answer).value();
        call.status = answer.toMap().contains(u"Cause"_s) ? 1 : 0;
    }
    return call;
}

} // namespace quillon
