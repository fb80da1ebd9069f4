#pragma once

#include <QProcess>

namespace quillon {

/// A program that runs as long as this lives.
class ChildProgram {
public:
    /// Starts it with this process's environment and `extra` on top, which is a list of "NAME=value".
    ChildProgram(const QString& program, const QStringList& arguments, const QStringList& extra = {});
    ChildProgram(const ChildProgram&) = delete;
    ChildProgram& operator=(const ChildProgram&) = delete;
    ~ChildProgram();

    QProcess& process() { return process_; }
    void crash();
    /// The next line of its standard output, waited for; throws when there is none.
    QString readLine();

private:
    QProcess process_;
};

/// Runs a program to its end and gives its standard output; throws when it fails.
QString outputOf(const QString& program, const QStringList& arguments, const QStringList& extra);

} // namespace quillon
