#include "lens/extent.h"

#include "common/ticks.h"

#include <algorithm>
#include <cmath>

namespace lens {

namespace {

/// The drawing ends at multiples of this, cm.
constexpr double kStep = 25;

/// Of the drawing, around what stands in it.
constexpr double kAir = 1.08;

/// Images that are farther or higher than this, cm, lie outside of the drawing.
constexpr double kFarthest = 250;
constexpr double kHighest = 16;

/// Lines across the drawing, above the axis.
constexpr int kLines = 4;

double roundedUp(double length) {
    return std::ceil(length * kAir / kStep) * kStep;
}

} // namespace

Extent extentOf(const Bench& bench) {
    const Arrangement& arrangement = bench.arrangement();
    double before = arrangement.distance;
    double behind = arrangement.screen;
    double high = std::max(arrangement.height, kLensRadius);
    if (!bench.hidesLens()) {
        before = std::max(before, arrangement.focalLength);
        behind = std::max(behind, arrangement.focalLength);
        const Image image = bench.image();
        const bool inSight = !image.isAtInfinity() && std::fabs(image.place()) <= kFarthest &&
                             std::fabs(image.height()) <= kHighest;
        if (inSight) {
            double& side = image.isReal() ? behind : before;
            side = std::max(side, std::fabs(image.place()));
            high = std::max(high, std::fabs(image.height()));
        }
    }
    const double step = common::tickStep(high * kAir, kLines);
    return {roundedUp(before), roundedUp(behind), std::ceil(high * kAir / step) * step};
}

double beamHeight(const Arrangement& arrangement, double height, double place) {
    // Towards B′; at infinity too, where B′ is not.
    const double inverse = Image(arrangement).vergence() / 100;
    return height + place * (arrangement.height / arrangement.object() - height * inverse);
}

} // namespace lens
