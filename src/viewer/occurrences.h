#pragma once

#include "page/recording.h"
#include "page/text_metrics.h"
#include "viewer/found_words.h"

#include <QRectF>

#include <cstddef>
#include <vector>

namespace viewer {

/// A place on a surface where a word stands.
struct Occurrence {
    double lineTop; ///< of the line of text that it stands in; twips
    QRectF area;    ///< around all its letters, indices included; twips

    bool operator==(const Occurrence&) const = default;
};

/// Most occurrences that are looked for on a surface: who is shown that many types another letter.
inline constexpr std::size_t kMaxOccurrences = 10'000;

/// Most text that is searched on a surface, in UTF-16 units: hundreds of screenfuls. What a hostile
/// page holds beyond is passed over, so that every key typed is answered at once.
inline constexpr qsizetype kMaxSearchedText = 1'000'000;

/// Most words that are looked for at a time, more than anybody types.
inline constexpr std::size_t kMaxSoughtWords = 100;

/// Where the words stand in the text that a page has on a surface, in the order of reading: from
/// top to bottom, on a line from left to right. A word may run over the pieces of a line (a bold
/// syllable, an index, the caption of a link), never from one line to another; what stands apart on
/// a line has a blank between. Occurrences that overlap are one. What was wiped does not count,
/// typographic apostrophes, no-break spaces and the like match the plain ones of a keyboard, and
/// the codes of the sign faces are the signs they show. The metrics are those the page was drawn
/// with.
std::vector<Occurrence> occurrences(const page::Recording& recording, page::SurfaceId surface,
                                    const page::TextMetrics& metrics, const FoundWords& sought);

} // namespace viewer
