#pragma once

#include <QString>

namespace quillon {

/// Why something failed, for code that tells failures apart.
struct Error {
    QString domain; ///< who numbered the code
    int code = 0;
    QString message; ///< one line in English
};

} // namespace quillon
