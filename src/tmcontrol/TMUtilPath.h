#pragma once

#include <QString>

namespace quillon {

/// Path of the tmutil tool to run: the environment variable QUILLON_TMUTIL unless it is empty, else the system's own,
/// or on Linux the one that is installed with this program.
QString tmutilPath();

} // namespace quillon
