#pragma once

class QPainter;

namespace look {

/// A control that stands on a picture box and paints on it as if the page had drawn it there, and
/// so beyond the edge of the surface where letters lean out.
class SurfaceControl {
public:
    virtual ~SurfaceControl() = default;
    /// Draws the control in device pixels from the corner of the surface; `ratio` of them make a
    /// logical one.
    virtual void drawOn(QPainter& painter, double ratio) = 0;
};

} // namespace look
