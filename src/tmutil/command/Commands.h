#pragma once

#include "CommandLine.h"

namespace quillon {

/// Does what the command line asks for, output to standard output included. Throws Failure.
void runCommand(const CommandLine& line);

} // namespace quillon
