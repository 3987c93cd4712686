#pragma once

#include "common/control.h"
#include "projectile/experiment.h"

namespace projectile {

/// What sets the launch and keeps paths for comparison; `experiment` lives as long as what is done
/// with them.
common::Controls controlsOf(Experiment& experiment);

} // namespace projectile
