#pragma once

#include <sys/types.h>

namespace quillon {

/// For a child between fork and exec: lets the kernel send it that signal when its parent dies. False where the parent,
/// whose number was taken before the fork, has died already; nobody would tell of that any more. Async-signal-safe.
bool endWithParent(int signal, pid_t parent) noexcept;

} // namespace quillon
