#pragma once

#include "calculator/expression.h"

#include <optional>

namespace calculator {

/// How a result is shown. The numbers are the indices of the window's option buttons.
enum class Format : std::int16_t { Scientific = 0, Standard = 1 };

/// `value` after the pattern "#.#######E+00": one digit, the point even when nothing follows, at
/// most seven decimals without trailing zeros, the exponent with its sign and at least two digits.
/// 12345 is "1.2345E+04", 5 is "5.E+00", 0 is "0.E+00". Halves are rounded away from zero, as they
/// stand in the standard text of 15 digits. `value` must be finite.
Text scientificText(double value, char16_t point = u'.');

/// The line that shows the number which `result` starts with: in standard format with one leading
/// space when it is not negative. Nothing when the number is beyond a double's range.
std::optional<Text> resultLine(TextView result, Format format);

} // namespace calculator
