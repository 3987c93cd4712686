#pragma once

#include "common/control.h"
#include "lens/bench.h"

namespace lens {

/// What sets the bench and takes measures; `bench` lives as long as what is done with them.
common::Controls controlsOf(Bench& bench);

} // namespace lens
