#pragma once

#include "page/recording.h"
#include "page/text_metrics.h"

#include <vector>

namespace page {

// What players that show a whole page at once (files, paper) need to know of its links.

/// The links that stand on the page at its end, in the order in which they were placed: an element
/// that was placed twice stands where it was placed last. The pointers are into the recording.
std::vector<const LinkOperation*> standingLinks(const Recording& recording);

/// The lines of a label, as the text that a device prints for it.
std::vector<TextOperation> captionLines(const LinkOperation& link, const TextMetrics& metrics);

/// Extent of a caption of one or more lines (separated by CR LF), in twips.
struct CaptionExtent {
    double width;
    double height;
};
CaptionExtent captionExtent(const QString& caption, const Font& font, const TextMetrics& metrics);

} // namespace page
