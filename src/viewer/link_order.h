#pragma once

#include "page/recording.h"

#include <vector>

namespace viewer {

/// Links in the order in which they are read: those of the title, of the page, of the illustration;
/// on each from line to line, and from left to right on a line.
std::vector<const page::LinkOperation*>
inReadingOrder(std::vector<const page::LinkOperation*> links);

/// Whether a link is the picture of another one, which stands in words for the same target.
bool isPictureOf(const page::LinkOperation& picture, const page::LinkOperation& words);

} // namespace viewer
