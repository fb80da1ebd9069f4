#pragma once

#include <QString>
#include <QStringList>

class QProcess;

namespace quillon {

/// Makes an executable shell script of this body.
void writeScript(const QString& path, const QString& body);

QString contentOf(const QString& path);

/// Lets the process, not yet started, end with this one, even when this one crashes.
void tieToThisProcess(QProcess& process);

struct Finished {
    int status;     ///< exit status, -1 for any other end
    QString output; ///< standard output and error
};

/// Runs a program of the system to its end.
Finished run(const QString& program, const QStringList& arguments);

} // namespace quillon
