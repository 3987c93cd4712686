#pragma once

#include "calculator/expression.h"

namespace calculator {

/// Replaces functions by their values, always the leftmost whose argument is a number by now; the
/// others wait. The argument starts four characters after the name, whatever the fourth is, and
/// ends before the next ")" or space. False when a value is missing; the text is then as it was.
bool calculfonctions(Text& text, Counters& counters, AngleMode angles);

} // namespace calculator
