#pragma once

#include <QString>

#include <memory>

namespace quillon {

/// Whether the program is started at log-in.
class LoginItem {
public:
    LoginItem() = default;
    LoginItem(const LoginItem&) = delete;
    LoginItem& operator=(const LoginItem&) = delete;
    virtual ~LoginItem() = default;

    /// Registers or unregisters the program; false when the system did not take it.
    virtual bool setEnabled(bool enabled) = 0;
};

/// What is started at log-in.
struct LoginProgram {
    QString name;       ///< as users know it
    QString identifier; ///< of the application: Linux names an entry by it
    QString companion;  ///< identifier of the bundle inside the application that macOS starts
    QString path;       ///< absolute path of what Linux starts
};

/// The login item of the user who runs the program.
std::unique_ptr<LoginItem> makeLoginItem(const LoginProgram& program);

} // namespace quillon
