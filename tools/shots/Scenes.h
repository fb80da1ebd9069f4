#pragma once

#include "Stage.h"

#include <ostream>
#include <span>

namespace quillon {

/// One state of the program that is worth a picture.
struct Scene {
    const char* name;
    void (*play)(Stage& stage);
};

std::span<const Scene> allScenes();

/// For the names of tests that are made of them.
inline void PrintTo(const Scene& scene, std::ostream* out)
{
    *out << scene.name;
}

} // namespace quillon
