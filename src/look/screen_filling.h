#pragma once

namespace look {

/// A window that shows the course's 800 by 600 pixels, and can fill the screen with them in its
/// middle, without a frame.
class ScreenFilling {
public:
    virtual ~ScreenFilling() = default;

    /// Fills the screen, or has its size and its frame again. The scale is right already.
    virtual void setFillsScreen(bool fills) = 0;
};

} // namespace look
