#pragma once

#include <vector>

namespace common {

/// The step of an axis that is easiest to read: 1, 2 or 5 times a power of ten, the smallest of
/// which at most `most` fit into `length`. `length` > 0, `most` >= 1.
double tickStep(double length, int most);

/// Decimals that labels of such a step need.
int tickDecimals(double step);

/// The multiples of `step` from `from` to `to`.
std::vector<double> ticks(double from, double to, double step);

} // namespace common
