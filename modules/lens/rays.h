#pragma once

#include "lens/arrangement.h"

#include <vector>

namespace lens {

/// A place, cm: x along the axis from O, y up from the axis.
struct Point {
    double x = 0;
    double y = 0;

    bool operator==(const Point&) const = default;
};

/// Straight from one point to another.
struct Segment {
    Point from;
    Point to;
};

/// One of the three rays from B by which one finds B′ without a calculation.
struct Ray {
    int number;                     ///< 1 through O, 2 parallel to the axis, 3 through F
    std::vector<Segment> light;     ///< where light goes
    std::vector<Segment> extension; ///< where it only seems to come from, or would go
};

/// The three rays of an arrangement, as far as `right` cm behind the lens. An extension that would
/// go on before `left` ends there. In the focal plane there is no third ray: it never meets the
/// lens.
std::vector<Ray> principalRays(const Arrangement& arrangement, double left, double right);

} // namespace lens
