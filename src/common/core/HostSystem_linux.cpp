#include "HostSystem.h"
#include "LocalizedString.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>

namespace quillon {

using namespace Qt::StringLiterals;

QString systemTmutilPath()
{
    // Relative to the program, so that an installation works wherever its prefix is.
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + u"/../libexec/quillon/tmutil"_s);
}

QString ledgerFile()
{
    // XDG Base Directory Specification 0.8: a path that is not absolute counts as none.
    const QString state = qEnvironmentVariable("XDG_STATE_HOME");
    const QString base = QDir::isAbsolutePath(state) ? QDir::cleanPath(state) : QDir::homePath() + "/.local/state"_L1;
    return base + "/quillon/ledger.sqlite"_L1;
}

bool systemWatchesOverBackups()
{
    return false;
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

bool startQuillon(QString* error)
{
    const QString program = QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../../bin/quillon"_L1);
    if (QProcess::startDetached(program, {}, QDir::homePath()))
        return true;
    *error = u"cannot start %1"_s.arg(program);
    return false;
}

} // namespace quillon
