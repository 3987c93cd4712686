#pragma once

#include "page/recording.h"

#include <deque>
#include <functional>
#include <vector>

namespace page {

/// Runs side by side, and the extent in twips of the tallest of them: indices and exponents stand
/// on a line when their middle lies within it, or little outside.
struct TextLine {
    std::vector<const TextOperation*> runs; ///< from left to right
    double top = 0;
    double bottom = 0;
};

/// Whether a run stands so far right of where the one before it ended (`end`, in twips) that the
/// two count as separate words.
bool isApart(const TextOperation& run, double end);

/// Whether a text is the shadow of the one drawn just after it: the same text, as far to the side
/// as below or above.
bool isShadow(const TextOperation& before, const TextOperation& text);

/// Runs, given in drawing order, as lines from top to bottom.
std::vector<TextLine> arrangedInLines(const std::vector<const TextOperation*>& runs);

/// The lines of text that stand on a surface since it was last cleared, from top to bottom. Links
/// are controls on top of it, which clearing leaves in place: their captions are part of the lines
/// they stand in. The text below which a shadow lies is there once.
class TextLines {
public:
    /// Lays the caption of a link out as runs of text.
    using CaptionLayout = std::function<std::vector<TextOperation>(const LinkOperation&)>;

    /// The recording must outlive it, and stay as it is.
    TextLines(const Recording& recording, SurfaceId surface, const CaptionLayout& layOut);
    TextLines(const TextLines&) = delete;
    TextLines& operator=(const TextLines&) = delete;

    const std::vector<TextLine>& lines() const& { return lines_; }
    const std::vector<TextLine>& lines() && = delete; // the captions would be gone

private:
    using Runs = std::vector<const TextOperation*>;
    class Gathering;

    std::deque<TextOperation> captions_; ///< stay in place while it grows
    std::vector<TextLine> lines_;
};

} // namespace page
