#pragma once

#include "Files.h"
#include "RunLoop.h"
#include "ToolCall.h"

#include <QHash>
#include <QString>
#include <QWidget>

#include <memory>
#include <vector>

class QLabel;
class QTreeWidget;

namespace quillon {

/// The versions of one file in all backups, the same content once.
class VersionsPane final : public QWidget {
    Q_OBJECT

public:
    /// The services must outlive this object.
    explicit VersionsPane(const Setup::Services& services, QWidget* parent = nullptr);

    /// How backups are called, by their names. What is shown is asked for anew when it is next wanted.
    void setBackupTitles(const QHash<QString, QString>& titles);
    /// Asks for the versions of that file, once nothing else is wanted for a moment.
    void want(const QString& path);
    /// Says what to do, as long as no file is chosen.
    void wantNone();

Q_SIGNALS:
    void chosen(const quillon::FileEntry& version);

private:
    void tell(const QString& sentence);
    void ask();
    void showVersions(const QString& complaint);

    const Setup::Services& services_;
    QHash<QString, QString> titles_;
    QString path_;
    Timer delay_;
    std::unique_ptr<ToolCall> asking_;
    QLabel* heading_;
    QLabel* sentence_;
    QTreeWidget* list_;
    std::vector<FileEntry> versions_;
};

} // namespace quillon
