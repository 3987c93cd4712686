#pragma once

#include "common/law.h"
#include "reaction/experiment.h"

#include <vector>

namespace reaction {

/// How one finds what is limiting, and what is there at the end, with the mixture's numbers as far
/// as they are not withheld.
std::vector<common::Law> lawsOf(const Experiment& experiment);

} // namespace reaction
