#pragma once

#include "page/recording.h"

#include <QString>

namespace page {

/// The text drawn on a surface since it was last cleared, for screen readers and the clipboard:
/// runs that overlap in height form a line, lines follow from top to bottom, and what is far apart
/// on a line is kept apart by a blank. Captions of links are part of the text they stand in.
/// Shadows and the sign faces' codes do not show: the former are left out, the latter become
/// Unicode.
QString readableText(const Recording& recording, SurfaceId surface);

} // namespace page
