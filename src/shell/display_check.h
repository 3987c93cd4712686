#pragma once

#include "platform/screen.h"

namespace shell {

/// Size of the main window, frame included, in pixels.
inline constexpr double kWindowWidthPixels = 800;
inline constexpr double kWindowHeightPixels = 600;

/// Pages are laid out for a window of 800 pixels; a screen below this width cuts them.
inline constexpr double kNarrowestScreenPixels = 700;
/// On a screen wider than this the main window keeps its size and the middle of the screen.
inline constexpr double kCentringScreenPixels = 810;

/// Whether no course can be shown on the screen.
bool isTooNarrow(const platform::Screen& screen);

/// Whether the main window is centred on the screen.
bool isWideEnoughToCentre(const platform::Screen& screen);

/// What the frame of a window takes of the height of a screen at most, in pixels: a title bar
/// above, and the same below, as the contents are in the middle.
inline constexpr double kFrameHeightPixels = 60;

/// Whether the main window with its frame is higher than the screen.
bool hasNoRoomForAFrame(const platform::Screen& screen);

/// Where a window goes, in twips of the window's own scale, measured from the screen's corner.
struct Placement {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;

    bool operator==(const Placement&) const = default;
};

/// The main window at its fixed size in the middle of the screen. On a screen lower than the
/// window `top` is negative.
Placement centredWindow(const platform::Screen& screen);

} // namespace shell
