#pragma once

#include "projectile/launch.h"

#include <QString>

namespace projectile {

/// What tells a launch from others (distinctions()), as a formula: "v₀ = 20 m/s, α = 45°, sans
/// air", symbols in italics, units upright.
QString describe(const Launch& launch);

} // namespace projectile
