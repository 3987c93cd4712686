#pragma once

#include "web/view.h"

namespace modules {

struct Simulation {
    int module; ///< its number, 1 to 30
    Open open;
};

/// The simulation of a module that has one for browsers; the first of all for another number.
const Simulation& simulationOf(int module);

} // namespace modules
