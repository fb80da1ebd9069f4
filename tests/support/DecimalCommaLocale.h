#pragma once

#include <QTemporaryDir>

namespace quillon {

/// A locale of the C library whose numbers have a decimal comma, made on the spot, so that it need not be installed.
class DecimalCommaLocale {
public:
    /// Fails the test when the locale cannot be made.
    DecimalCommaLocale();

    static constexpr const char* name = "de_DE.UTF-8";
    /// What LOCPATH has to name, see locale(7).
    QString folder() const { return folder_.path(); }

private:
    QTemporaryDir folder_;
};

} // namespace quillon
