#pragma once

#include "Date.h"

#include <QByteArray>
#include <QDialog>
#include <QString>
#include <QStringList>

namespace quillon {

/// The page with a disk's recovery key that is kept away from the computer: the key, and how everything is had back
/// with it on another one.
struct RecoveryPage {
    QString disk;         ///< its name, fit to be shown
    QString path;         ///< where it is mounted; its URL where it is on a server
    bool isPlace = false; ///< it is on a server
    QString key;
    Date made;

    QString heading() const;
    QString text() const;
    QByteArray pdf() const;

    /// Writes it whole, readable by the user only where the disk knows of users. Gives the reason why not, or nothing.
    QString save(const QString& file, bool asPdf) const;

    /// Whether a file there would be on the very disk that the key opens.
    bool wouldLieOnDisk(const QString& file) const;

private:
    QString note() const;
    QStringList steps() const;
};

class Setup;

/// Shows a new recovery key until the user says that it is kept, or puts that off. The key is nowhere but here and in
/// what the user makes of it.
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
