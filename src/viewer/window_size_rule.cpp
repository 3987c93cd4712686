#include "viewer/window_size_rule.h"

#include "shell/display_check.h"

namespace viewer {

namespace {

constexpr std::int16_t kAdvisory = 2;

} // namespace

WindowSizeRule::Orders WindowSizeRule::resized(Window window) {
    Orders orders;
    if (shell::isWideEnoughToCentre(screen_)) {
        if (state_.DisplayWarningMode == kAdvisory) {
            orders.makeNormal = !window.isNormal;
            orders.setSize = orders.makeNormal || !window.hasFixedSize;
            orders.centre = orders.setSize;
        } else {
            state_.DisplayWarningMode = kAdvisory;
        }
    }
    orders.setSize = orders.setSize || (window.isNormal && !window.hasFixedSize);
    if (orders == Orders{})
        return orders;
    if (hasGivenUp())
        return {};
    ++requests_;
    return orders;
}

void WindowSizeRule::settled(Window window) {
    if (window.isNormal && window.hasFixedSize)
        requests_ = 0;
}

} // namespace viewer
