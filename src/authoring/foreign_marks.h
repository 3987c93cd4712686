#pragma once

#include "authoring/document.h"
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

/// Tells of a listing that does not end, which takes the rest of the page with it. `last` is where
/// its last text stands.
void nameOpenFence(std::string_view source, const Block& code, std::size_t last, Faults& faults);

} // namespace authoring
