#pragma once

#include "page/text_piece.h"

#include <vector>

namespace page {

/// A piece with what a line makes of it: the blank before it, and the sign of an index or exponent.
struct LinePart {
    const TextPiece* piece;
    QString linear;
    QString spoken;
};

/// The pieces of a line, from left to right, as they are read: what is far apart is kept apart by a
/// blank, an index is "v_0" and "v indice 0", an exponent "10^-3" and "10 puissance −3". What
/// nobody takes for a formula stays plain: the count of atoms in "H2O", the end of "1er".
std::vector<LinePart> readLine(const std::vector<const TextPiece*>& pieces);

/// All of a line in one text.
QString linearText(const std::vector<LinePart>& parts);
QString spokenText(const std::vector<LinePart>& parts);

} // namespace page
