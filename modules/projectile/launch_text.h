#pragma once

#include "projectile/launch.h"

#include <string>

namespace projectile {

/// What tells a launch from others (distinctions()), as a formula: "v₀ = 20 m/s, α = 45°, sans
/// air", symbols in italics, units upright.
std::u16string describe(const Launch& launch);

} // namespace projectile
