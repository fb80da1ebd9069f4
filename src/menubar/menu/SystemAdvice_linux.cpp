#include "LocalizedString.h"
#include "SystemAdvice.h"
#include "TMUtilQueue.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// The word as a shell reads it back (POSIX.1-2017, Shell Command Language, 2.2.2).
QString quoted(QString word)
{
    return u'\'' + word.replace(u'\'', "'\\''"_L1) + u'\'';
}

/// The tool by its name where a shell finds it by that, else by its path.
QString toolInAShell()
{
    const QString tool = tmutilPath();
    const QString found = QStandardPaths::findExecutable(u"tmutil"_s);
    const bool same = !found.isEmpty() && QFileInfo(found).canonicalFilePath() == QFileInfo(tool).canonicalFilePath();
    return same ? u"tmutil"_s : quoted(tool);
}

/// A folder to restore, for example: the user's documents, or all of the home folder where there are none.
QString exampleFolder()
{
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QDir(documents).exists() ? documents : QDir::homePath();
}

} // namespace

std::optional<AlertRequest> restoreGuide(const QStringList& latestBackups)
{
    const QString tool = toolInAShell();
    const QString list = tool + " listbackups"_L1;
    AlertRequest guide;
    guide.messageText = localizedString("restoreGuideTitle");
    guide.buttons = {localizedString("AlertButtonClose")};
    if (latestBackups.isEmpty()) {
        guide.informativeText = localizedString("restoreGuideEmptyMessage").arg(list);
        return guide;
    }
    const QString restore = u"%1 restore \"$(%1 latestbackup)\"%2 ~/%3"_s.arg(
        tool, quoted(exampleFolder()), quoted(localizedString("restoreFolderName")));
    guide.informativeText = localizedString("restoreGuideMessage").arg(latestBackups.join(u'\n'), list, restore);
    return guide;
}

QString startFailureReason(std::int32_t exitStatus)
{
    switch (exitStatus) { // tmutil(1), EXIT STATUS
    case 2:
        return localizedString("setupNoDiskMessage");
    case 4:
        return localizedString("startDiskAwayMessage");
    case 9:
        return localizedString("startResticMissingMessage");
    default:
        return {};
    }
}

} // namespace quillon
