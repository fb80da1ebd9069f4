#pragma once

#include "BackupReader.h"
#include "RestorePlan.h"

#include <QDialog>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

class QCheckBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QProgressBar;
class QPushButton;
class QRadioButton;
class QStackedWidget;

namespace quillon {

/// What is to be restored, and how it is called.
struct RestoreWish {
    QStringList sources; ///< names of backups with the paths in them
    QString backupTitle; ///< the date of their one backup in words; empty where there are several
};

/// Asks where to, restores, asks about what is in the way, and says in the end what did not come back.
class RestoreDialog final : public QDialog {
    Q_OBJECT

public:
    /// The services must outlive this object.
    RestoreDialog(const Setup::Services& services, const RestoreWish& wish, QWidget* parent);
    ~RestoreDialog() override;

    /// Closes it. While something is restored it stops that instead, and says what has come back.
    void reject() override;

private:
    enum Page { Choice, Progress, Question, End };

    QWidget* makeChoice(const RestoreWish& wish);
    QWidget* makeProgress();
    QWidget* makeQuestion();
    QWidget* makeEnd();
    void setPage(Page page);
    void choosePlace();
    void updatePlace();
    void begin();
    void goOn();
    void take(const QByteArray& line);
    void answer(ConflictRule rule);
    void showEnd();

    const Setup::Services& services_;
    QStringList sources_;
    std::optional<RestorePlan> plan_;
    QStackedWidget* pages_;
    QRadioButton* toPlace_ = nullptr;
    QRadioButton* toFolder_ = nullptr;
    QLineEdit* folder_ = nullptr;
    QPushButton* restore_ = nullptr;
    QLabel* progressLabel_ = nullptr;
    QProgressBar* progressBar_ = nullptr;
    QPushButton* stop_ = nullptr;
    QLabel* questionLabel_ = nullptr;
    QLabel* questionPlace_ = nullptr;
    QCheckBox* forAll_ = nullptr;
    QPushButton* keepBoth_ = nullptr;
    QLabel* summary_ = nullptr;
    QListWidget* losses_ = nullptr;
    QPushButton* close_ = nullptr;
    std::unique_ptr<ToolCall> call_;
};

} // namespace quillon
