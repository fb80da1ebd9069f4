#include "LocalizedString.h"
#include "RestoreGuide.h"
#include "TMUtilPath.h"

#include <QDir>
#include <QStandardPaths>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// The word as a shell reads it back (POSIX.1-2017, Shell Command Language, 2.2.2).
QString quoted(QString word)
{
    return u'\'' + word.replace(u'\'', "'\\''"_L1) + u'\'';
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
    const QString tool = quoted(tmutilPath());
    const QString list = tool + " listbackups"_L1;
    const QString restore = u"%1 restore \"$(%1 latestbackup)\"%2 ~/%3"_s.arg(
        tool, quoted(exampleFolder()), quoted(localizedString("restoreFolderName")));
    AlertRequest guide;
    guide.messageText = localizedString("restoreGuideTitle");
    guide.informativeText =
        localizedString("restoreGuideMessage")
            .arg(latestBackups.isEmpty() ? localizedString("notAvailableAbbreviation") : latestBackups.join(u'\n'),
                 list, restore);
    guide.buttons = {localizedString("AlertButtonClose")};
    return guide;
}

} // namespace quillon
