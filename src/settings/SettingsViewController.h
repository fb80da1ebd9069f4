#pragma once

#include <QWidget>

class QLabel;

namespace quillon {

class DataManager;
class RunLoop;

/// Content of the settings popover: when the next backup is due. Main thread only.
class SettingsViewController final : public QWidget {
    Q_OBJECT

public:
    /// Both must outlive the panel.
    SettingsViewController(RunLoop& runLoop, DataManager& dataManager, QWidget* parent = nullptr);

    /// The text of the next-backup line.
    QString getNextScheduledBackup() const;

protected:
    void showEvent(QShowEvent* event) override;

private:
    RunLoop& runLoop_;
    DataManager& sharedDataManager_;
    QLabel* nextBackupTitle_;
    QLabel* nextBackupLabel_;
};

} // namespace quillon
