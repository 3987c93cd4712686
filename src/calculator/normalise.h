#pragma once

#include "calculator/expression.h"

namespace calculator {

/// Capitals, and the spaces of the normalised form: around operators, after functions, at both
/// ends. "LN" becomes "LON " and "INVSIN" becomes "ISI ".
///
/// Meant so: "LON" itself gets no space. A logarithm that is not evaluated at once (its argument
/// is a group) has lost its space after the next clean-up.
Text espacer(TextView text);

/// Clean-up, then espacer: no spaces, no doubled signs ("5--3" is "5+3"), no leading "+", and no
/// parentheses around a plain number. One with an exponent, "(2E+3)", keeps them.
Text simplifier(TextView text);

} // namespace calculator
