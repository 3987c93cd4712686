#include "web_exports/simulations.h"

#include "lens/about.h"
#include "lens/web.h"
#include "projectile/about.h"
#include "projectile/web.h"
#include "reaction/about.h"
#include "reaction/web.h"

#include <array>

namespace modules {

namespace {

constexpr std::array<Simulation, 3> kSimulations = {{
    {lens::kAbout.module, lens::openView},
    {reaction::kAbout.module, reaction::openView},
    {projectile::kAbout.module, projectile::openView},
}};

} // namespace

const Simulation& simulationOf(int module) {
    for (const Simulation& one : kSimulations)
        if (one.module == module)
            return one;
    return kSimulations.front();
}

} // namespace modules
