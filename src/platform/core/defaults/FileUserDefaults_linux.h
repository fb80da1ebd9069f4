#pragma once

#include "RunLoop.h"
#include "UserDefaults.h"

#include <QString>
#include <QVariantMap>

namespace quillon {

/// User defaults in an XML property list, which is read in any format; it is written as a binary list where it holds
/// foreign values that XML cannot.
///
/// Every change is on disk when the setter returns, unless another program holds the lock beside the file: then it is
/// tried again every second from the run loop. A crash at any instant leaves the file as it was or as it is to be. What
/// others changed in the file since is kept. A file that is no property list is set aside under a name of its own,
/// never over an earlier one. What cannot be written stays in memory and goes out with the next change or, at the
/// latest, with this object; each trouble is told once on standard error. A value that XML property lists cannot hold
/// is refused. Dates are kept to the whole second, rounded down: the format has no fractions.
class FileUserDefaults final : public UserDefaults {
public:
    FileUserDefaults(const QString& path, DefaultsAccess access, RunLoop& runLoop);
    ~FileUserDefaults() override;

protected:
    QVariant storedValue(const QString& key) const override;
    void storeValue(const QString& key, const QVariant& value) override;

private:
    /// What the file holds now; what is in memory where there is no file or a damaged one. Nothing when it must not be
    /// replaced, because it can neither be read nor set aside.
    std::optional<QVariantMap> fileValues();
    bool setAside(const QString& reason);
    void save();
    bool write();
    bool complain(const QString& trouble);

    const QString path_;
    const DefaultsAccess access_;
    RunLoop& runLoop_;
    QVariantMap values_;
    QVariantMap unsaved_; ///< changes that are not in the file yet; an invalid value stands for a removed key
    QString lastTrouble_;
    Timer nextTry_; ///< valid while another program holds the lock
};

} // namespace quillon
