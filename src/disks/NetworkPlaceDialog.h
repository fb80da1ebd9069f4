#pragma once

#include "BackupSetup.h"
#include "NetworkPlace.h"

#include <QDialog>

#include <memory>
#include <optional>

class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;

namespace quillon {

class NetworkPlaceForm;

/// Asks where on a server backups are to be kept, or what lets the user into a place that is set already. The server is
/// asked before anything is kept. Secrets are in the fields of this window and on tmutil's standard input, and nowhere
/// else.
class NetworkPlaceDialog final : public QDialog {
    Q_OBJECT

public:
    /// `known` is the place that is set already. The setup must outlive this object.
    NetworkPlaceDialog(Setup& setup, const std::optional<BackupDisk>& known, QWidget* parent);
    ~NetworkPlaceDialog() override;

    /// While the server is asked, that is given up instead.
    void reject() override;

Q_SIGNALS:
    /// tmutil has the place as it was described.
    void kept();

private:
    QWidget* makeAnswer();
    QWidget* makeButtons();
    QString url() const;
    NetworkPlace server() const;
    QStringList callOf(QStringList command) const;
    QByteArray input() const;
    void edited();
    void goOn();
    void ask();
    void trust();
    void keep();
    void takeUp();
    void change(const QStringList& call, const QByteArray& input);
    void take(const PlaceTrial& trial);
    void setWaiting(const char* line);
    void showAnswer(const PlaceAdvice& advice);
    void advise(const PlaceAdvice& advice);
    void tell(const QString& line);
    void fit(int least);

    Setup& setup_;
    const std::optional<BackupDisk> known_;
    PlaceAdvice advice_;
    QString trusted_; ///< the fingerprint that the user has trusted
    NetworkPlace trustedServer_;
    bool isChanging_ = false;
    NetworkPlaceForm* form_;
    QLabel* sign_;
    QLabel* message_;
    QLineEdit* fingerprint_;
    QLineEdit* recoveryKey_;
    QProgressBar* progress_;
    QPushButton* cancel_ = nullptr;
    QPushButton* goOn_ = nullptr;
    std::unique_ptr<TmutilClient> tmutil_; ///< while the server is asked
};

} // namespace quillon
