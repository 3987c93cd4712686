#include "lens/arrangement.h"

#include <cmath>

namespace lens {

namespace {

/// Beside 1/OA of any object on the bench, at least 0.006 cm⁻¹, this is nothing.
constexpr double kNothing = 1e-9;

} // namespace

const Quantity& quantity(Parameter parameter) {
    return kQuantities.at(static_cast<std::size_t>(parameter));
}

Image::Image(const Arrangement& arrangement)
    : object_(arrangement.object()), objectHeight_(arrangement.height),
      inverse_(1 / arrangement.focal() + 1 / arrangement.object()) {}

bool Image::isAtInfinity() const {
    return std::fabs(inverse_) < kNothing;
}

double Image::spot(double screen) const {
    return 2 * kLensRadius * std::fabs(1 - screen * inverse_);
}

double heightOnScreen(const Arrangement& arrangement) {
    return arrangement.height * arrangement.screen / arrangement.object();
}

} // namespace lens
