#include "TMUtilQueue.h"

#include <QCoreApplication>
#include <QDir>

namespace quillon {

using namespace Qt::StringLiterals;

QString tmutilPath()
{
    const QString chosen = qEnvironmentVariable("QUILLON_TMUTIL");
    if (!chosen.isEmpty())
        return chosen;
    // Relative to the program, so that an installation works wherever its prefix is.
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + u"/../libexec/quillon/tmutil"_s);
}

} // namespace quillon
