#pragma once

#include "RecoveryPage.h"

#include <QDialog>

namespace quillon {

class Setup;

/// Shows a new recovery key until the user says that it is kept, or puts that off. The key is nowhere but here and in
/// what the user makes of it. Main thread only.
class RecoveryKeyDialog final : public QDialog {
    Q_OBJECT

public:
    /// The setup must outlive this object; its alerts are used.
    RecoveryKeyDialog(RecoveryPage page, const Setup& setup, QWidget* parent);

Q_SIGNALS:
    void kept();

private:
    QWidget* makeKeyField();
    QWidget* makeButtons();
    void choosePlace();
    void save(const QString& file, bool asPdf);
    void write(const QString& file, bool asPdf);

    RecoveryPage page_;
    const Setup& setup_;
};

} // namespace quillon
