#pragma once

#include "authoring/positions.h"

#include <string_view>

namespace authoring {

// What other programs read in a Markdown text, and what is left of marks that did not close. It
// would stand on the page as it was typed, and be seen by pupils first.

/// Tells of such marks in a text that md4c gave out as it stands. `offset` is where it begins in
/// the source; what is escaped there is meant.
void nameForeignMarks(std::string_view source, std::size_t offset, std::size_t size,
                      Faults& faults);

/// Tells of a comment, or of a form feed, that asks for a new sheet of paper.
void namePageBreak(std::string_view text, std::size_t offset, Faults& faults);

} // namespace authoring
