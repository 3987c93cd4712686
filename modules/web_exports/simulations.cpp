#include "web_exports/simulations.h"

#include "lens/web.h"
#include "projectile/web.h"
#include "reaction/web.h"

#include <array>

namespace modules {

namespace {

constexpr std::array<Simulation, 3> kSimulations = {{
    {2, lens::openView},
    {10, reaction::openView},
    {23, projectile::openView},
}};

} // namespace

const Simulation& simulationOf(int module) {
    for (const Simulation& one : kSimulations)
        if (one.module == module)
            return one;
    return kSimulations.front();
}

} // namespace modules
