#include "text/rounding.h"

#include <cmath>
#include <limits>

namespace text {

double roundHalfEven(double value) {
    const double below = std::floor(value);
    const double fraction = value - below;
    if (fraction < 0.5)
        return below;
    if (fraction > 0.5)
        return below + 1;
    return std::fmod(below, 2) == 0 ? below : below + 1;
}

namespace {

template <class Integer>
std::optional<Integer> rounded(double value) {
    const double whole = roundHalfEven(value);
    // Negated so that NaN is refused too.
    if (!(whole >= std::numeric_limits<Integer>::min() &&
          whole <= std::numeric_limits<Integer>::max()))
        return std::nullopt;
    return static_cast<Integer>(whole);
}

} // namespace

std::optional<std::int16_t> toInt16(double value) {
    return rounded<std::int16_t>(value);
}

std::optional<std::int32_t> toInt32(double value) {
    return rounded<std::int32_t>(value);
}

} // namespace text
