#pragma once

#include <QString>

#include <cstdint>

namespace quillon {

/// What a user can do something about when Time Machine answers a start with this exit status; empty where the number
/// says nothing more.
QString startFailureReason(std::int32_t exitStatus);

} // namespace quillon
