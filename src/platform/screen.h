#pragma once

#include "page/twips.h"

namespace platform {

/// The screen that the main window appears on. It is measured at every call, so that a change of
/// the display settings is seen. All sizes are those of an unscaled program: an enlarged program
/// (see scale()) has less room on the screen, but does not see a narrower one.
class Screen {
public:
    virtual ~Screen() = default;

    /// Size in twips; 0 when there is no screen.
    virtual double widthTwips() const = 0;
    virtual double heightTwips() const = 0;

    /// Twips in a pixel across and down; 0 when the system does not say.
    virtual double twipsPerPixelX() const = 0;
    virtual double twipsPerPixelY() const = 0;

    /// How much the whole program is enlarged, above 0. A length of L twips in a window covers
    /// L * scale() twips of this screen.
    virtual double scale() const { return 1; }
};

/// `reported` twips in a pixel; kTwipsPerPixel where the system does not say (0).
inline double knownTwipsPerPixel(double reported) {
    return reported == 0 ? page::kTwipsPerPixel : reported;
}

/// Width of the screen in pixels.
inline double widthPixels(const Screen& screen) {
    return screen.widthTwips() / knownTwipsPerPixel(screen.twipsPerPixelX());
}

} // namespace platform
