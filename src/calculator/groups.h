#pragma once

#include "calculator/expression.h"
#include "calculator/operators.h"

namespace calculator {

/// Calculates the groups in parentheses, the last "(" first, and puts each value in the place of
/// its group. Stops, without harm, at a group that holds a letter from "F" to "Y": a function in
/// there has to be evaluated first.
Progress calculparentheses(Text& text, Counters& counters, const Hooks& hooks);

} // namespace calculator
