#pragma once

#include "common/control.h"
#include "reaction/experiment.h"

namespace reaction {

/// Which reaction, how much of each reactant; `experiment` lives as long as what is done with them.
common::Controls controlsOf(Experiment& experiment);

} // namespace reaction
