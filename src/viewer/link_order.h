#pragma once

#include "page/recording.h"

#include <vector>

namespace viewer {

/// Links in the order in which they are read: those of the title, of the page, of the illustration;
/// on each from line to line, and from left to right on a line.
std::vector<const page::LinkOperation*>
inReadingOrder(std::vector<const page::LinkOperation*> links);

} // namespace viewer
