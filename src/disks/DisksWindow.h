#pragma once

#include "RunLoop.h"
#include "Setup.h"

#include <QString>
#include <QWidget>

class QLabel;

namespace quillon {

class DisksPage;
class ExclusionsPage;
class SourcesPage;

/// The window of Time Machine's settings: backup disks, the folders backed up, what is left out. It holds nothing of
/// its own: what it shows is what tmutil tells, and each change is a call of tmutil followed by reading anew.
class DisksWindow final : public QWidget {
    Q_OBJECT

public:
    /// `lsblk` is the path of the tool that lists mounted disks.
    DisksWindow(const Setup::Services& services, const QString& lsblk);

protected:
    void changeEvent(QEvent* event) override;

private:
    QWidget* makeTroubleBar();
    void fitToScreen();
    void reload();
    void watchDisks();
    void showTrouble(const QString& line);

    Setup setup_;
    DisksPage* disksPage_;
    SourcesPage* sourcesPage_;
    ExclusionsPage* exclusionsPage_;
    QWidget* troubleBar_;
    QLabel* troubleLabel_;
    Timer diskWatch_;
};

} // namespace quillon
