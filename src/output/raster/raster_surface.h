#pragma once

#include "page/faces/font_book.h"
#include "page/recording.h"

#include <QImage>
#include <QPainter>
#include <QtMath>

namespace output {

/// Shows what was drawn on one surface as pixels. The image grows with the drawing; it is as wide
/// as the surface and as dense as the screen.
class RasterSurface {
public:
    /// `widthPx` in logical pixels.
    RasterSurface(page::SurfaceId id, int widthPx, const page::FontBook& fonts, QRgb background);

    /// Device pixels to a logical one, above 0. Whoever changes it plays the recording again.
    void setDevicePixelRatio(double ratio);
    double devicePixelRatio() const { return ratio_; }

    /// Plays what the recording has gained since the last call.
    void play(const page::Recording& recording);

    /// Wipes the picture; the next play() starts at the recording's beginning.
    void reset();

    /// Whether nothing stands on the surface.
    bool isBlank() const { return lowestPx_ == 0; }

    /// Height in logical pixels down to the lowest thing drawn.
    int drawnHeightPx() const { return lowestPx_; }

    /// Paints the part of the picture that `exposed` names (logical pixels of the surface) at the
    /// same place of `painter`; what lies below the drawing shows the background.
    void paint(QPainter& painter, const QRect& exposed) const;

    /// Draws what of the recording leans out of the surface into its margin (see ink_area.h), when
    /// the surface is `heightPx` logical pixels tall: letters, and the borders of tables. The
    /// painter stands at the corner of the surface, a device pixel to its unit; `exposed` is what
    /// shows, in logical pixels of the surface.
    void paintMargin(QPainter& painter, const page::Recording& recording, int heightPx,
                     const QRect& exposed) const;

    /// The picture, `heightPx` logical pixels tall.
    QImage image(int heightPx) const;

private:
    class Player;
    class MarginPlayer;

    void wipe();
    void growTo(int heightPx);

    page::SurfaceId id_;
    int widthPx_;
    const page::FontBook& fonts_;
    QRgb background_;
    double ratio_ = 1;
    QImage image_;
    int lowestPx_ = 0;
    int inkedRows_ = 0; ///< device rows from the top that may not be blank
    std::size_t played_ = 0;
};

} // namespace output
