#pragma once

#include <cstdint>
#include <optional>

namespace text {

/// Nearest whole number, halves to the even neighbour, whatever the floating-point mode.
double roundHalfEven(double value);

/// `value` rounded as above, when the result fits; nothing otherwise (also for NaN and infinity).
/// A statement that stores such a value is abandoned when it is absent: the old value stays.
std::optional<std::int16_t> toInt16(double value);
std::optional<std::int32_t> toInt32(double value);

} // namespace text
