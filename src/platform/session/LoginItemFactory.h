#pragma once

#include <QString>

#include <memory>

namespace quillon {

class LoginItem;

/// The login item of the user who runs the program. `program` is the absolute path of what is started at log-in; on
/// macOS that is always the companion inside the application, and the path is not used.
std::unique_ptr<LoginItem> makeLoginItem(const QString& program);

} // namespace quillon
