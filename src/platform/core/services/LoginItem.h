#pragma once

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

} // namespace quillon
