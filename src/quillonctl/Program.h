#pragma once

#include "Arguments.h"

namespace quillon {

class RunLoop;
class TaskLauncher;

struct ProgramServices {
    RunLoop& runLoop;
    TaskLauncher& launcher;
};

/// One line on standard error.
void complain(const QString& trouble);

/// Answers a command line on standard output, and returns the exit status: 1 where what was asked for cannot be told,
/// is refused, or something is wrong, 2 where it takes a running Quillon and there is none; standard error says what.
int runQuillonctl(const Arguments& arguments, const ProgramServices& services);

} // namespace quillon
