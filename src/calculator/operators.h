#pragma once

#include "calculator/expression.h"

namespace calculator {

enum class Progress { Done, Fault, Cancelled };

/// Normalises the text and calculates its operators: all "^" first, then all "/", "*", "-", "+",
/// each from the left. Meant so: 2 ^ 3 ^ 2 is 64, a sign binds tighter than "^" (-3 ^ 2 is 9), and
/// divisions come before all multiplications, subtractions before all additions.
///
/// Stops early when the counter reaches 0. At a fault (division by zero, a number beyond a
/// double's range, a right operand that ends beyond the 32,767th character) and when cancelled
/// the text is left in the state reached.
Progress calculoperateurs(Text& text, Counters& counters, const Hooks& hooks);

} // namespace calculator
