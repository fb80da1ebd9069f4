#include "PlayedBackups.h"

#include "PropertyList.h"
#include "VirtualRunLoop.h"

#include <QDateTime>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>
#include <chrono>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

QDateTime dateOf(Date date)
{
    return QDateTime::fromMSecsSinceEpoch(date.time_since_epoch().count(), Qt::UTC);
}

QByteArray line(const QString& path, const QString& type, qint64 size, const QString& modified,
                const QString& backup = {})
{
    QJsonObject object{{u"path"_s, path}, {u"type"_s, type}, {u"modified"_s, modified}};
    if (type == "file"_L1)
        object.insert(u"size"_s, size);
    if (!backup.isEmpty())
        object.insert(u"backup"_s, backup);
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

/// A home folder; what a later backup has of it differs.
QByteArray home(bool later)
{
    const QString then = u"2026-10-03T09:12:00Z"_s;
    QByteArray lines =
        line(u"/home/you/Documents"_s, u"folder"_s, 0, then) + line(u"/home/you/Fotos 2026"_s, u"folder"_s, 0, then) +
        line(u"/home/you/Recipes.odt"_s, u"file"_s, 48'213, then) +
        line(u"/home/you/Steuererklärung 2025 – Anlagen und Belege.pdf"_s, u"file"_s, 2'941'002, then) +
        line(u"/home/you/budget.ods"_s, u"file"_s, later ? 81'400 : 77'912, later ? u"2026-10-20T20:00:00Z"_s : then);
    if (!later)
        lines += line(u"/home/you/letter draft.txt"_s, u"file"_s, 1'204, then);
    return lines;
}

} // namespace

PlayedBackups::PlayedBackups(VirtualRunLoop& runLoop, AlertPresenter& alerts, bool withBackups)
    : VirtualLauncher(runLoop)
    , now_(runLoop.now())
    , withBackups_(withBackups)
    , window_(std::make_unique<BrowseWindow>(
          Setup::Services{*this, runLoop, alerts, u"tmutil"_s}, workspace_,
          BrowseWindow::Places{.cache = cache_.path(), .wanted = withBackups ? u"/home/you"_s : QString()}))
{
    window_->show();
    runLoop.advance(Seconds(1));
}

PlayedBackups::~PlayedBackups() = default;

QVariantList PlayedBackups::backups() const
{
    QVariantList list;
    const std::array hoursAgo{2, 5, 29, 60, 24 * 12, 24 * 19, 24 * 40, 24 * 75};
    for (auto hours = hoursAgo.rbegin(); hours != hoursAgo.rend(); ++hours)
        list.append(QVariantMap{{u"Name"_s, u"/media/Studio/desk/"_s + QString::number(*hours)},
                                {u"Date"_s, dateOf(now_ - std::chrono::hours(*hours))},
                                {u"DestinationID"_s, u"Studio Disk"_s},
                                {u"Computer"_s, u"desk"_s},
                                {u"Complete"_s, *hours != hoursAgo[2]},
                                {u"Damaged"_s, *hours == hoursAgo[5]}});
    list.append(QVariantMap{{u"Name"_s, u"/media/Travel/desk/1"_s},
                            {u"Date"_s, dateOf(now_ - std::chrono::hours(24 * 50))},
                            {u"DestinationID"_s, u"Travel"_s},
                            {u"Computer"_s, u"desk"_s},
                            {u"Complete"_s, true}});
    return list;
}

QByteArray PlayedBackups::answerTo(const QStringList& arguments) const
{
    const QString& command = arguments.first();
    const QString& last = arguments.last();
    if (command == "destinationinfo"_L1) {
        QVariantList disks;
        for (const QString& name : {u"Studio Disk"_s, u"Travel"_s})
            disks.append(QVariantMap{{u"ID"_s, name}, {u"Name"_s, name}});
        return propertylist::toXml(QVariantMap{{u"Destinations"_s, withBackups_ ? disks : QVariantList()}}).value();
    }
    if (command == "listbackups"_L1)
        return propertylist::toXml(withBackups_ ? backups() : QVariantList()).value();
    if (command == "listfiles"_L1)
        return last.endsWith("/home"_L1)       ? line(u"/home/you"_s, u"folder"_s, 0, {})
               : last.endsWith("/home/you"_L1) ? home(!last.contains("/960/"_L1))
                                               : QByteArray();
    if (command == "versions"_L1)
        return line(last, u"file"_s, 81'400, {}, u"/media/Studio/desk/2"_s) +
               line(last, u"file"_s, 77'912, {}, u"/media/Studio/desk/288"_s) +
               line(last, u"file"_s, 71'030, {}, u"/media/Studio/desk/960"_s);
    if (command == "findfiles"_L1)
        return line(u"/home/you/budget.ods"_s, u"file"_s, 81'400, u"2026-10-20T20:00:00Z"_s,
                    u"/media/Studio/desk/2"_s) +
               line(u"/home/you/Documents/budget 2025.ods"_s, u"file"_s, 64'100, u"2025-12-30T11:00:00Z"_s,
                    u"/media/Studio/desk/288"_s);
    if (arguments.contains(u"--skip"_s))
        return "{\"event\":\"skipped\",\"source\":\"" + arguments.value(4).toUtf8() +
               "\",\"path\":\"/home/you/budget.ods\"}\n";
    return "{\"event\":\"failed\",\"source\":\"" + arguments.value(4).toUtf8() +
           "\",\"path\":\"/home/you/budget.ods\",\"cause\":\"Damaged\","
           "\"reason\":\"\\\"/home/you/budget.ods\\\" is damaged in the backup.\"}\n";
}

TmutilScript::Call PlayedBackups::behaviour(const TaskRequest& request)
{
    TmutilScript::Call call;
    call.output = answerTo(request.arguments);
    return call;
}

} // namespace quillon
