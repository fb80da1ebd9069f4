#include "HostSystem.h"

#include <QStandardPaths>

namespace quillon {

using namespace Qt::StringLiterals;

QString systemTmutilPath()
{
    return u"/usr/bin/tmutil"_s;
}

QString ledgerFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/Quillon/ledger.sqlite"_L1;
}

bool systemWatchesOverBackups()
{
    return true;
}

QString startFailureReason(std::int32_t /*exitStatus*/)
{
    return {};
}

} // namespace quillon
