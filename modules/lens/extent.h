#pragma once

#include "lens/bench.h"

namespace lens {

/// How far a drawing of the bench goes from O, cm: before and behind the lens, up and down.
struct Extent {
    double before;
    double behind;
    double high;
};

/// Everything on the bench, and the image where it is not too far away; in steps, so that the
/// drawing mostly stands still.
Extent extentOf(const Bench& bench);

/// Of the light that comes from B and goes through the lens at `height`: where it is `place` cm
/// behind the lens, cm above the axis.
double beamHeight(const Arrangement& arrangement, double height, double place);

} // namespace lens
