#pragma once

#include "Stage.h"

#include <span>

namespace quillon {

/// One state of the program that is worth a picture.
struct Scene {
    const char* name;
    void (*play)(Stage& stage);
};

std::span<const Scene> allScenes();

} // namespace quillon
