#include "common/ticks.h"

#include <algorithm>
#include <cmath>

namespace common {

namespace {

/// Of an axis; a guard against a step that is nothing beside the axis's length.
constexpr double kMostTicks = 1000;

} // namespace

double tickStep(double length, int most) {
    const double rough = length / most;
    const double power = std::pow(10, std::floor(std::log10(rough)));
    // Numbers such as 0.2 are not exact: a step that fits but for the last digit fits.
    const double needed = rough / power - 1e-9;
    for (const double step : {1.0, 2.0, 5.0}) {
        if (needed <= step)
            return step * power;
    }
    return 10 * power;
}

int tickDecimals(double step) {
    return std::max(0, static_cast<int>(-std::floor(std::log10(step) + 1e-9)));
}

std::vector<double> ticks(double from, double to, double step) {
    std::vector<double> values;
    const double first = std::ceil(from / step - 1e-9);
    const double last = std::min(std::floor(to / step + 1e-9), first + kMostTicks);
    for (double index = first; index <= last; ++index)
        values.push_back(index * step);
    return values;
}

} // namespace common
