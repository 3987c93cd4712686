#pragma once

namespace page {

// Widths that a page draws on, in pixels. They are the same with and without a window.
inline constexpr int kPageWidthPx = 600;
inline constexpr int kTitleWidthPx = 600;
inline constexpr int kIllustrationWidthPx = 150;

} // namespace page
