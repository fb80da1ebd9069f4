#pragma once

#include <CoreFoundation/CoreFoundation.h>
#include <memory>
#include <type_traits>

namespace quillon {

struct CFReleaser {
    void operator()(CFTypeRef object) const { CFRelease(object); }
};

/// Owns a Core Foundation object that came from a function with "Create" or "Copy" in its name, or from one of Qt's
/// toCF functions.
template<typename Reference>
using CFOwned = std::unique_ptr<std::remove_pointer_t<Reference>, CFReleaser>;

} // namespace quillon
