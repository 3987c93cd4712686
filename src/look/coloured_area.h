#pragma once

#include <QImage>
#include <QRegion>

namespace look {

/// What of a picture has its colours for their own sake, in its pixels: all of a photograph, and of
/// a drawing on a transparent ground its areas of strong or dark colour, a spectrum or a flame,
/// with what stands in them. Its lines and letters, and areas as light as paper, are not in it:
/// they are drawn on the page, and are as light or dark as it takes to see them there.
QRegion colouredArea(const QImage& picture);

} // namespace look
