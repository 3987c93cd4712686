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
    // Most values are whole and small already.
    if (value >= std::numeric_limits<Integer>::min() &&
        value <= std::numeric_limits<Integer>::max()) {
        const auto whole = static_cast<Integer>(value);
        if (static_cast<double>(whole) == value)
            return whole;
    }
    const double nearest = roundHalfEven(value);
    // Negated so that NaN is refused too.
    if (!(nearest >= std::numeric_limits<Integer>::min() &&
          nearest <= std::numeric_limits<Integer>::max()))
        return std::nullopt;
    return static_cast<Integer>(nearest);
}

} // namespace

std::optional<std::int16_t> toInt16(double value) {
    return rounded<std::int16_t>(value);
}

std::optional<std::int32_t> toInt32(double value) {
    return rounded<std::int32_t>(value);
}

} // namespace text
