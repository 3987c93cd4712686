#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace common {

/// The number that somebody typed: decimal comma or point, blanks of any kind between digits,
/// "-" or "−" before it, an exponent as in "1,5e3". Absent when it is not a finite number or
/// anything else stands there.
std::optional<double> numberFrom(std::u16string_view text);

/// `value` with `decimals` decimals as French texts write it: comma, U+2212, thin no-break spaces
/// between groups of three from 10 000 on. Never "−0".
std::u16string frenchNumber(double value, int decimals);

/// `value` with about `digits` significant digits and no needless zeros: 0,0583; 12,4; 1 250.
std::u16string frenchDigits(double value, int digits);

/// The same with a "+" before what is more than 0.
std::u16string signedNumber(double value, int decimals);

/// A unit as it stands behind a number: degrees at once, others after a no-break space.
std::u16string unitBehind(std::u16string_view unit);

} // namespace common
