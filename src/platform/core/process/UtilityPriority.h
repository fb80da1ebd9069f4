#pragma once

namespace quillon {

/// Lowers processor and I/O priority of the calling process to that of work which the user started but does not wait
/// for. A niceness that is as high already is left alone, so that a child of such a process may ask for it again.
/// Async-signal-safe: it runs in a child between fork and exec. What the system refuses is left as it is.
void lowerToUtilityPriority() noexcept;

} // namespace quillon
