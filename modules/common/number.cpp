#include "common/number.h"

#include <algorithm>
#include <cmath>

namespace common {

namespace {

/// Of a slider that gives each factor of ten the same room.
constexpr int kLogarithmicPositions = 200;

} // namespace

double Number::held(double value) const {
    return std::clamp(value, least, most);
}

int Number::positionOf(double value) const {
    if (!logarithmic)
        return static_cast<int>(std::lround((value - least) / step));
    const double share = std::log(value / least) / std::log(most / least);
    return static_cast<int>(std::lround(share * kLogarithmicPositions));
}

double Number::valueAt(int position) const {
    if (!logarithmic)
        return std::min(most, least + position * step);
    const double share = static_cast<double>(position) / kLogarithmicPositions;
    const double value = least * std::pow(most / least, share);
    // 0,63 kg is a better mass than 0,6309 kg.
    const double power = std::pow(10, std::floor(std::log10(value)) - 1);
    return std::min(most, std::round(value / power) * power);
}

} // namespace common
