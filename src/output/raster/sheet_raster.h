#pragma once

#include "page/faces/font_book.h"
#include "page/sheet.h"

#include <QImage>
#include <QSize>

namespace output {

/// Shows sheets as pixels on white paper, drawn as on screen. A tall sheet at a high density would
/// not fit the memory, so it is drawn in bands, from its top to its foot.
class SheetRaster {
public:
    /// `scale`: pixels of the picture to a logical one, above 0.
    SheetRaster(const page::FontBook& fonts, double scale) : fonts_(fonts), scale_(scale) {}

    /// The whole picture, at least 1 x 1.
    QSize size(const page::Sheet& sheet) const;

    /// Rows of a band, so that it takes a few megabytes; the last band of a sheet may have fewer.
    int bandRows(const page::Sheet& sheet) const;

    /// The band that starts at the row `top`, Format_RGB32. It is valid until the next call.
    const QImage& band(const page::Sheet& sheet, int top);

private:
    const page::FontBook& fonts_;
    double scale_;
    QImage band_;
};

} // namespace output
