#pragma once

namespace look {

inline constexpr double kSmallestScale = 1;
inline constexpr double kLargestScale = 4;

/// The factor that enlarges an 800 x 600 window well on a screen of this size, in device pixels:
/// steps of a quarter, and a tenth of the screen left free. 1 on a screen that is too small.
double automaticScale(double screenWidthPx, double screenHeightPx);

/// The largest factor with which an 800 x 600 window covers no more than this, in device pixels.
double largestScale(double widthPx, double heightPx);

/// The factor asked for, lowered to what the screen holds, never below 1.
double fittingScale(double asked, double screenWidthPx, double screenHeightPx);

/// The next of the steps above or below a factor; the same one where there is none, and `largest`
/// where the next step lies beyond it.
double nextLargerScale(double now, double largest);
double nextSmallerScale(double now);

} // namespace look
