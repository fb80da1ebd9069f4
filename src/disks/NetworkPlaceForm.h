#pragma once

#include "BackupSetup.h"
#include "NetworkPlace.h"

#include <QWidget>

#include <map>
#include <optional>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLineEdit;
class QSpinBox;

namespace quillon {

/// The fields that describe a place on a server: all of a new one; of one that is set already what lets the user in,
/// and how fast it may be used.
class NetworkPlaceForm final : public QWidget {
    Q_OBJECT

public:
    explicit NetworkPlaceForm(const std::optional<BackupDisk>& known);

    NetworkPlace place() const;

    /// Whether tmutil has to be told what lets the user in. It never tells the secrets that it has.
    bool isAccessGiven() const { return !isKnown_ || place() != before_; }

    /// What tmutil is told of the speed.
    QStringList limits() const;

Q_SIGNALS:
    void edited();
    /// Other fields are asked for than before.
    void rearranged();

private:
    using Field = NetworkPlace::Field;

    void addKind();
    void addUrl(const QString& url);
    void addField(Field field);
    QWidget* withButton(Field field);
    QSpinBox* addLimit(const char* title, qint64 limit);
    void chooseFile(Field field);
    void setPlace(const NetworkPlace& place);
    void takeUrl();
    void showFields();

    const bool isKnown_;
    NetworkPlace before_; ///< as tmutil has it, without the secrets
    QFormLayout* form_;
    QComboBox* kind_ = nullptr;   ///< of a new place
    QCheckBox* secure_ = nullptr; ///< likewise
    std::map<Field, QLineEdit*> fields_;
    QSpinBox* upload_ = nullptr;   ///< of a place that is set
    QSpinBox* download_ = nullptr; ///< likewise
};

} // namespace quillon
