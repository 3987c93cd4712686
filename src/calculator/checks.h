#pragma once

#include "calculator/expression.h"

#include <optional>

namespace calculator {

/// Faults that a look at the normalised text shows: "(" and ")" of different number, or one of
/// "*", "/" and "^" without a right operand. Parentheses are judged last and win. "+" and "-" are
/// not examined here: what lacks an operand fails when it is calculated.
ErrorCode verifier(TextView text);

/// Counts anew; nothing when a count does not fit 16 bits.
std::optional<Counters> compter(TextView text);

} // namespace calculator
