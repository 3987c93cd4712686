#pragma once

#include "output/raster/raster_bands.h"
#include "page/faces/font_book.h"
#include "page/recording.h"

#include <QImage>
#include <QPainter>
#include <QtMath>

#include <cstddef>
#include <vector>

namespace output {

/// Shows what was drawn on one surface as pixels, as wide as the surface and as dense as the
/// screen. What does not show yet is not drawn yet.
class RasterSurface {
public:
    /// `widthPx` in logical pixels.
    RasterSurface(page::SurfaceId id, int widthPx, const page::FontBook& fonts, QRgb background);

    /// Device pixels to a logical one, above 0. Whoever changes it plays the recording again.
    void setDevicePixelRatio(double ratio);
    double devicePixelRatio() const { return ratio_; }

    /// Takes up what the recording has gained since the last call. It must outlive the surface, or
    /// what comes before the next reset().
    void play(const page::Recording& recording);

    /// Wipes the picture; the next play() starts at the recording's beginning.
    void reset();

    /// Whether nothing stands on the surface.
    bool isBlank() const { return lowestPx_ == 0; }

    /// Height in logical pixels down to the lowest thing drawn.
    int drawnHeightPx() const { return lowestPx_; }

    /// Paints the part of the picture that `exposed` names (logical pixels of the surface) at the
    /// same place of `painter`, and draws of it what was not drawn yet; what lies below the drawing
    /// shows the background.
    void paint(QPainter& painter, const QRect& exposed);

    /// Draws what of the recording leans out of the surface into its margin (see ink_area.h), when
    /// the surface is `heightPx` logical pixels tall: letters, and the borders of tables. The
    /// painter stands at the corner of the surface, a device pixel to its unit; `exposed` is what
    /// shows, in logical pixels of the surface.
    void paintMargin(QPainter& painter, const page::Recording& recording, int heightPx,
                     const QRect& exposed) const;

    /// The picture, `heightPx` logical pixels tall.
    QImage image(int heightPx);

    /// Memory that the pictures take, in bytes.
    qsizetype bytes() const { return bands_.bytes(); }

private:
    class Player;
    class MarginPlayer;

    /// An operation that leaves ink here, between two device rows; `bottom` is below it.
    struct Inked {
        std::size_t operation;
        int top;
        int bottom;
    };

    void wipe();
    void drawRest(RasterBands::Band& band);

    page::SurfaceId id_;
    int widthPx_;
    const page::FontBook& fonts_;
    QRgb background_;
    double ratio_ = 1;
    RasterBands bands_;
    const page::Recording* recording_ = nullptr; ///< that which was played
    std::vector<Inked> inked_;
    int lowestPx_ = 0;
    int inkedRows_ = 0; ///< device rows from the top that may not be blank
    std::size_t played_ = 0;
};

} // namespace output
