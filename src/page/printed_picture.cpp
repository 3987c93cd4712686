#include "page/printed_picture.h"

#include <algorithm>
#include <cmath>

namespace page {

namespace {

/// Pixels of a drawing for each logical pixel that it takes.
constexpr double kDrawingDensity = 4;

/// Most pixels that a drawing becomes: 16 MB while the page is written.
constexpr double kMaxDrawingPixels = 4e6;

} // namespace

QSize printedPixels(const Picture& picture, QSize drawn) {
    if (picture.format() != PictureFormat::Svg)
        return picture.size();
    const double area = double(drawn.width()) * drawn.height();
    const double density = std::min(kDrawingDensity, std::sqrt(kMaxDrawingPixels / area));
    return {std::max(1, static_cast<int>(drawn.width() * density)),
            std::max(1, static_cast<int>(drawn.height() * density))};
}

} // namespace page
