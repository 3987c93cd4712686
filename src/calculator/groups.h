#pragma once

#include "calculator/effort.h"
#include "calculator/expression.h"
#include "calculator/operators.h"

namespace calculator {

/// Calculates the groups in parentheses, the last "(" first, and puts each value in the place of
/// its group. Stops, without harm, at a group that holds a letter from "F" to "Y": a function in
/// there has to be evaluated first. A fault too when the clean-ups take more than is left of
/// `effort`.
Progress calculparentheses(Text& text, Counters& counters, Effort& effort, const Hooks& hooks);

} // namespace calculator
