#pragma once

#include "platform/qt/font_book.h"
#include "platform/qt/raster_surface.h"
#include "platform/recording.h"
#include "platform/surface.h"

#include <QWidget>

namespace viewer {

/// A picture surface of the main window: pages draw into its recording, it shows the drawing at
/// the density of the screen, and screen readers get the text that stands on it. The control is
/// named after the surface.
class PictureBox : public QWidget {
public:
    /// `widthPx` is the width to draw on; the control itself may be larger, see setInset().
    PictureBox(platform::SurfaceId id, int widthPx, QRgb ground, const platform::FontBook& fonts,
               platform::Recording& recording, QWidget* parent);

    platform::Surface& surface() { return surface_; }

    /// Leaves a border of `pixels` around the drawing, for a fine rule. While nothing is drawn the
    /// control shows neither, but the window below.
    void setInset(int pixels) { inset_ = pixels; }

    /// Wipes the picture, for a new page. The recording must have been emptied before.
    void empty();

    /// Shows what was drawn up to now; it appears at the next repaint.
    void showDrawing();

    /// Whether nothing was drawn, as far as it was shown.
    bool isBlank() const { return raster_.isBlank(); }

    /// Height of the page on it, in pixels: what the surface was set to; a page that left it
    /// without setting one is as tall as what stands on it.
    int pageHeightPx() const;

    /// The text on the surface, line by line.
    QString readableText() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    platform::Recording& recording_;
    platform::Surface surface_;
    platform::RasterSurface raster_;
    int inset_ = 0;
};

} // namespace viewer
