#pragma once

#include "page/recording.h"

#include <QRectF>

#include <deque>

namespace page {

/// A part of a line as a person reads it: a run of text, the caption of a link, or a whole fraction
/// or root. As a text operation it stands where the line goes on with it.
struct TextPiece : TextOperation {
    QRectF area;            ///< all that it covers, in twips
    QString linear;         ///< on one line, as keyboards write it: "(d)/(t)"
    QString spoken;         ///< in words: "d sur t"
    bool isCaption = false; ///< of a link
    QString tag;            ///< what the link leads to
    bool isFormula = false; ///< more than the letters of `text`, one after the other
};

/// In drawing order; who is in it stays in place while it grows.
using TextPieces = std::deque<TextPiece>;

/// The piece that a run of text is by itself.
TextPiece pieceOf(const TextOperation& run);

} // namespace page
