#pragma once

#include "Date.h"
#include "RunLoop.h"

#include <QString>
#include <QVariant>

#include <memory>
#include <optional>

namespace quillon {

/// The user's settings database of this program: typed reads over stored values, with registered defaults behind them.
/// Values are those of property lists (PropertyList.h).
class UserDefaults {
public:
    UserDefaults() = default;
    UserDefaults(const UserDefaults&) = delete;
    UserDefaults& operator=(const UserDefaults&) = delete;
    virtual ~UserDefaults() = default;

    /// Values that are read where nothing is stored. They are never written.
    void registerDefaults(const QVariantMap& defaults);

    /// The stored value, else the registered one, else an invalid QVariant.
    QVariant object(const QString& key) const;

    /// Typed reads: 0, false, empty or nothing for a missing value or one of another kind; numbers in strings count.
    qlonglong integer(const QString& key) const;
    bool boolean(const QString& key) const;
    QString string(const QString& key) const;
    QVariantList array(const QString& key) const;
    std::optional<Date> date(const QString& key) const;

    /// Stores the value at once; an invalid one removes the key.
    void setObject(const QString& key, const QVariant& value);
    void setDate(const QString& key, std::optional<Date> date);

protected:
    virtual QVariant storedValue(const QString& key) const = 0;
    virtual void storeValue(const QString& key, const QVariant& value) = 0;

private:
    QVariantMap registered_;
};

enum class DefaultsAccess {
    ReadWrite,
    ReadOnly ///< nothing on disk is made, changed or set aside; values that are set live in memory
};

/// The settings database of the application with that identifier, for the user who runs this program.
///
/// macOS: the preferences of the application; a tool in the application's bundle shares them. Elsewhere: the file
/// `IDENTIFIER.plist` in the user's configuration folder (XDG Base Directory Specification).
std::unique_ptr<UserDefaults> openUserDefaults(const QString& identifier, DefaultsAccess access, RunLoop& runLoop);

} // namespace quillon
