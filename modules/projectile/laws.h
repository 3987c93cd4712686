#pragma once

#include "common/law.h"
#include "projectile/experiment.h"

#include <vector>

namespace projectile {

/// The laws that hold for the flight, in the order of their derivation, with its numbers.
std::vector<common::Law> lawsOf(const Experiment& experiment);

} // namespace projectile
