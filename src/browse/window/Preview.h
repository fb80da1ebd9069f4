#pragma once

#include "Files.h"
#include "ToolCall.h"
#include "Workspace.h"

#include <QObject>
#include <QString>
#include <QTemporaryDir>

#include <memory>
#include <optional>

namespace quillon {

/// Shows files of a backup in the programs that the desktop has for them: copies that nobody can write to, in a folder
/// for the user alone, gone with this.
class Preview final : public QObject {
    Q_OBJECT

public:
    /// All outlive this object. `folder` is where the copies are put; what an earlier program left there is removed.
    Preview(const Setup::Services& services, Workspace& workspace, QString folder);

    /// In place of one that is still being fetched.
    void show(const QString& backup, const FileEntry& file);

Q_SIGNALS:
    /// A line on what is under way, or nothing.
    void progressed(const QString& line);

private:
    void open(const QString& name, const QString& copy);
    void fail(const QString& name, const QString& complaint);

    const Setup::Services& services_;
    Workspace& workspace_;
    QString folder_;
    std::optional<QTemporaryDir> copies_;
    int count_ = 0;
    std::unique_ptr<ToolCall> fetching_;
};

} // namespace quillon
