#include "look/scale.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace look {

namespace {

constexpr double kWindowWidthPx = 800;
constexpr double kWindowHeightPx = 600;
constexpr double kStep = .25;
constexpr double kShareOfScreen = .9;

/// Each is seen to be larger than the one before, and the usual factors of screens are among them.
constexpr std::array kSteps{1.0, 1.1, 1.25, 1.5, 1.75, 2.0, 2.5, 3.0, 3.5, kLargestScale};

} // namespace

double largestScale(double widthPx, double heightPx) {
    return std::min(widthPx / kWindowWidthPx, heightPx / kWindowHeightPx);
}

double automaticScale(double screenWidthPx, double screenHeightPx) {
    const double room = largestScale(screenWidthPx, screenHeightPx) * kShareOfScreen;
    return std::clamp(std::floor(room / kStep) * kStep, kSmallestScale, kLargestScale);
}

double fittingScale(double asked, double screenWidthPx, double screenHeightPx) {
    return std::max(kSmallestScale, std::min(asked, largestScale(screenWidthPx, screenHeightPx)));
}

double nextLargerScale(double now, double largest) {
    const auto* step = std::upper_bound(kSteps.begin(), kSteps.end(), now);
    return step == kSteps.end() ? now : std::max(now, std::min(*step, largest));
}

double nextSmallerScale(double now) {
    const auto* step = std::lower_bound(kSteps.begin(), kSteps.end(), now);
    return step == kSteps.begin() ? now : *(step - 1);
}

} // namespace look
