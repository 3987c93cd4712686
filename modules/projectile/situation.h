#pragma once

#include "projectile/launch.h"

#include <set>
#include <string>
#include <vector>

namespace projectile {

/// A mark in the drawing: a ring, a wall, a line on the ground.
struct Landmark {
    double x = 0; ///< m
    double y = 0; ///< m
    std::u16string name;
};

/// What an exercise is about: a launch, what may not be changed in it, and what stands around.
struct Situation {
    Launch launch;
    std::set<Parameter> locked;
    bool dragLocked = false;
    std::vector<Landmark> landmarks;

    bool isLocked(Parameter parameter) const { return locked.count(parameter) > 0; }
};

} // namespace projectile
