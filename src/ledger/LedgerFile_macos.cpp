#include "SqliteLedger.h"

#include <QStandardPaths>

namespace quillon {

using namespace Qt::StringLiterals;

QString ledgerFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/Quillon/ledger.sqlite"_L1;
}

} // namespace quillon
