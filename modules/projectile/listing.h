#pragma once

#include "common/reading.h"
#include "common/table.h"
#include "projectile/experiment.h"

namespace projectile {

/// What is read at the moment shown.
common::ReadingGroup readingsNow(const Experiment& experiment);

/// The moment itself.
common::Reading momentOf(const Experiment& experiment);

/// What is read of the flight as a whole; "?" for each number while they are withheld.
common::ReadingGroup readingsOfFlight(const Experiment& experiment);

/// The moments of the stroboscope and the landing, a row each.
common::Table valuesOf(const Flight& flight);

} // namespace projectile
