#pragma once

#include <memory>

namespace quillon {

class RunLoop;
class Workspace;

/// The workspace of the session that the program runs in; the run loop must outlive it.
std::unique_ptr<Workspace> makeWorkspace(RunLoop& runLoop);

} // namespace quillon
