#pragma once

#include "calculator/expression.h"

namespace calculator {

/// The function's value; nothing where it has none (the square root of -1) or where it is too
/// large for a double. Angles go in, or come out of the inverse functions, in the unit of `angles`.
std::optional<double> valueOf(Function function, double x, AngleMode angles);

/// Replaces functions by their values, always the leftmost whose argument is a number by now; the
/// others wait. The argument starts four characters after the name, whatever the fourth is, and
/// ends before the next ")" or space. False when a value is missing; the text is then as it was.
bool calculfonctions(Text& text, Counters& counters, AngleMode angles);

} // namespace calculator
