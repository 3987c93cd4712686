#pragma once

#include "authoring/inlines.h"

namespace authoring {

/// The solution that fits all accepted forms, as the judge of typed answers compares it. Forms that
/// the judge would take wrongly, or take others for, are faults: numbers, signs, capitals that tell
/// words apart, accents that it keeps.
QString solutionOf(const TypedAnswer& answer, Faults& faults);

} // namespace authoring
