#pragma once

#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>
#include <QVariantMap>

#include <functional>
#include <optional>

namespace quillon {

/// How a call of a program ended.
struct Answer {
    int status = -1;
    QByteArray output;
    QByteArray error;
};

/// Runs a program to its end with exactly one environment variable, "command", as the application does.
Answer runProgram(const QString& program, const QStringList& arguments);

/// The dictionary in what `status` printed; nothing when it is not whole.
std::optional<QVariantMap> parseStatus(const QByteArray& text);

/// Asks again and again until the condition holds; false when it has not come true within a minute.
bool eventually(const std::function<bool()>& condition);

/// Our tmutil on a folder of its own: a source, disks, and a wrapper that sets the folders of the configuration.
class PracticeTmutil {
public:
    explicit PracticeTmutil(const QString& tmutil);
    /// Stops a backup that still runs.
    ~PracticeTmutil();
    PracticeTmutil(const PracticeTmutil&) = delete;
    PracticeTmutil& operator=(const PracticeTmutil&) = delete;

    /// The wrapper; callers need not set any environment.
    QString executable() const { return path(QStringLiteral("tmutil")); }

    QString path(const QString& name) const { return folder_.filePath(name); }
    QString source() const { return path(QStringLiteral("source")); }
    QString configurationFolder() const { return path(QStringLiteral("config/quillon-timemachine")); }
    QString stateFolder() const { return path(QStringLiteral("state/quillon-timemachine")); }

    Answer run(const QStringList& arguments) const { return runProgram(executable(), arguments); }
    QVariantMap status() const;

    /// Runs a program while somebody asks for the status as the application does. A backup that it completes is not
    /// made to wait for more of them.
    Answer watch(const QString& program, const QStringList& arguments) const;

    /// Makes a folder that stands for a disk and sets it; gives the destination's identifier.
    QString addDisk(const QString& name) const;

    void write(const QString& name, const QByteArray& contents) const;

private:
    void endWorker() const;

    QTemporaryDir folder_;
};

} // namespace quillon
