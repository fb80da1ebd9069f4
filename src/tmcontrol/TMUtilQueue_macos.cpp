#include "TMUtilQueue.h"

namespace quillon {

using namespace Qt::StringLiterals;

QString tmutilPath()
{
    const QString chosen = qEnvironmentVariable("QUILLON_TMUTIL");
    return chosen.isEmpty() ? u"/usr/bin/tmutil"_s : chosen;
}

} // namespace quillon
