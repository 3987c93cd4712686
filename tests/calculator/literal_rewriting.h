#pragma once

#include "calculator/evaluator.h"

namespace calculator::test {

/// The evaluator once more, in the plainest way: every rule as a walk over the whole text that
/// starts anew after each change, positions counted from 1. Far too slow for use, and therefore a
/// check on everything that the real one leaves out. Nothing is cancelled here.
Evaluation evaluateLiterally(Text text, AngleMode angles);

} // namespace calculator::test
