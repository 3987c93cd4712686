#pragma once

#include "page/picture.h"

namespace page {

/// How many pixels a picture is to have where it is printed, or stands in a document for print:
/// photographs and the like their own, drawings (SVG) 384 to the inch, or fewer where that would be
/// more than a page full of them at 288. `drawn`: the logical pixels that it takes, not empty.
QSize printedPixels(const Picture& picture, QSize drawn);

} // namespace page
