#include "app/scale.h"

#include <algorithm>
#include <cmath>

namespace app {

namespace {

constexpr double kWindowWidthPx = 800;
constexpr double kWindowHeightPx = 600;
constexpr double kStep = .25;
constexpr double kShareOfScreen = .9;

double largest(double screenWidthPx, double screenHeightPx) {
    return std::min(screenWidthPx / kWindowWidthPx, screenHeightPx / kWindowHeightPx);
}

} // namespace

double automaticScale(double screenWidthPx, double screenHeightPx) {
    const double room = largest(screenWidthPx, screenHeightPx) * kShareOfScreen;
    return std::clamp(std::floor(room / kStep) * kStep, kSmallestScale, kLargestScale);
}

double fittingScale(double asked, double screenWidthPx, double screenHeightPx) {
    return std::max(kSmallestScale, std::min(asked, largest(screenWidthPx, screenHeightPx)));
}

} // namespace app
