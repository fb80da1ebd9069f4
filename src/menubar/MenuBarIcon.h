#pragma once

#include "MenuBarIconState.h"
#include "StatusItem.h"

#include <optional>

namespace quillon {

/// The image for a state: coloured where the user wants that and the system can, with how far a run has come, a
/// fraction, in the one of a run. None has no image.
std::optional<SymbolImage> menuBarIcon(MenuBarIconState state, bool colorsAreOn, double percentage);

} // namespace quillon
