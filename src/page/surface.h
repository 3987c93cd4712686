#pragma once

#include "page/recording.h"
#include "page/text_metrics.h"

#include <QPointF>
#include <QRgb>

#include <memory>

namespace page {

/// Tallest surface, in pixels: more than seventy screenfuls, and a raster of it stays below
/// 100 MB at 600 pixels of width. What a page draws further down is not kept, so that a few
/// characters of source cannot exhaust the memory.
inline constexpr double kMaxSurfaceHeightPx = 40000;

/// A picture surface: pen, font, ink and line width, and the operations that use them. Drawing goes
/// into the recording; a player shows it on a device. Lengths are twips.
class Surface {
public:
    Surface(SurfaceId id, double scaleWidth, const TextMetrics& metrics, Recording& recording);

    SurfaceId id() const { return id_; }
    double scaleWidth() const { return scaleWidth_; }

    QPointF pen() const { return {penX_, penY_}; }
    double penX() const { return penX_; }
    double penY() const { return penY_; }
    /// False, and no change, for a position that is no number or outside single precision.
    bool setPenX(double x);
    bool setPenY(double y);

    const Font& font() const { return font_; }
    /// False, and no change, for a size below 0 or above kMaxFontPoints.
    bool setFontPoints(double points);
    void setFace(const QString& face);
    void setBold(bool on);
    void setItalic(bool on);
    void setUnderline(bool on);

    QRgb ink() const { return ink_; }
    void setInk(QRgb ink) { ink_ = ink; }
    int lineWidth() const { return lineWidth_; }
    void setLineWidth(int pixels) { lineWidth_ = pixels; }

    const TextMetrics& metrics() const { return metrics_; }
    double textWidth(QStringView text) const;
    /// Height of a line in the current font, for any text.
    double textHeight() const;

    /// Prints at the pen, which ends just right of the text.
    void print(const QString& text);
    /// Draws in the current ink and line width; the pen ends at the line's end.
    void line(double x1, double y1, double x2, double y2);
    void fill(double x, double y, double width, double height, QRgb ink, FillMode mode);
    /// Paints a picture at the pen, stretched to `width` x `height`; the pen stays. `name` is the
    /// bare file name, or the key of a symbol of the image list.
    void paint(std::shared_ptr<const Picture> picture, double width, double height,
               const QString& name, bool symbol);
    /// Wipes the surface and puts the pen at its top left corner.
    void clear();

    /// Height in pixels, 0 before the first setHeight. Held at kMaxSurfaceHeightPx; false, and no
    /// change, for a negative height or none.
    double heightPx() const { return heightPx_; }
    bool setHeightPx(double pixels);

private:
    SurfaceId id_;
    double scaleWidth_;
    const TextMetrics& metrics_;
    Recording& recording_;
    double penX_ = 0;
    double penY_ = 0;
    Font font_;
    QRgb ink_ = 0xff000000;
    int lineWidth_ = 1;
    double heightPx_ = 0;
    // The height of a line is asked for at every paragraph; it changes with the font only.
    mutable double textHeight_ = -1;
};

} // namespace page
