#pragma once

#include <QByteArray>
#include <QString>

namespace quillon {

/// Where restic restores to: in the folder of the target, so that moving it there is one step. It is locked as long as
/// somebody works in it, which tells what a killed restore has left behind; that is removed by the next one there. In
/// the end it is removed with all that is in it.
class WorkFolder {
public:
    /// Throws Failure where it cannot be made in that folder.
    explicit WorkFolder(const QString& parent);
    WorkFolder(const WorkFolder&) = delete;
    WorkFolder& operator=(const WorkFolder&) = delete;
    ~WorkFolder();

    /// By this path restic finds it, too, which can be handed no name with bytes that are no UTF-8.
    QString path() const;

private:
    void removeAbandoned() const;

    int parent_;
    QByteArray name_;
    QString parentPath_;
    int folder_ = -1;
};

} // namespace quillon
