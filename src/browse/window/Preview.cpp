#include "Preview.h"

#include "AlertPresenter.h"
#include "BackupSetup.h"
#include "FileLock.h"
#include "LocalizedString.h"

#include <QDir>
#include <QFile>
#include <QUrl>

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr auto folderName = "preview-"_L1;

} // namespace

Preview::Preview(const Setup::Services& services, Workspace& workspace, QString folder)
    : services_(services)
    , workspace_(workspace)
    , folder_(std::move(folder))
{
    const QDir kept(folder_);
    for (const QString& name : kept.entryList({folderName + u'*'}, QDir::Dirs | QDir::NoSymLinks))
        QDir(kept.filePath(name)).removeRecursively();
}

void Preview::show(const QString& backup, const FileEntry& file)
{
    const QString name = shownName(file.path);
    fetching_.reset();
    if (!copies_ && makePrivateFolder(folder_))
        copies_.emplace(folder_ + u'/' + folderName + "XXXXXX"_L1);
    const QString around = copies_ ? copies_->filePath(QString::number(++count_)) : QString();
    if (around.isEmpty() || !makePrivateFolder(around))
        return fail(name, copies_ ? copies_->errorString() : folder_);
    const QString copy = around + file.path.sliced(file.path.lastIndexOf(u'/'));
    Q_EMIT progressed(localizedString("browsePreviewing").arg(name));
    fetching_ = std::make_unique<ToolCall>(
        services_, QStringList{u"restore"_s, u"--json"_s, u"--"_s, backup + file.path, copy},
        ToolCall::Handlers{.line = [](const QByteArray&) { return true; },
                           .ended =
                               [this, name, copy](const QString& complaint) {
                                   fetching_.reset();
                                   Q_EMIT progressed({});
                                   complaint.isEmpty() ? open(name, copy) : fail(name, complaint);
                               }});
}

void Preview::open(const QString& name, const QString& copy)
{
    QFile::setPermissions(copy, QFile::ReadOwner);
    workspace_.openURL(QUrl::fromLocalFile(copy), [this, name](bool opened) {
        if (!opened)
            fail(name, localizedString("browseNoProgram"));
    });
}

void Preview::fail(const QString& name, const QString& complaint)
{
    services_.alerts.present({.style = AlertStyle::Warning,
                              .messageText = localizedString("browsePreviewFailed").arg(name),
                              .informativeText = complaint,
                              .buttons = {localizedString("disksOkTitle")}},
                             {});
}

} // namespace quillon
