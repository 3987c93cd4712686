#pragma once

#include "common/law.h"
#include "projectile/flight.h"

#include <vector>

namespace projectile {

/// The laws that hold for a flight, in the order of their derivation, with its numbers.
std::vector<common::Law> lawsOf(const Flight& flight);

} // namespace projectile
