#pragma once

#include <QObject>

#include <functional>
#include <memory>

namespace quillon {

/// Calls `reopened`, from the event loop and until it is destroyed, when the user starts the application while it runs
/// and the system starts no second process for that but tells this one. Null on systems that always start a process.
/// Main thread only.
std::unique_ptr<QObject> makeReopenWatch(const std::function<void()>& reopened);

} // namespace quillon
