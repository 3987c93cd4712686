#pragma once

#include "common/reading.h"
#include "common/table.h"
#include "reaction/experiment.h"

namespace reaction {

/// The table of the reaction's progress: initial state, state at x as expressions and as numbers,
/// final state as far as it is not withheld; a column for x and one for each species.
common::Table statesOf(const Experiment& experiment);

/// How far it has reacted.
common::Reading momentOf(const Experiment& experiment);

} // namespace reaction
