#include "QuillonStart.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>

namespace quillon {

using namespace Qt::StringLiterals;

bool startQuillon(QString* error)
{
    const QString program = QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../../bin/quillon"_L1);
    if (QProcess::startDetached(program, {}, QDir::homePath()))
        return true;
    *error = u"cannot start %1"_s.arg(program);
    return false;
}

} // namespace quillon
