#include "shell/display_check.h"

namespace shell {

bool isTooNarrow(const platform::Screen& screen) {
    return platform::widthPixels(screen) < kNarrowestScreenPixels;
}

bool isWideEnoughToCentre(const platform::Screen& screen) {
    return platform::widthPixels(screen) > kCentringScreenPixels;
}

bool hasNoRoomForAFrame(const platform::Screen& screen) {
    return screen.heightTwips() / screen.scale() <
           (kWindowHeightPixels + kFrameHeightPixels) *
               platform::knownTwipsPerPixel(screen.twipsPerPixelY());
}

Placement centredWindow(const platform::Screen& screen) {
    Placement window;
    window.width = kWindowWidthPixels * platform::knownTwipsPerPixel(screen.twipsPerPixelX());
    window.height = kWindowHeightPixels * platform::knownTwipsPerPixel(screen.twipsPerPixelY());
    window.left = (screen.widthTwips() / screen.scale() - window.width) / 2;
    window.top = (screen.heightTwips() / screen.scale() - window.height) / 2;
    return window;
}

} // namespace shell
