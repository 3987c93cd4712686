#pragma once

#include "common/reading.h"

class QPainter;

namespace common {

inline constexpr int kReadingHeight = 26; ///< of a line, pixels

/// Paints readings behind the name of their group. Returns the top of the next line. Pixels;
/// `width` is that of the whole line.
double paintReadings(QPainter& painter, double top, double width, const ReadingGroup& group);

} // namespace common
