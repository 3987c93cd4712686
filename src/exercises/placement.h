#pragma once

#include "platform/screen.h"

namespace exercises {

/// On a screen wider than this the test's window lies exactly over the main window; elsewhere it
/// keeps the place of its design.
inline constexpr float kOverlayScreenPixels = 850;

inline bool liesOverMainWindow(const platform::Screen& screen) {
    return static_cast<float>(platform::widthPixels(screen)) > kOverlayScreenPixels;
}

/// Where the test opens the calculator, in twips, measured as the windows are.
struct CalculatorPlace {
    double left;
    double top;

    bool operator==(const CalculatorPlace&) const = default;
};

/// Below the top right corner of the main window, whose own upper left corner is at `main`.
inline CalculatorPlace calculatorPlace(const CalculatorPlace& main, double mainWidth,
                                       double calculatorWidth) {
    return {main.left + mainWidth - calculatorWidth - 240, main.top + 1800};
}

} // namespace exercises
