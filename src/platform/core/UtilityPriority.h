#pragma once

namespace quillon {

/// Lowers processor and I/O priority of the calling process to that of work which the user started but does not wait
/// for. Async-signal-safe: it runs in a child between fork and exec. What the system refuses is left as it is.
void lowerToUtilityPriority() noexcept;

} // namespace quillon
