#include "TMUtilPath.h"

namespace quillon {

using namespace Qt::StringLiterals;

QString tmutilPath()
{
    return qEnvironmentVariable("QUILLON_TMUTIL", u"/usr/bin/tmutil"_s);
}

} // namespace quillon
