#include "SqliteLedger.h"

#include <QDir>

namespace quillon {

using namespace Qt::StringLiterals;

QString ledgerFile()
{
    // XDG Base Directory Specification 0.8: a path that is not absolute counts as none.
    const QString state = qEnvironmentVariable("XDG_STATE_HOME");
    const QString base = QDir::isAbsolutePath(state) ? QDir::cleanPath(state) : QDir::homePath() + "/.local/state"_L1;
    return base + "/quillon/ledger.sqlite"_L1;
}

} // namespace quillon
