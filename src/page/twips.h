#pragma once

namespace page {

/// Twips in a pixel at 96 dots per inch, the resolution that all windows are laid out for.
inline constexpr double kTwipsPerPixel = 15;

} // namespace page
