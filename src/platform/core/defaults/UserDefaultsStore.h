#pragma once

#include "RunLoop.h"
#include "UserDefaults.h"

#include <memory>

namespace quillon {

enum class DefaultsAccess {
    ReadWrite,
    ReadOnly ///< nothing on disk is made, changed or set aside; values that are set live in memory
};

/// The settings database of Quillon for the user who runs this program.
///
/// macOS: the preferences of the application; a tool in the application's bundle shares them. Elsewhere: the file
/// `com.Orvane.Quillon.plist` in the user's configuration folder (XDG Base Directory Specification).
std::unique_ptr<UserDefaults> openUserDefaults(DefaultsAccess access, RunLoop& runLoop);

} // namespace quillon
