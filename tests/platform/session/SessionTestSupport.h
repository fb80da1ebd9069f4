#pragma once

#include <QString>
#include <QStringList>

namespace quillon {

/// Makes an executable shell script of this body.
void writeScript(const QString& path, const QString& body);

QString contentOf(const QString& path);

struct Finished {
    int status;     ///< exit status, -1 for any other end
    QString output; ///< standard output and error
};

/// Runs a program of the system to its end.
Finished run(const QString& program, const QStringList& arguments);

} // namespace quillon
